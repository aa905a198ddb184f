#pragma once
// QtCanvas: the widget of a GLCanvas, made on the GUI thread by the
// QtWidgetFactory: a SceneViewer of the canvas's scene server that also
// arms a drag on a left press and announces it, from where the button went
// down, once the pointer has moved past the drag distance and only if
// somebody listens. Further input reaches the scene once events are wired
// in.

#include "GLUV/Emitter.h"
#include "widget/SceneViewer.h"
#include "widget/UserDragStart.h"

namespace VOR2 {

class GLCanvas;

class QtCanvas : public SceneViewer {
    Q_OBJECT

public:
    // GUI thread.
    explicit QtCanvas(GLCanvas *canvas, QWidget *parent = nullptr);

    GLCanvas *canvas() const { return m_canvas; }

    // Sent on the GUI thread, at most once per press.
    GLUV::Emitter<void (*)(UserDragStart)> userDragInit{GLUV::SendAuto};

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    GLCanvas *m_canvas;
    QPoint m_pressPos;
    QPoint m_pressGlobalPos;
    QPoint m_pressTopLevelPos;
    bool m_dragArmed = false;
};

} // namespace VOR2
