// MoveSelectionTool: the selection tool's move hooks filled in, a drag and
// the arrow keys.

#include <MoveSelectionTool>

#include <KeyEvent>
#include <MouseEvent>
#include <Scene>

#include "tools/NodeDragTool.h"

namespace VOR2 {

namespace {

bool isArrow(GLOX::Key key)
{
    return key == Qt::Key_Left || key == Qt::Key_Right || key == Qt::Key_Up || key == Qt::Key_Down;
}

} // namespace

GLOX::GLPoint<double> nudgeOffset(GLOX::Key key, GLOX::GLFlags<GLOX::Modifier> modifiers)
{
    double step = modifiers.testFlag(Qt::ShiftModifier) ? MoveSelectionTool::NUDGE_STEP_WITH_SHIFT
                                                        : MoveSelectionTool::NUDGE_STEP;
    switch (key) {
    case Qt::Key_Left: return {-step, 0};
    case Qt::Key_Right: return {step, 0};
    case Qt::Key_Up: return {0, -step};
    case Qt::Key_Down: return {0, step};
    default: return {0, 0};
    }
}

MoveSelectionTool::MoveSelectionTool(Scene *scene) : SelectionTool(scene) {}

void MoveSelectionTool::handleKeyPressEvent(KeyEvent &event)
{
    // The base tool sees no repeated key: a held Space or Menu key would
    // otherwise act again at each repeat.
    if (!event.isAutoRepeat()) {
        SelectionTool::handleKeyPressEvent(event);
    } else if (isArrow(event.key()) && getStateRow() == Idle) {
        invokeMoveTool(event);
    }
}

void MoveSelectionTool::invokeMoveTool(KeyEvent &event)
{
    GLOX::GLPoint<double> offset = nudgeOffset(event.key(), event.modifiers());
    GLOX::GList<Node> nodes = nodesToMove();
    if (nodes.isEmpty() || (offset.x == 0 && offset.y == 0)) return;
    for (Node const &node : nodes) {
        GLOX::GLPoint<double> p = node.getScenePosition();
        node.setScenePosition(GLOX::GLPoint<double>(p.x + offset.x, p.y + offset.y));
    }
    event.consume();
}

void MoveSelectionTool::invokeMoveTool(MouseEvent &event)
{
    GLOX::GList<Node> nodes = nodesToMove();
    if (nodes.isEmpty()) return;
    MouseEvent const &press = lastMousePressEvent();
    GLOX::Holder<NodeDragTool> drag(new NodeDragTool(getScene(), nodes, press.scenePos(), press.button()));
    getScene()->addTool(drag.get(), getScene()->getUniqueToolRoleBasedOn(drag->getDefaultRole()));
    drag->handleMouseMoveEvent(event);
}

GLOX::GList<Node> MoveSelectionTool::nodesToMove() const
{
    auto moves = [](Node const &n) { return n.isSelected() && n.isMovable(); };
    GLOX::GList<Node> nodes;
    for (Node const &node : getScene()->getAllSelectedNodes()) {
        if (!node.isMovable()) continue;
        bool carried = false;
        for (Node up = node.getParent(); up.isValid() && !carried; up = up.getParent()) carried = moves(up);
        if (!carried) nodes.append(node);
    }
    return nodes;
}

} // namespace VOR2
