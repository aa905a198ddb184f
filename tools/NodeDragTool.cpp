// NodeDragTool: the nodes follow the pointer; Escape puts them back.

#include "tools/NodeDragTool.h"

#include <KeyEvent>
#include <MouseEvent>

namespace VOR2 {

NodeDragTool::NodeDragTool(Scene *scene, GLOX::GList<Node> const &nodes, GLOX::GLPoint<double> const &anchor,
                           GLOX::MouseButton button)
    : m_scene(scene), m_anchor(anchor), m_button(button)
{
    for (Node const &node : nodes) m_nodes.append(Moved{node, node.getScenePosition()});
}

void NodeDragTool::placeAt(GLOX::GLPoint<double> const &offset)
{
    for (Moved const &m : m_nodes)
        if (m.node.getScene() == m_scene)
            m.node.setScenePosition(GLOX::GLPoint<double>(m.start.x + offset.x, m.start.y + offset.y));
}

void NodeDragTool::handleMouseMoveEvent(MouseEvent &event)
{
    event.consume();
    if (m_done) return;
    GLOX::GLPoint<double> const &p = event.scenePos();
    placeAt(GLOX::GLPoint<double>(p.x - m_anchor.x, p.y - m_anchor.y));
}

void NodeDragTool::handleMouseReleaseEvent(MouseEvent &event)
{
    event.consume();
    if (event.button() == m_button) m_done = true;
}

void NodeDragTool::handleKeyPressEvent(KeyEvent &event)
{
    event.consume();
    if (event.key() == Qt::Key_Escape && !m_done) {
        placeAt(GLOX::GLPoint<double>(0, 0));
        m_done = true;
    }
}

void NodeDragTool::handleKeyReleaseEvent(KeyEvent &event) { event.consume(); }

} // namespace VOR2
