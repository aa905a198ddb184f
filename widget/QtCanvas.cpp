#include "widget/QtCanvas.h"

#include <GLCanvas>
#include <GlobalViewerInfo>

#include "GLUV/Thread.h"
#include "widget/GLCanvasEmitters.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMimeData>
#include <QMouseEvent>

namespace VOR2 {

namespace {
GLOX::GLPoint<double> glPoint(QPointF const &p) { return {p.x(), p.y()}; }
} // namespace

QtCanvas::QtCanvas(GLCanvas *canvas, QWidget *parent)
    : SceneViewer(&canvas->getSceneServer(), parent), m_canvas(canvas), m_emitters(canvas->getEmitters())
{
    setContextMenuPolicy(Qt::PreventContextMenu);
    viewport()->setContextMenuPolicy(Qt::PreventContextMenu);
    viewport()->setAcceptDrops(true);
    setFocusPolicy(Qt::StrongFocus);
    m_toolCursor.connect(this, [this](GLOX::Cursor cursor) {
        cursor.isValid() ? setCursor(cursor.toQCursor()) : unsetCursor();
    });
    // The viewer info belongs to the host thread: tell it from there.
    double dpi = logicalDpiY();
    if (GLUV::Thread *host = GLUV::Thread::getNamedThread("TARVO"))
        host->post([dpi] { GlobalViewerInfo::instance()->setDpi(dpi); });
    else
        GlobalViewerInfo::instance()->setDpi(dpi);
}

// The host reads the position when it handles an event: that event's, or
// a later one's if the widget has moved since.
void QtCanvas::reportPosition()
{
    QPoint topLeft = viewport()->mapToGlobal(QPoint(0, 0));
    m_canvas->reportGlobalPosition({double(topLeft.x()), double(topLeft.y()), double(viewport()->width()),
                                    double(viewport()->height())});
}

GLOX::GLMouseEvent2 QtCanvas::toGL(QMouseEvent const *e, int rotation) const
{
    return GLOX::GLMouseEvent2(m_canvas, glPoint(e->localPos() + viewport()->pos()), glPoint(e->localPos()),
                               glPoint(e->screenPos()), rotation, e->button(), e->buttons(), e->modifiers());
}

GLOX::GLKeyEvent2 QtCanvas::toGL(QKeyEvent const *e) const
{
    return GLOX::GLKeyEvent2(m_canvas, Qt::Key(e->key()), e->modifiers(), e->text().toStdString(), e->isAutoRepeat(),
                             QApplication::mouseButtons());
}

GLOX::GLDragEvent2 QtCanvas::toGL(QDropEvent const *e) const
{
    GLOX::GLDragEvent2::MimeData data;
    if (QMimeData const *mime = e->mimeData())
        for (QString const &format : mime->formats()) data.insert(format, mime->data(format));
    return GLOX::GLDragEvent2(m_canvas, glPoint(e->posF()), data, e->mouseButtons(), e->keyboardModifiers());
}

bool QtCanvas::event(QEvent *event)
{
    // Menus asked for from the keyboard, before the context menu policy
    // drops them.
    if (event->type() == QEvent::ContextMenu) {
        auto *menu = static_cast<QContextMenuEvent *>(event);
        if (menu->reason() == QContextMenuEvent::Keyboard) {
            reportPosition();
            m_emitters.contextMenu.send(GLOX::GLContextMenuEvent2(m_canvas, menu->globalX(), menu->globalY(),
                                                                  GLOX::GLContextMenuEvent2::Keyboard));
        }
        event->accept();
        return true;
    }
    return SceneViewer::event(event);
}

void QtCanvas::mousePressEvent(QMouseEvent *event)
{
    if (!m_dragArmed && event->button() == Qt::LeftButton) {
        m_pressPos = event->localPos();
        m_pressGlobalPos = event->screenPos();
        m_dragArmed = true;
    }
    reportPosition();
    m_emitters.mousePressed.send(toGL(event));
    SceneViewer::mousePressEvent(event);
}

void QtCanvas::mouseMoveEvent(QMouseEvent *event)
{
    reportPosition();
    if (m_dragArmed && (m_pressGlobalPos - event->screenPos()).manhattanLength() > QApplication::startDragDistance()) {
        if (m_emitters.userDragInit.connectionCount() > 0)
            m_emitters.userDragInit.send(GLOX::GLMouseEvent2(m_canvas, glPoint(m_pressPos + viewport()->pos()),
                                                             glPoint(m_pressPos), glPoint(m_pressGlobalPos), 0,
                                                             Qt::LeftButton, event->buttons(), event->modifiers()));
        m_dragArmed = false;
    }
    m_emitters.mouseMoved.send(toGL(event));
    SceneViewer::mouseMoveEvent(event);
}

void QtCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragArmed = false;
    reportPosition();
    m_emitters.mouseReleased.send(toGL(event));
    SceneViewer::mouseReleaseEvent(event);
}

