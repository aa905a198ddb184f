// SelectionTool: what a press, a move, a release and a key press mean in
// each row of the state table.

#include <SelectionTool>

#include <Behavior>
#include <KeyEvent>
#include <MarqueeSelectionTool>
#include <MouseEvent>
#include <Scene>

#include "ut/Assert.h"

namespace VOR2 {

namespace {

// The pan tool takes the middle button and Space; it is made by role.
GLOX::StringID const PAN_TOOL_ROLE("PanZoomTool");

int buttonOf(MouseEvent const &event) { return static_cast<int>(event.button()); }

} // namespace

void SelectionTool::mousePressWhenIdle(MouseEvent &event)
{
    m_lastMousePress = std::make_unique<MouseEvent>(event);
    findEventHandlingNodes(m_scene->getNodeAt(event.scenePos()), m_pressedNode, m_pressedTextNode);
    m_pressedNodeWasSelected = m_pressedNode.isValid() && m_pressedNode.isSelected();

    if (buttonOf(event) == Qt::MiddleButton) {
        Tool *pan = m_scene->addToolByRole(PAN_TOOL_ROLE);
        ut_assert(pan != nullptr);
        m_scene->delegateToTool(pan, event);
        return;
    }
    if (!editableTextUnderMousePress() && buttonOf(event) == Qt::LeftButton) m_scene->clearFocus();

    if (shouldInvokeBehavior()) {
        Behavior *behavior = m_pressedNode.getBehavior();
        // The stack holds the behaviour from here on; keep it alive through
        // the press in case the node lets go of it meanwhile.
        GLOX::Holder<Tool> hold(behavior);
        if (!m_scene->hasTool(behavior))
            m_scene->addTool(behavior, m_scene->getUniqueToolRoleBasedOn(behavior->getDefaultRole()));
        behavior->handleMousePressEvent(event);
        if (event.isConsumed()) return;
    }

    if (pressedNodeIsSelectable()) {
        if (!m_pressedNode.isSelected() && pressedNodeIsMovable()) {
            if (!extendSelection(event)) deselectAll();
            toggleSelectedNode();
        } else {
            setNodeSelected(m_pressedNode, m_pressedNode.isSelected());
        }
        setState(pressedNodeIsMovable() ? OverSelectableMovable : OverSelectable);
    } else {
        if (!extendSelection(event)) deselectAll();
        setState(pressedNodeIsMovable() ? OverMovable : OverOther);
    }
}

void SelectionTool::mouseMoveWhenOverMovable(MouseEvent &event)
{
    int pressButton = buttonOf(*m_lastMousePress);
    if ((movedEnough(event) && pressButton == Qt::LeftButton) || pressButton == Qt::RightButton) {
        invokeMoveTool(event);
        setState(Idle);
    }
}

void SelectionTool::mouseMoveOverOther(MouseEvent &event)
{
    if (movedEnough(event) && buttonOf(*m_lastMousePress) == Qt::LeftButton) {
        invokeMarqueeTool(event);
        setState(Idle);
    }
}

void SelectionTool::mouseUpOverMovable(MouseEvent &event)
{
    if (event.button() != m_lastMousePress->button()) return;
    if (!movedEnough(event) && buttonOf(event) == Qt::LeftButton && editableTextUnderMousePress())
        enterTextEditing(m_pressedTextNode, &event);
    setState(Idle);
    if (buttonOf(event) == Qt::RightButton) invokeContextMenu(event);
}

void SelectionTool::mouseUpOverOther(MouseEvent &event)
{
    if (event.button() != m_lastMousePress->button()) return;
    setState(Idle);
    if (buttonOf(event) == Qt::RightButton) invokeContextMenu(event);
    if (!movedEnough(event) && buttonOf(event) == Qt::LeftButton && editableTextUnderMousePress())
        enterTextEditing(m_pressedTextNode, &event);
}

void SelectionTool::mouseUpOverSelectable(MouseEvent &event)
{
    if (event.button() != m_lastMousePress->button()) return;
    if (m_pressedNode.isSelected() && m_pressedNodeWasSelected) {
        if (extendSelection(*m_lastMousePress) && extendSelection(event)) {
            toggleSelectedNode();
            setAsCurrentNode(m_pressedNode);
        }
    } else if (!m_pressedNode.isSelected() && !pressedNodeIsMovable()) {
        if (!extendSelection(event)) deselectAll();
        toggleSelectedNode();
    }
    mouseUpOverMovable(event);
}

void SelectionTool::keyPressWhenIdle(KeyEvent &event)
{
    GLOX::Key key = event.key();
    if (key == Qt::Key_Space) {
        Tool *pan = m_scene->addToolByRole(PAN_TOOL_ROLE);
        ut_assert(pan != nullptr);
        m_scene->delegateToTool(pan, event);
    }
    if (key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Left || key == Qt::Key_Right) invokeMoveTool(event);
    if (key == Qt::Key_Menu) invokeContextMenu(event);
    setState(Idle);
}

void SelectionTool::invokeMarqueeTool(MouseEvent &event)
{
    auto *marquee =
        dynamic_cast<MarqueeSelectionTool *>(m_scene->addToolByRole(MarqueeSelectionTool::staticGetDefaultRole()));
    ut_assert(marquee != nullptr);
    marquee->setInitialPosition(m_lastMousePress->scenePos());
    marquee->handleMouseMoveEvent(event);
}

} // namespace VOR2
