#pragma once
// QtCanvas: the widget of a GLCanvas, made on the GUI thread by the
// QtWidgetFactory: a SceneViewer of the canvas's scene server. Input from
// the widget reaches the canvas's base scene once events are wired in.

#include "widget/SceneViewer.h"

namespace VOR2 {

class GLCanvas;

class QtCanvas : public SceneViewer {
    Q_OBJECT

public:
    // GUI thread.
    explicit QtCanvas(GLCanvas *canvas, QWidget *parent = nullptr);

    GLCanvas *canvas() const { return m_canvas; }

private:
    GLCanvas *m_canvas;
};

} // namespace VOR2
