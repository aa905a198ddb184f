#include "support/InputPlayback.h"

#include <GLCanvas>
#include <HostRuntime>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

namespace VOR2::test {

using namespace std::chrono_literals;

InputPlayback::InputPlayback(GLCanvas &canvas)
    : m_canvas(canvas), m_widget(static_cast<QAbstractScrollArea *>(canvas.getWidget()))
{
}

template <typename F>
void InputPlayback::play(F const &play)
{
    HostRuntime::bridge().runOnGui([&] { play(); }, true);
    HostRuntime::loop().runUntilIdle();
}

bool InputPlayback::show(int w, int h)
{
    QWidget *widget = m_widget;
    HostRuntime::bridge().runOnGui([widget, w, h] {
        widget->resize(w, h);
        widget->show();
        // The window system's own events (activation, focus) come now, not
        // in the middle of a test's input.
        QApplication::processEvents();
    }, true);
    bool shown = HostRuntime::loop().runUntil([&] { return m_canvas.getViewExtents().x > 0; }, 5000ms);
    HostRuntime::loop().runUntilIdle();
    return shown;
}

void InputPlayback::hide()
{
    QWidget *widget = m_widget;
    HostRuntime::bridge().runOnGui([widget] { widget->hide(); }, true);
}

namespace {
void sendMouse(QWidget *viewport, QEvent::Type type, QPointF at, Qt::MouseButton button, Qt::MouseButtons buttons,
               Qt::KeyboardModifiers modifiers)
{
    QPointF global = viewport->mapToGlobal(QPoint(0, 0)) + at;
    QMouseEvent e(type, at, at, global, button, buttons, modifiers);
    QApplication::sendEvent(viewport, &e);
}
} // namespace

void InputPlayback::press(QPointF at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    play([&] { sendMouse(m_widget->viewport(), QEvent::MouseButtonPress, at, button, button, modifiers); });
}

void InputPlayback::release(QPointF at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    play([&] { sendMouse(m_widget->viewport(), QEvent::MouseButtonRelease, at, button, {}, modifiers); });
}

void InputPlayback::move(QPointF at, Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    play([&] { sendMouse(m_widget->viewport(), QEvent::MouseMove, at, Qt::NoButton, buttons, modifiers); });
}

void InputPlayback::doubleClick(QPointF at, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    play([&] { sendMouse(m_widget->viewport(), QEvent::MouseButtonDblClick, at, button, button, modifiers); });
}

void InputPlayback::wheel(QPointF at, int degrees, Qt::KeyboardModifiers modifiers)
{
    play([&] {
        QWidget *viewport = m_widget->viewport();
        QPointF global = viewport->mapToGlobal(QPoint(0, 0)) + at;
        QWheelEvent e(at, global, QPoint(), QPoint(0, degrees * 8), Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QApplication::sendEvent(viewport, &e);
    });
}

void InputPlayback::keyPress(Qt::Key key, QString const &text, Qt::KeyboardModifiers modifiers, bool autoRepeat)
{
    play([&] {
        QKeyEvent e(QEvent::KeyPress, key, modifiers, text, autoRepeat);
        QApplication::sendEvent(m_widget, &e);
    });
}

void InputPlayback::keyRelease(Qt::Key key, QString const &text, Qt::KeyboardModifiers modifiers, bool autoRepeat)
{
    play([&] {
        QKeyEvent e(QEvent::KeyRelease, key, modifiers, text, autoRepeat);
        QApplication::sendEvent(m_widget, &e);
    });
}

void InputPlayback::focusIn(Qt::FocusReason reason)
{
    play([&] {
        QFocusEvent e(QEvent::FocusIn, reason);
        QApplication::sendEvent(m_widget, &e);
    });
}

void InputPlayback::focusOut(Qt::FocusReason reason)
{
    play([&] {
        QFocusEvent e(QEvent::FocusOut, reason);
        QApplication::sendEvent(m_widget, &e);
    });
}

void InputPlayback::enter()
{
    play([&] {
        QEnterEvent e{QPointF(), QPointF(), QPointF()};
        QApplication::sendEvent(m_widget, &e);
    });
}

void InputPlayback::leave()
{
    play([&] {
        QEvent e(QEvent::Leave);
        QApplication::sendEvent(m_widget, &e);
    });
}

void InputPlayback::contextMenuFromKeyboard(QPointF at)
{
    play([&] {
        QPoint local = at.toPoint();
        QContextMenuEvent e(QContextMenuEvent::Keyboard, local, m_widget->viewport()->mapToGlobal(local));
        QApplication::sendEvent(m_widget, &e);
    });
}

void InputPlayback::dragEnter(QPointF at, QString const &text)
{
    play([&] {
        m_dragData = std::make_shared<QMimeData>();
        m_dragData->setText(text);
        QDragEnterEvent e(at.toPoint(), Qt::CopyAction, m_dragData.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_widget->viewport(), &e);
    });
}

void InputPlayback::dragMove(QPointF at)
{
    play([&] {
        QDragMoveEvent e(at.toPoint(), Qt::CopyAction, m_dragData.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_widget->viewport(), &e);
    });
}

void InputPlayback::drop(QPointF at)
{
    play([&] {
        QDropEvent e(at, Qt::CopyAction, m_dragData.get(), Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_widget->viewport(), &e);
        m_dragData.reset();
    });
}

void InputPlayback::dragLeave()
{
    play([&] {
        QDragLeaveEvent e;
        QApplication::sendEvent(m_widget->viewport(), &e);
        m_dragData.reset();
    });
}

Qt::CursorShape InputPlayback::viewportCursor() const
{
    Qt::CursorShape shape = Qt::BitmapCursor;
    QAbstractScrollArea *w = m_widget;
    HostRuntime::bridge().runOnGui([&] { shape = w->viewport()->cursor().shape(); }, true);
    return shape;
}

bool InputPlayback::waitForViewportCursor(Qt::CursorShape shape) const
{
    return HostRuntime::loop().runUntil([&] { return viewportCursor() == shape; }, 5000ms);
}

} // namespace VOR2::test