void QtCanvas::mouseDoubleClickEvent(QMouseEvent *event)
{
    reportPosition();
    m_emitters.mouseDoubleClicked.send(toGL(event));
    event->accept();
}

void QtCanvas::wheelEvent(QWheelEvent *event)
{
    event->accept();
    // Whole degrees, 15 per notch. Qt counts eighths of a degree, and fine
    // wheels and touch pads send a few at a time: keep what is left over.
    m_wheelEighths += event->angleDelta().y();
    int degrees = m_wheelEighths / 8;
    if (degrees == 0) return;
    m_wheelEighths -= degrees * 8;
    reportPosition();
    QMouseEvent asMouse(QEvent::MouseMove, event->position(), event->globalPosition(), Qt::NoButton,
                        event->buttons(), event->modifiers());
    m_emitters.wheel.send(toGL(&asMouse, degrees));
}

void QtCanvas::keyPressEvent(QKeyEvent *event)
{
    reportPosition();
    m_emitters.keyPressed.send(toGL(event));
    event->accept();
}

void QtCanvas::keyReleaseEvent(QKeyEvent *event)
{
    reportPosition();
    m_emitters.keyReleased.send(toGL(event));
    event->accept();
}

void QtCanvas::focusInEvent(QFocusEvent *event)
{
    m_emitters.focusGained.send(GLOX::GLFocusEvent2(m_canvas, GLOX::Qt2GL(event->reason())));
    SceneViewer::focusInEvent(event);
}

void QtCanvas::focusOutEvent(QFocusEvent *event)
{
    m_emitters.focusLost.send(GLOX::GLFocusEvent2(m_canvas, GLOX::Qt2GL(event->reason())));
    SceneViewer::focusOutEvent(event);
}

void QtCanvas::enterEvent(QEvent *event)
{
    reportPosition();
    m_emitters.pointerEntered.send(GLOX::GLWidgetEvent2(m_canvas));
    SceneViewer::enterEvent(event);
}

void QtCanvas::leaveEvent(QEvent *event)
{
    m_emitters.pointerLeft.send(GLOX::GLWidgetEvent2(m_canvas));
    SceneViewer::leaveEvent(event);
}

// Drags are accepted as proposed, so that moves and the drop arrive; the
// tools decide what a drop means.
void QtCanvas::dragEnterEvent(QDragEnterEvent *event)
{
    reportPosition();
    m_emitters.dragEntered.send(toGL(event));
    event->acceptProposedAction();
}

void QtCanvas::dragMoveEvent(QDragMoveEvent *event)
{
    reportPosition();
    m_emitters.dragMoved.send(toGL(event));
    event->acceptProposedAction();
}

void QtCanvas::dragLeaveEvent(QDragLeaveEvent *event)
{
    m_emitters.dragLeft.send(GLOX::GLWidgetEvent2(m_canvas));
    event->accept();
}

void QtCanvas::dropEvent(QDropEvent *event)
{
    reportPosition();
    m_emitters.dropped.send(toGL(event));
    event->acceptProposedAction();
}

} // namespace VOR2
