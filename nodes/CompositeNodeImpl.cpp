#include "nodes/CompositeNodeImpl.h"

#include <Effect>
#include <GlobalViewerInfo>

#include "effects/NodeEffectsImpl.h"
#include "nodes/SubtreeWalk.h"
#include "scene/IndexExtent.h"

namespace VOR2 {

char const *const CompositeNodeImpl::TYPE_NAME = "VOR2.CompositeNode";

CompositeNodeImpl::CompositeNodeImpl() { setCacheType(CacheType::ChildrenTree); }

bool CompositeNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || NodeImpl::isa(typeName);
}

void CompositeNodeImpl::nodeRepaintRequired(NodeImpl *) { notifyRepaint(); }

void CompositeNodeImpl::nodeGeometryChanged(NodeImpl *) { notifyGeometryChanged(false); }

void CompositeNodeImpl::nodeMoved(NodeImpl *node) { nodeGeometryChanged(node); }

Bounds CompositeNodeImpl::computeBounds()
{
    return subtreeBounds(this, [](NodeImpl *node) { return node->getBounds(); });
}

Bounds CompositeNodeImpl::computeStrokedOutline(double scale)
{
    return subtreeBounds(this, [scale](NodeImpl *node) { return node->getCachedStrokedOutline(scale); });
}

Bounds CompositeNodeImpl::computeHitBounds(double scale)
{
    return subtreeBounds(this, [scale](NodeImpl *node) { return node->getCachedHitBounds(scale); });
}

Bounds CompositeNodeImpl::computeMaximumBounds(double scale)
{
    Bounds bounds = subtreeBounds(this, [scale](NodeImpl *node) { return node->getCachedMaximumBounds(scale); });
    if (NodeEffectsImpl *effects = getEffectsImpl()) bounds = effects->computeEffectsMaximumBounds(bounds, scale);
    return Bounds(bounds.boundingRect());
}

IndexExtent CompositeNodeImpl::getIndexExtent()
{
    // Every descendant counts, even one whose extent covers nothing: a flat
    // shape's outline, a segment without area, still joins the hit bounds.
    IndexExtent extent;
    bool first = true;
    anyDescendant(this, [&](NodeImpl *node, QTransform const &t) {
        IndexExtent const own = mappedIndexExtent(extentWithEffects(node), t);
        extent = first ? own : unitedIndexExtent(extent, own);
        first = false;
        return false;
    });
    return extent;
}

bool CompositeNodeImpl::contains(GLOX::GLPoint<double> const &p)
{
    if (Node::CustomHitTestFunctor *hit = getCustomHitTestFunctor())
        return hit->contains(Node(this), p, GlobalViewerInfo::instance()->getViewerScale());
    // The point in each descendant's coordinates, through the walk's own
    // transforms: the same as through the scene, but Qt's cached scene
    // transforms of the children can be stale while Qt's own item walk
    // has refreshed the composite's and not yet theirs.
    QPointF const point = GLOX::toQPointF(p);
    return anyDescendant(this, [&](NodeImpl *node, QTransform const &toRoot) {
        bool invertible = false;
        QPointF const local = toRoot.inverted(&invertible).map(point);
        return invertible && node->getBounds().boundingRect().contains(GLOX::toDPoint(local));
    });
}

bool CompositeNodeImpl::intersects(GLOX::GLRect<double> const &r)
{
    if (Node::CustomHitTestFunctor *hit = getCustomHitTestFunctor())
        return hit->intersects(Node(this), r, GlobalViewerInfo::instance()->getViewerScale());
    return anyDescendant(this, [&](NodeImpl *node, QTransform const &) { return node->intersects(r); });
}

bool CompositeNodeImpl::intersects(Bounds const &b)
{
    if (Node::CustomHitTestFunctor *hit = getCustomHitTestFunctor())
        return hit->intersects(Node(this), b, GlobalViewerInfo::instance()->getViewerScale());
    return anyDescendant(this, [&](NodeImpl *node, QTransform const &) { return node->intersects(b); });
}

void CompositeNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget)
{
    if (getCacheType() == CacheType::ChildrenTree) NodeImpl::paintChildren(painter, option, widget);
}

void CompositeNodeImpl::paintChildren(QPainter *, QStyleOptionGraphicsItem const *, QWidget *) {}

void CompositeNodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                     QWidget *widget)
{
    if (!effect->renderEffectComposite(this, painter, option, widget))
        effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2
