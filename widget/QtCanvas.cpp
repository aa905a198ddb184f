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
    // The cursor the scene's tools ask for, on this thread in order of the
    // requests, while this widget lives.
    m_emitters.toolCursorChanged.connect(this, [this](GLOX::Cursor cursor) {
        cursor.isValid() ? setCursor(cursor.toQCursor()) : unsetCursor();
    });
    // Everything but resizes, which reach the host as view requests.
    canvas->enableEventBroadcasting();
    canvas->disableEventBroadcasting(GLOX::WidgetEventCode::Resize);
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

template <typename Emitter, typename Value>
void QtCanvas::broadcast(GLOX::WidgetEventCode code, Emitter &emitter, Value const &value)
{
    if (m_canvas->isEventBroadcast(code)) emitter.send(value);
}

bool QtCanvas::consumed(GLOX::WidgetEventCode code) const { return m_canvas->isEventConsumed(code); }

bool QtCanvas::event(QEvent *event)
{
    // Menus asked for from the keyboard, before the context menu policy
    // drops them.
    if (event->type() == QEvent::ContextMenu) {
        auto *menu = static_cast<QContextMenuEvent *>(event);
        if (menu->reason() == QContextMenuEvent::Keyboard) {
            reportPosition();
            broadcast(GLOX::WidgetEventCode::ContextMenu, m_emitters.contextMenu,
                      GLOX::GLContextMenuEvent2(m_canvas, menu->globalX(), menu->globalY(),
                                                GLOX::GLContextMenuEvent2::Keyboard));
        }
        if (consumed(GLOX::WidgetEventCode::ContextMenu)) {
            event->accept();
            return true;
        }
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
    broadcast(GLOX::WidgetEventCode::MousePress, m_emitters.mousePressed, toGL(event));
    consumed(GLOX::WidgetEventCode::MousePress) ? event->accept() : SceneViewer::mousePressEvent(event);
}

void QtCanvas::mouseMoveEvent(QMouseEvent *event)
{
    reportPosition();
    if (m_dragArmed && (m_pressGlobalPos - event->screenPos()).manhattanLength() > QApplication::startDragDistance()) {
        if (m_emitters.userDragInit.connectionCount() > 0 && m_canvas->isEventBroadcast(GLOX::WidgetEventCode::MouseMove))
            m_emitters.userDragInit.send(GLOX::GLMouseEvent2(m_canvas, glPoint(m_pressPos + viewport()->pos()),
                                                             glPoint(m_pressPos), glPoint(m_pressGlobalPos), 0,
                                                             Qt::LeftButton, event->buttons(), event->modifiers()));
        m_dragArmed = false;
    }
    broadcast(GLOX::WidgetEventCode::MouseMove, m_emitters.mouseMoved, toGL(event));
    consumed(GLOX::WidgetEventCode::MouseMove) ? event->accept() : SceneViewer::mouseMoveEvent(event);
}

void QtCanvas::mouseReleaseEvent(QMouseEvent *event)
{
    m_dragArmed = false;
    reportPosition();
    broadcast(GLOX::WidgetEventCode::MouseRelease, m_emitters.mouseReleased, toGL(event));
    consumed(GLOX::WidgetEventCode::MouseRelease) ? event->accept() : SceneViewer::mouseReleaseEvent(event);
}

void QtCanvas::mouseDoubleClickEvent(QMouseEvent *event)
{
    reportPosition();
    broadcast(GLOX::WidgetEventCode::MouseDoubleClick, m_emitters.mouseDoubleClicked, toGL(event));
    consumed(GLOX::WidgetEventCode::MouseDoubleClick) ? event->accept() : SceneViewer::mouseDoubleClickEvent(event);
}

void QtCanvas::wheelEvent(QWheelEvent *event)
{
    if (consumed(GLOX::WidgetEventCode::Wheel))
        event->accept();
    else
        SceneViewer::wheelEvent(event);
    // Whole degrees, 15 per notch. Qt counts eighths of a degree, and fine
    // wheels and touch pads send a few at a time: keep what is left over.
    m_wheelEighths += event->angleDelta().y();
    int degrees = m_wheelEighths / 8;
    if (degrees == 0) return;
    m_wheelEighths -= degrees * 8;
    reportPosition();
    QMouseEvent asMouse(QEvent::MouseMove, event->position(), event->globalPosition(), Qt::NoButton,
                        event->buttons(), event->modifiers());
    broadcast(GLOX::WidgetEventCode::Wheel, m_emitters.wheel, toGL(&asMouse, degrees));
}

void QtCanvas::keyPressEvent(QKeyEvent *event)
{
    reportPosition();
    broadcast(GLOX::WidgetEventCode::KeyPress, m_emitters.keyPressed, toGL(event));
    consumed(GLOX::WidgetEventCode::KeyPress) ? event->accept() : SceneViewer::keyPressEvent(event);
}

void QtCanvas::keyReleaseEvent(QKeyEvent *event)
{
    reportPosition();
    broadcast(GLOX::WidgetEventCode::KeyRelease, m_emitters.keyReleased, toGL(event));
    consumed(GLOX::WidgetEventCode::KeyRelease) ? event->accept() : SceneViewer::keyReleaseEvent(event);
}

void QtCanvas::focusInEvent(QFocusEvent *event)
{
    broadcast(GLOX::WidgetEventCode::FocusIn, m_emitters.focusGained,
              GLOX::GLFocusEvent2(m_canvas, GLOX::Qt2GL(event->reason())));
    SceneViewer::focusInEvent(event);
}

void QtCanvas::focusOutEvent(QFocusEvent *event)
{
    broadcast(GLOX::WidgetEventCode::FocusOut, m_emitters.focusLost,
              GLOX::GLFocusEvent2(m_canvas, GLOX::Qt2GL(event->reason())));
    SceneViewer::focusOutEvent(event);
}

void QtCanvas::enterEvent(QEvent *event)
{
    reportPosition();
    broadcast(GLOX::WidgetEventCode::Enter, m_emitters.pointerEntered, GLOX::GLWidgetEvent2(m_canvas));
    SceneViewer::enterEvent(event);
}

void QtCanvas::leaveEvent(QEvent *event)
{
    broadcast(GLOX::WidgetEventCode::Leave, m_emitters.pointerLeft, GLOX::GLWidgetEvent2(m_canvas));
    SceneViewer::leaveEvent(event);
}

// Drags are accepted as proposed, so that moves and the drop arrive; the
// tools decide what a drop means.
void QtCanvas::dragEnterEvent(QDragEnterEvent *event)
{
    reportPosition();
    broadcast(GLOX::WidgetEventCode::DragEnter, m_emitters.dragEntered, toGL(event));
    event->acceptProposedAction();
}

void QtCanvas::dragMoveEvent(QDragMoveEvent *event)
{
    reportPosition();
    broadcast(GLOX::WidgetEventCode::DragMove, m_emitters.dragMoved, toGL(event));
    event->acceptProposedAction();
}

void QtCanvas::dragLeaveEvent(QDragLeaveEvent *event)
{
    broadcast(GLOX::WidgetEventCode::DragLeave, m_emitters.dragLeft, GLOX::GLWidgetEvent2(m_canvas));
    event->accept();
}

void QtCanvas::dropEvent(QDropEvent *event)
{
    reportPosition();
    broadcast(GLOX::WidgetEventCode::Drop, m_emitters.dropped, toGL(event));
    consumed(GLOX::WidgetEventCode::Drop) ? event->acceptProposedAction() : SceneViewer::dropEvent(event);
}

} // namespace VOR2
