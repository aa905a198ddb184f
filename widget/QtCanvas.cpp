#include "widget/QtCanvas.h"

#include <GLCanvas>
#include <GlobalViewerInfo>

#include "GLUV/Thread.h"

#include <QApplication>
#include <QMouseEvent>

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

void QtCanvas::mousePressEvent(QMouseEvent *event)
{
    if (!m_dragArmed && event->button() == Qt::LeftButton) {
        m_pressPos = event->pos();
        m_pressGlobalPos = event->globalPos();
        m_pressTopLevelPos = window()->mapFromGlobal(event->globalPos());
        m_dragArmed = true;
    }
    SceneViewer::mousePressEvent(event);
}

void QtCanvas::mouseMoveEvent(QMouseEvent *event)
{
    if (m_dragArmed && (m_pressGlobalPos - event->globalPos()).manhattanLength() > QApplication::startDragDistance()) {
        if (userDragInit.connectionCount() > 0)
            userDragInit.send(UserDragStart{m_pressPos, m_pressGlobalPos, m_pressTopLevelPos, Qt::LeftButton,
                                            event->buttons(), event->modifiers()});
        m_dragArmed = false;
    }
    SceneViewer::mouseMoveEvent(event);
}

void QtCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragArmed = false;
    SceneViewer::mouseReleaseEvent(event);
}

} // namespace VOR2
