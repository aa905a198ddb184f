#pragma once
// The demo's own tool: it shows in the window's title where the pointer is
// in scene coordinates and which kind of node is under it, zooms about the
// pointer with the wheel, and shows a pointing hand over nodes. Host
// thread, like every tool.

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
    std::optional<GLOX::Cursor> overrideCursor() override { return m_cursor; }

    void handleMouseMoveEvent(VOR2::MouseEvent &event) override;
    void handleWheelEvent(VOR2::MouseEvent &event) override;

private:
    VOR2::Scene *m_scene;
    QPointer<QWidget> m_window; // GUI thread object: its title is set there, while it lives
    std::optional<GLOX::Cursor> m_cursor;
};

} // namespace demo
