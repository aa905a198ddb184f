// ScenePrivate: event entry, node hover and the pass* operations that
// tools use to hand input to nodes.

#include "scene/ScenePrivate.h"

#include <ContextMenuEvent>
#include <DragEvent>
#include <FocusEvent>
#include <GLCanvas>
#include <GlobalViewerInfo>
#include <KeyEvent>
#include <MouseEvent>
#include <WidgetEvent>

#include "scene/NodeImpl.h"
#include "values/UsableNumber.h"

namespace VOR2 {

template <typename E>
void ScenePrivate::enter(E &event, void (ToolStack::*operation)(E &))
{
    if (GLCanvas *canvas = event.canvas())
        GlobalViewerInfo::instance()->setCurrentView(canvas->getKey(), canvas->getScale());
    if constexpr (std::is_same_v<E, MouseEvent>) {
        if (event.type() == EventType::MouseMove) updateHover(event);
    } else if constexpr (std::is_same_v<E, WidgetEvent>) {
        if (event.type() == EventType::LeaveCanvas) endHover();
    }
    (m_toolStack.*operation)(event);
}

void ScenePrivate::handleMouseMoveEvent(MouseEvent &e) { enter(e, &ToolStack::handleMouseMoveEvent); }
void ScenePrivate::handleMousePressEvent(MouseEvent &e) { enter(e, &ToolStack::handleMousePressEvent); }
void ScenePrivate::handleMouseReleaseEvent(MouseEvent &e) { enter(e, &ToolStack::handleMouseReleaseEvent); }
void ScenePrivate::handleMouseDoubleClickEvent(MouseEvent &e) { enter(e, &ToolStack::handleMouseDoubleClickEvent); }
void ScenePrivate::handleUserDragInitEvent(MouseEvent &e) { enter(e, &ToolStack::handleUserDragInitEvent); }
void ScenePrivate::handleDragEnterEvent(DragEvent &e) { enter(e, &ToolStack::handleDragEnterEvent); }
void ScenePrivate::handleDragLeaveEvent(WidgetEvent &e) { enter(e, &ToolStack::handleDragLeaveEvent); }
void ScenePrivate::handleDragEvent(DragEvent &e) { enter(e, &ToolStack::handleDragEvent); }
void ScenePrivate::handleDropEvent(DragEvent &e) { enter(e, &ToolStack::handleDropEvent); }
void ScenePrivate::handleFocusInEvent(FocusEvent &e) { enter(e, &ToolStack::handleFocusInEvent); }
void ScenePrivate::handleFocusOutEvent(FocusEvent &e) { enter(e, &ToolStack::handleFocusOutEvent); }
void ScenePrivate::handleEnterCanvasEvent(WidgetEvent &e) { enter(e, &ToolStack::handleEnterCanvasEvent); }
void ScenePrivate::handleLeaveCanvasEvent(WidgetEvent &e) { enter(e, &ToolStack::handleLeaveCanvasEvent); }
void ScenePrivate::handleContextMenuEvent(ContextMenuEvent &e) { enter(e, &ToolStack::handleContextMenuEvent); }
void ScenePrivate::handleWheelEvent(MouseEvent &e) { enter(e, &ToolStack::handleWheelEvent); }
void ScenePrivate::handleKeyPressEvent(KeyEvent &e) { enter(e, &ToolStack::handleKeyPressEvent); }
void ScenePrivate::handleKeyReleaseEvent(KeyEvent &e) { enter(e, &ToolStack::handleKeyReleaseEvent); }

// ------------------------------------------------------------------- hover

NodeImpl *ScenePrivate::nodeAt(GLOX::GLPoint<double> const &scenePos) const
{
    if (!isUsable(scenePos)) return nullptr; // an event at no real place hits nothing
    return NodeImpl::fromItem(topmostItemAt(GLOX::toQPointF(scenePos)));
}

void ScenePrivate::updateHover(MouseEvent &event)
{
    Node node(nodeAt(event.scenePos()));
    Node hovered = m_hoveredNode.promote();
    if (node.isValid() && node != hovered) {
        if (hovered.isValid()) hovered.getImpl()->emitHoverExitEvent(event);
        m_hoveredNode = node;
        node.getImpl()->emitHoverEnterEvent(event);
    } else if (node.isValid()) {
        node.getImpl()->emitHoverMoveEvent(event);
    } else if (hovered.isValid()) {
        m_hoveredNode.clear();
        hovered.getImpl()->emitHoverExitEvent(event);
    }
}

void ScenePrivate::endHover()
{
    Node hovered = m_hoveredNode.promote();
    if (!hovered.isValid()) return;
    m_hoveredNode.clear();
    MouseEvent exit(EventType::MouseMove, nullptr, {}, {}, {}, 0, Qt::NoButton, {}, {});
    hovered.getImpl()->emitHoverExitEvent(exit);
}

// --------------------------------------------------------- input for nodes

void ScenePrivate::passMousePressEventToNode(MouseEvent &event)
{
    if (NodeImpl *node = nodeAt(event.scenePos())) node->emitMousePressEvent(event);
}

void ScenePrivate::passMouseMoveEventToNode(MouseEvent &event)
{
    if (NodeImpl *node = nodeAt(event.scenePos())) node->emitMouseMoveEvent(event);
}

void ScenePrivate::passMouseReleaseEventToNode(MouseEvent &event)
{
    if (NodeImpl *node = nodeAt(event.scenePos())) node->emitMouseReleaseEvent(event);
}

void ScenePrivate::passKeyPressEventToNode(KeyEvent &event)
{
    QGraphicsItem *focus = focusItem();
    NodeImpl *node = focus ? NodeImpl::fromItem(focus) : nullptr;
    if (node && node->isa("VOR2.TextNode")) node->emitKeyPressEvent(event);
}

} // namespace VOR2
