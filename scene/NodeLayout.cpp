// NodeImpl as a layout container of its children and a layout item of its
// parent, and the constraint flags of Node.

#include <Node>

#include "scene/NodeImpl.h"
#include "values/UsableNumber.h"

#include <cmath>

namespace VOR2 {

namespace {
bool isConstraint(LayoutConstraints c) { return int(c) >= int(LayoutConstraints::None) && int(c) <= int(LayoutConstraints::FlexibleHeight); }

// The factor that makes `extent` `wanted`; 1 for an extent of nothing or a
// quotient that is not a number a transform can hold.
double layoutFactor(double wanted, double extent)
{
    if (extent == 0) return 1.0;
    double const f = wanted / extent;
    return isUsable(f) ? f : 1.0;
}
} // namespace

QList<LayoutItem *> NodeImpl::getLayoutItems()
{
    QList<LayoutItem *> items;
    for (QGraphicsItem *child : getGraphicsItem()->childItems())
        if (NodeImpl *node = fromItem(child)) items.append(node);
    return items;
}

bool NodeImpl::hasLayoutItems() { return !getGraphicsItem()->childItems().isEmpty(); }

GLOX::GLRect<double> NodeImpl::getLayoutRect() { return getBounds().boundingRect(); }

GLOX::GLRect<double> NodeImpl::getLayoutBounds()
{
    GLOX::GLRect<double> const r = getBounds().boundingRect();
    QGraphicsItem const *item = getGraphicsItem();
    QGraphicsItem const *parent = item->parentItem();
    if (!parent) return r;
    return GLOX::toDRect(item->itemTransform(parent).mapRect(GLOX::toQRectF(r)));
}

void NodeImpl::setLayoutSize(double width, double height)
{
    GLOX::GLRect<double> const r = getBounds().boundingRect();
    QTransform const t = QTransform::fromScale(layoutFactor(width, r.width), layoutFactor(height, r.height));
    QGraphicsItem *item = getGraphicsItem();
    if (item->transform() == t) return;
    holdQtItemUpdates();
    item->setTransform(t);
    notifyGeometryChanged(false);
}

void NodeImpl::setLayoutPosition(GLOX::GLPoint<double> const &p)
{
    GLOX::GLRect<double> const b = getLayoutBounds();
    QPointF const pos = getGraphicsItem()->pos();
    // The node is attached (it has a parent): the handle's count is not its last.
    Node(this).setPosition(GLOX::GLPoint<double>(pos.x() + (p.x - b.x), pos.y() + (p.y - b.y)));
}

void NodeImpl::setLayoutConstraintFlag(LayoutConstraints constraint, bool on)
{
    if (!isConstraint(constraint)) return;
    std::uint32_t const bit = std::uint32_t(1) << int(constraint);
    constraints = on ? (constraints | bit) : (constraints & ~bit);
    if (constraints != 0)
        if (NodeImpl *parent = getParentImpl()) parent->m_constrainedChildHint = true;
}

bool NodeImpl::getLayoutConstraintFlag(LayoutConstraints constraint) const
{
    if (!isConstraint(constraint)) return false;
    return constraints & (std::uint32_t(1) << int(constraint));
}

void Node::setLayoutConstraintFlag(LayoutConstraints constraint, bool on) const
{
    getValidImpl()->setLayoutConstraintFlag(constraint, on);
}

bool Node::getLayoutConstraintFlag(LayoutConstraints constraint) const
{
    return getValidImpl()->getLayoutConstraintFlag(constraint);
}

} // namespace VOR2
