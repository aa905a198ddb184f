#pragma once
// InputPlayback: plays input into a canvas through the real path, for tests
// that run the host thread and the GUI thread (tests/mains/TwoThreadMain).
// Each call sends one Qt event on the GUI thread to the widget that the
// window system would deliver it to (the viewport for pointer input, the
// canvas widget for keys, focus, enter and leave), waits for that, and
// then runs the host loop until what the widget broadcast has reached the
// scene's tools. Positions are viewport pixels. Call from the host thread.

#include <QMimeData>
#include <QPointF>
#include <Qt>
#include <memory>

class QAbstractScrollArea;

namespace VOR2 {
class GLCanvas;
}

namespace VOR2::test {

class InputPlayback {
public:
    explicit InputPlayback(GLCanvas &canvas);

    // Shows the widget at w by h and waits until the host has a view of
    // that size; false when it never came. The events of showing a window
    // (focus) have been delivered when it returns.
    bool show(int w, int h);
    void hide();

    void press(QPointF at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {});
    void release(QPointF at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {});
    void move(QPointF at, Qt::MouseButtons buttons = {}, Qt::KeyboardModifiers modifiers = {});
    void doubleClick(QPointF at, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers modifiers = {});
    // `degrees` of wheel turn, 15 per notch, positive away from the user.
    void wheel(QPointF at, int degrees, Qt::KeyboardModifiers modifiers = {});
    void keyPress(Qt::Key key, QString const &text = {}, Qt::KeyboardModifiers modifiers = {}, bool autoRepeat = false);
    void keyRelease(Qt::Key key, QString const &text = {}, Qt::KeyboardModifiers modifiers = {},
                    bool autoRepeat = false);
    void focusIn(Qt::FocusReason reason = Qt::MouseFocusReason);
    void focusOut(Qt::FocusReason reason = Qt::MouseFocusReason);
    void enter();
    void leave();
    // The menu key, with the pointer at `at`.
    void contextMenuFromKeyboard(QPointF at);
    // A drag of `text` as "text/plain": in, across, and dropped or gone.
    void dragEnter(QPointF at, QString const &text);
    void dragMove(QPointF at);
    void drop(QPointF at);
    void dragLeave();

    QAbstractScrollArea *widget() const { return m_widget; }

    // The cursor shape the viewport shows, read on the GUI thread.
    Qt::CursorShape viewportCursor() const;
    // Runs the host loop until the viewport shows `shape` (the widget hears
    // of a cursor change by a queued call on its thread); false when it
    // never does.
    bool waitForViewportCursor(Qt::CursorShape shape) const;

private:
    // Runs `play` on the GUI thread, then the host loop until idle.
    template <typename F>
    void play(F const &play);

    GLCanvas &m_canvas;
    QAbstractScrollArea *m_widget;
    std::shared_ptr<QMimeData> m_dragData; // made and dropped on the GUI thread
};

} // namespace VOR2::test
