// Node: draw style, flags, cache type, cursor, behaviour, focus and the
// node's signals.

#include <Node>

#include "scene/NodeCursorTable.h"
#include "scene/NodeEmitterTable.h"
#include "scene/NodeImpl.h"

#include <QGraphicsScene>
#include <cmath>

namespace VOR2 {

namespace {
bool hasFlag(NodeImpl *impl, QGraphicsItem::GraphicsItemFlag flag)
{
    return impl->getGraphicsItem()->flags() & flag;
}

// Sets or clears one item flag; answers whether it changed.
bool setFlag(NodeImpl *impl, QGraphicsItem::GraphicsItemFlag flag, bool on)
{
    if (hasFlag(impl, flag) == on) return false;
    impl->getGraphicsItem()->setFlag(flag, on);
    return true;
}
} // namespace

// Qt clamps the opacity to [0, 1]; a NaN, which has no place there, is
// ignored.
void Node::setOpacity(double opacity) const
{
    NodeImpl *impl = getValidImpl();
    if (std::isnan(opacity)) return;
    impl->getGraphicsItem()->setOpacity(opacity);
}
double Node::getOpacity() const { return getValidImpl()->getGraphicsItem()->opacity(); }

void Node::setDrawStyle(DrawStyle const &style) const { getValidImpl()->setDrawStyle(style); }
DrawStyle Node::getDrawStyle() const { return getValidImpl()->getDrawStyle(); }

void Node::setStroke(Stroke const &stroke) const
{
    DrawStyle style = getDrawStyle();
    style.setStroke(stroke);
    setDrawStyle(style);
}
Stroke Node::getStroke() const { return getValidImpl()->getDrawStyle().stroke(); }

void Node::setFill(Fill const &fill) const
{
    DrawStyle style = getDrawStyle();
    style.setFill(fill);
    setDrawStyle(style);
}
Fill Node::getFill() const { return getValidImpl()->getDrawStyle().fill(); }

void Node::setVisible(bool visible) const
{
    NodeImpl *impl = getValidImpl();
    QGraphicsItem *item = impl->getGraphicsItem();
    // Compares with the node's own setting, not what its ancestors imply.
    if (item->isVisibleTo(item->parentItem()) == visible) return;
    impl->holdQtItemUpdates();
    item->setVisible(visible);
    impl->notifyGeometryChanged(false);
}
bool Node::isVisible() const { return getValidImpl()->getGraphicsItem()->isVisible(); }

void Node::setClipsChildren(bool clips) const
{
    NodeImpl *impl = getValidImpl();
    if (setFlag(impl, QGraphicsItem::ItemClipsChildrenToShape, clips)) impl->notifyRepaint();
}
bool Node::isClipsChildren() const { return hasFlag(getValidImpl(), QGraphicsItem::ItemClipsChildrenToShape); }

void Node::setMovable(bool movable) const { setFlag(getValidImpl(), QGraphicsItem::ItemIsMovable, movable); }
bool Node::isMovable() const { return hasFlag(getValidImpl(), QGraphicsItem::ItemIsMovable); }

void Node::setSelectable(bool selectable) const
{
    setFlag(getValidImpl(), QGraphicsItem::ItemIsSelectable, selectable);
}
bool Node::isSelectable() const { return hasFlag(getValidImpl(), QGraphicsItem::ItemIsSelectable); }

void Node::setIgnoresTransformations(bool ignores) const
{
    setFlag(getValidImpl(), QGraphicsItem::ItemIgnoresTransformations, ignores);
}
bool Node::doesIgnoreTransformations() const
{
    return hasFlag(getValidImpl(), QGraphicsItem::ItemIgnoresTransformations);
}

void Node::setStacksBehindParent(bool behind) const
{
    setFlag(getValidImpl(), QGraphicsItem::ItemStacksBehindParent, behind);
}
bool Node::isStacksBehindParent() const { return hasFlag(getValidImpl(), QGraphicsItem::ItemStacksBehindParent); }

void Node::setCacheType(CacheType type) const
{
    NodeImpl *impl = getValidImpl();
    if (type != CacheType::None && type != CacheType::Self && type != CacheType::ChildrenTree) return;
    impl->setCacheType(type);
}
CacheType Node::getCacheType() const { return getValidImpl()->getCacheType(); }

// ------------------------------------------------------------------ cursor

bool Node::hasCursor() const { return NodeCursorTable::instance().has(getValidImpl()); }
GLOX::Cursor Node::getCursor() const { return NodeCursorTable::instance().get(getValidImpl()); }
void Node::setCursor(GLOX::Cursor const &cursor) const { NodeCursorTable::instance().set(getValidImpl(), cursor); }
void Node::unsetCursor() const { NodeCursorTable::instance().remove(getValidImpl()); }

// --------------------------------------------------------------- behaviour

Behavior *Node::getBehavior() const { return getValidImpl()->getBehavior(); }
void Node::setBehavior(Behavior *behavior) const { getValidImpl()->setBehavior(behavior); }
void Node::clearBehavior() const { getValidImpl()->clearBehavior(); }

// --------------------------------------------------------------- selection

void Node::setSelected(bool selected) const { getValidImpl()->getGraphicsItem()->setSelected(selected); }
bool Node::isSelected() const { return getValidImpl()->getGraphicsItem()->isSelected(); }
void Node::toggleSelected() const { setSelected(!isSelected()); }

bool Node::isAncestorSelected() const
{
    for (NodeImpl *p = getValidImpl()->getParentImpl(); p; p = p->getParentImpl())
        if (p->getGraphicsItem()->isSelected()) return true;
    return false;
}

// ------------------------------------------------------------------- focus

void Node::setFocus() const { setFocus(GLOX::OtherFocusReason); }

void Node::setFocus(GLOX::FocusReason reason) const
{
    getValidImpl()->getGraphicsItem()->setFocus(GLOX::GL2Qt(reason));
}

bool Node::hasFocus() const { return getValidImpl()->getGraphicsItem()->hasFocus(); }

void Node::clearFocus() const
{
    if (QGraphicsScene *scene = getValidImpl()->getGraphicsScene()) scene->clearFocus();
}

// ----------------------------------------------------------------- signals

void Node::disconnectFromMousePressEmitter(GLUV::Listener *listener) const
{
    auto *emitter = NodeEmitterTable::instance().mouse(NodeEmitterTable::MousePress, getValidImpl(), false);
    if (emitter) emitter->disconnect(listener);
}

void Node::disconnectFromMouseReleaseEmitter(GLUV::Listener *listener) const
{
    auto *emitter = NodeEmitterTable::instance().mouse(NodeEmitterTable::MouseRelease, getValidImpl(), false);
    if (emitter) emitter->disconnect(listener);
}

} // namespace VOR2
