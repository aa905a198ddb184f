// SelectionTool: its state table, the routing of events to the current
// row, and the decisions a derived tool may change.

#include <SelectionTool>

#include <TextNode>

#include <Behavior>
#include <ContextMenuEvent>
#include <KeyEvent>
#include <MouseEvent>
#include <Scene>

#include "scene/NodeImpl.h"
#include "tools/DragThreshold.h"

namespace VOR2 {

namespace {

using Row = CallbackToolState<SelectionTool>::Row;

// A press of nothing: no canvas, zero positions, no buttons.
std::unique_ptr<MouseEvent> blankPress()
{
    return std::make_unique<MouseEvent>(EventType::MousePress, nullptr, GLOX::GLPoint<double>(),
                                        GLOX::GLPoint<double>(), GLOX::GLPoint<double>(), 0, Qt::NoButton,
                                        GLOX::GLFlags<GLOX::MouseButton>(), GLOX::GLFlags<GLOX::Modifier>());
}

} // namespace

// Rows in the order of the table in the header: press, move, release, key
// press, key release, context menu.
SelectionTool::SelectionTool(Scene *scene) : m_scene(scene), m_lastMousePress(blankPress())
{
    using T = SelectionTool;
    Row const rows[5] = {
        {&T::mousePressWhenIdle, nullptr, nullptr, &T::keyPressWhenIdle, nullptr, nullptr},
        {nullptr, &T::mouseMoveWhenOverMovable, &T::mouseUpOverSelectable, nullptr, nullptr, &T::contextMenuInvoked},
        {nullptr, &T::mouseMoveOverOther, &T::mouseUpOverSelectable, nullptr, nullptr, &T::contextMenuInvoked},
        {nullptr, &T::mouseMoveWhenOverMovable, &T::mouseUpOverMovable, nullptr, nullptr, &T::contextMenuInvoked},
        {nullptr, &T::mouseMoveOverOther, &T::mouseUpOverOther, nullptr, nullptr, &T::contextMenuInvoked},
    };
    for (int i = 0; i < 5; ++i) m_states[i] = std::make_unique<CallbackToolState<SelectionTool>>(*this, rows[i]);
    m_currentState = m_states[Idle].get();
}

SelectionTool::~SelectionTool() = default;

SelectionTool &SelectionTool::operator=(SelectionTool &other)
{
    if (this == &other) return *this;
    m_scene = other.m_scene;
    // The source gives up its press; it gets a blank one so that it stays
    // usable instead of holding a null press.
    m_lastMousePress = std::move(other.m_lastMousePress);
    other.m_lastMousePress = blankPress();
    m_pressedNode = other.m_pressedNode;
    m_pressedTextNode = other.m_pressedTextNode;
    m_pressedNodeWasSelected = other.m_pressedNodeWasSelected;
    for (int i = 0; i < 5; ++i)
        if (other.m_currentState == other.m_states[i].get()) m_currentState = m_states[i].get();
    return *this;
}

void SelectionTool::handleMousePressEvent(MouseEvent &event)
{
    state().handleMousePressEvent(event);
    if (!event.isConsumed()) m_scene->passMousePressEventToNode(event);
}

void SelectionTool::handleMouseMoveEvent(MouseEvent &event)
{
    state().handleMouseMoveEvent(event);
    if (!event.isConsumed()) m_scene->passMouseMoveEventToNode(event);
}

void SelectionTool::handleMouseReleaseEvent(MouseEvent &event)
{
    state().handleMouseReleaseEvent(event);
    if (!event.isConsumed()) m_scene->passMouseReleaseEventToNode(event);
}

void SelectionTool::handleKeyPressEvent(KeyEvent &event) { state().handleKeyPressEvent(event); }
void SelectionTool::handleKeyReleaseEvent(KeyEvent &event) { state().handleKeyReleaseEvent(event); }

void SelectionTool::deselectAll() const
{
    m_scene->clearFocus();
    m_scene->deselectAll();
}

void SelectionTool::setNodeSelected(Node node, bool selected) const { node.setSelected(selected); }
void SelectionTool::setAsCurrentNode(Node) const {}
void SelectionTool::setState(int row) { m_currentState = m_states[row].get(); }
ToolState const &SelectionTool::state() { return *m_currentState; }

int SelectionTool::getStateRow() const
{
    for (int i = 0; i < 5; ++i)
        if (m_currentState == m_states[i].get()) return i;
    return Idle;
}

bool SelectionTool::extendSelection(MouseEvent const &event) const
{
    return event.modifiers().testFlag(Qt::ShiftModifier);
}

bool SelectionTool::movedEnough(MouseEvent const &event) const
{
    return hasLeftPress(m_lastMousePress->pos(), event.pos());
}

bool SelectionTool::pressedNodeIsSelectable() const { return m_pressedNode.isValid() && m_pressedNode.isSelectable(); }
bool SelectionTool::pressedNodeIsMovable() const { return m_pressedNode.isValid() && m_pressedNode.isMovable(); }
bool SelectionTool::editableTextUnderMousePress() const { return isEditableText(m_pressedTextNode); }

bool SelectionTool::shouldInvokeBehavior() const
{
    return m_pressedNode.isValid() && m_pressedNode.getBehavior() != nullptr;
}

void SelectionTool::invokeMoveTool(KeyEvent &) {}
void SelectionTool::invokeMoveTool(MouseEvent &) {}

bool SelectionTool::isEditableText(Node const &node) const
{
    TextNode const text(node.getImpl());
    return text.isValid() && text.isEditable();
}

// The text's focus in puts the editing tool on the stack. The replayed
// press and release place the caret at the pointer; with select-all on
// focus they would undo the selection, and are left out.
void SelectionTool::enterTextEditing(Node text, MouseEvent *event)
{
    text.setFocus(GLOX::MouseFocusReason);
    TextNode const textNode(text.getImpl());
    if (textNode.isValid() && text.hasFocus() && !textNode.isFocusSelectAll()) {
        MouseEvent press(EventType::MousePress, event->getGLEvent());
        text.getImpl()->emitMousePressEvent(press);
        MouseEvent release(EventType::MouseRelease, event->getGLEvent());
        text.getImpl()->emitMouseReleaseEvent(release);
    }
    event->consume();
}

bool SelectionTool::nodeHandlesEvents(Node const &node) const
{
    return node.isVisible() && (node.isSelectable() || node.isMovable() || node.getBehavior() != nullptr);
}

void SelectionTool::findEventHandlingNodes(Node const &node, Node &handler, Node &text) const
{
    handler = Node();
    text = Node();
    Node n = node;
    while (n.isValid()) {
        if (isEditableText(n)) text = n;
        if (nodeHandlesEvents(n)) break;
        n = n.getParent();
    }
    handler = n;
}

void SelectionTool::toggleSelectedNode() { setNodeSelected(m_pressedNode, !m_pressedNode.isSelected()); }

void SelectionTool::contextMenuInvoked(ContextMenuEvent &) { setState(Idle); }

} // namespace VOR2
