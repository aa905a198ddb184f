#include "widget/QtCanvas.h"

#include <GLCanvas>
#include <GlobalViewerInfo>

#include "GLUV/Thread.h"

namespace VOR2 {

QtCanvas::QtCanvas(GLCanvas *canvas, QWidget *parent)
    : SceneViewer(&canvas->getSceneServer(), parent), m_canvas(canvas)
{
    setContextMenuPolicy(Qt::PreventContextMenu);
    viewport()->setContextMenuPolicy(Qt::PreventContextMenu);
    // The viewer info belongs to the host thread: tell it from there.
    double dpi = logicalDpiY();
    if (GLUV::Thread *host = GLUV::Thread::getNamedThread("TARVO"))
        host->post([dpi] { GlobalViewerInfo::instance()->setDpi(dpi); });
    else
        GlobalViewerInfo::instance()->setDpi(dpi);
}

} // namespace VOR2
