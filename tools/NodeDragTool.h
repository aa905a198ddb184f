#pragma once
// NodeDragTool: one drag of a set of nodes, put on the stack by
// MoveSelectionTool. Each move places every node at its position at the
// start plus the pointer's distance from the anchor, in scene coordinates,
// so rounding never accumulates. The release of the button that started
// the drag ends it; Escape ends it too and puts every node back. It
// swallows the moves, the release and every key while it lives. A node
// that has left the scene meanwhile is left alone. Host thread only.

#include <Node>
#include <Tool>

#include "GLOX/Containers.h"
#include "GLOX/GLPoint.h"
#include "GLOX/InputTypes.h"

namespace VOR2 {

class Scene;

class NodeDragTool : public Tool {
public:
    // Remembers where each node stands now, in scene coordinates.
    NodeDragTool(Scene *scene, GLOX::GList<Node> const &nodes, GLOX::GLPoint<double> const &anchor,
                 GLOX::MouseButton button);

    static GLOX::StringID staticGetDefaultRole() { return "NodeDragTool"; }
    GLOX::StringID getDefaultRole() const override { return staticGetDefaultRole(); }
    bool isDone() const override { return m_done; }

    void handleMouseMoveEvent(MouseEvent &event) override;
    void handleMouseReleaseEvent(MouseEvent &event) override;
    void handleKeyPressEvent(KeyEvent &event) override;
    void handleKeyReleaseEvent(KeyEvent &event) override;

private:
    void placeAt(GLOX::GLPoint<double> const &offset);

    struct Moved {
        Node node;
        GLOX::GLPoint<double> start;
    };
    Scene *m_scene;
    GLOX::GList<Moved> m_nodes;
    GLOX::GLPoint<double> m_anchor;
    GLOX::MouseButton m_button;
    bool m_done = false;
};

} // namespace VOR2
