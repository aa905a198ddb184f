#include <TextSelectionTool>

#include <KeyEvent>
#include <MouseEvent>
#include <Scene>

#include "scene/NodeImpl.h"

namespace VOR2 {

GLOX::StringID TextSelectionTool::staticGetDefaultRole()
{
    static GLOX::StringID const role("TextSelectionTool");
    return role;
}

// The target, held for the length of the hand-over: the node's own
// handlers may remove it from its scene.
template <typename E>
void TextSelectionTool::handOver(E &event, void (NodeImpl::*operation)(E &))
{
    Node target = m_target.promote();
    if (target.isValid()) (target.getImpl()->*operation)(event);
}

void TextSelectionTool::handleMousePressEvent(MouseEvent &event)
{
    Node target = m_target.promote();
    Node const hit = m_scene->getNodeAt(event.scenePos());
    if (target.isValid() && hit == target) {
        handOver(event, &NodeImpl::emitMousePressEvent);
        return;
    }
    // The node's own children (its delete button) have the press first.
    bool const onChild = target.isValid() && isWithin(hit, target);
    if (onChild) {
        hit.getImpl()->emitMousePressEvent(event);
        if (event.isConsumed()) return;
    }
    m_done = true; // not consumed: the tools below act on the press
    if (target.isValid() && !onChild) leave(target);
}

bool TextSelectionTool::isWithin(Node node, Node const &ancestor)
{
    for (; node.isValid(); node = node.getParent())
        if (node == ancestor) return true;
    return false;
}

void TextSelectionTool::leave(Node const &target)
{
    if (target.getScene() && target.hasFocus()) target.clearFocus();
}

void TextSelectionTool::handleMouseMoveEvent(MouseEvent &event)
{
    handOver(event, &NodeImpl::emitMouseMoveEvent);
}

void TextSelectionTool::handleMouseReleaseEvent(MouseEvent &event)
{
    handOver(event, &NodeImpl::emitMouseReleaseEvent);
}

void TextSelectionTool::handleKeyPressEvent(KeyEvent &event)
{
    if (event.key() == Qt::Key_Escape) {
        m_done = true;
        event.consume();
        Node target = m_target.promote();
        if (target.isValid()) leave(target);
        return;
    }
    handOver(event, &NodeImpl::emitKeyPressEvent);
}

void TextSelectionTool::handleKeyReleaseEvent(KeyEvent &event)
{
    handOver(event, &NodeImpl::emitKeyReleaseEvent);
}

} // namespace VOR2
