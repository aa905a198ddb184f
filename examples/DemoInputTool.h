#pragma once
// The demo's own tool: it shows in the window's title where the pointer is
// in scene coordinates and which kind of node is under it. It consumes
// nothing: the scene's own tools below it select, drag, pan, zoom and set
// the cursor. Host thread, like every tool.

#include <Scene>
#include <Tool>

#include <QPointer>
#include <QWidget>

namespace demo {

class DemoInputTool : public VOR2::Tool {
public:
    DemoInputTool(VOR2::Scene *scene, QWidget *window) : m_scene(scene), m_window(window) {}

    bool isDone() const override { return false; }
    GLOX::StringID getDefaultRole() const override { return "DemoInputTool"; }
    void handleMouseMoveEvent(VOR2::MouseEvent &event) override;

private:
    VOR2::Scene *m_scene;
    QPointer<QWidget> m_window; // GUI thread object: its title is set there, while it lives
};

} // namespace demo
