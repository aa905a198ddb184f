#pragma once
// QtCanvas: the widget of a GLCanvas, made on the GUI thread by the
// QtWidgetFactory: a SceneViewer of the canvas's scene server that
// broadcasts its input on the canvas's GLCanvasEmitters as foundation
// event values (positions in viewport pixels), which the host thread turns
// into library events for the base scene. The canvas says which events are
// broadcast and which it consumes: a consumed event gets no default
// handling from the scroll area (keys and the wheel do not scroll: the
// tools decide), any other goes on to it after the broadcast.
//
// It also arms a drag on a left press and announces it, from where the
// button went down, once the pointer has moved past the drag distance, and
// only if somebody listens. Context menus asked for from the keyboard are
// broadcast; a right button is input like any other, and the tools decide
// whether it asks for a menu.

#include "widget/SceneViewer.h"

#include "GLOX/GLWidgetEvents2.h"
#include "GLOX/WidgetEventCode.h"

namespace VOR2 {

class GLCanvas;
struct GLCanvasEmitters;

class QtCanvas : public SceneViewer {
    Q_OBJECT

public:
    // GUI thread.
    explicit QtCanvas(GLCanvas *canvas, QWidget *parent = nullptr);

    GLCanvas *canvas() const { return m_canvas; }

protected:
    bool event(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    // Tells the canvas where the viewport is on the screen; before every
    // broadcast, so that the host side reads the position of its event.
    void reportPosition();
    GLOX::GLMouseEvent2 toGL(QMouseEvent const *event, int rotation = 0) const;
    GLOX::GLKeyEvent2 toGL(QKeyEvent const *event) const;
    GLOX::GLDragEvent2 toGL(QDropEvent const *event) const;
    // Sends `value` on `emitter` if the canvas broadcasts `code`.
    template <typename Emitter, typename Value>
    void broadcast(GLOX::WidgetEventCode code, Emitter &emitter, Value const &value);
    bool consumed(GLOX::WidgetEventCode code) const;

    GLCanvas *m_canvas;
    GLCanvasEmitters &m_emitters;
    QPointF m_pressPos; // viewport pixels
    QPointF m_pressGlobalPos;
    bool m_dragArmed = false;
    int m_wheelEighths = 0; // turned but not yet a whole degree
};

} // namespace VOR2
