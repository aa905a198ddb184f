#pragma once
// CompositeNodeImpl: the element of a CompositeNode. It starts with the
// ChildrenTree cache type and takes the change reports of its whole subtree
// (it is the subtree's update handler), so that one offscreen image holds
// the subtree and a change anywhere below dirties that image; Qt does not
// paint the descendants then.
//
// Its bounds, stroked outline, hit bounds and maximum bounds are the unions
// of its descendants' (each in the composite's coordinates); its own draw
// style plays no part. Hit tests, unless a custom hit test answers: a point
// is mapped to the scene and back into each descendant, and hits where it
// falls in the rectangle of that descendant's bounds; the two intersects
// forms pass their argument to each descendant's own test unchanged, as if
// it were in the descendant's coordinates. That asymmetry is deliberate
// and required. The composite's own bounds are never tested.

#include "scene/NodeUpdateHandler.h"
#include "scene/TypedNodeImpl.h"

namespace VOR2 {

class CompositeNodeImpl : public TypedNodeImpl<QGraphicsItem>, public NodeUpdateHandler {
public:
    static char const *const TYPE_NAME;

    CompositeNodeImpl();

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;
    NodeUpdateHandler *getOwnUpdateHandler() override { return this; }

    // A descendant's change is the composite's: a repaint repaints it, a
    // geometry change or a move changes its geometry.
    void nodeRepaintRequired(NodeImpl *node) override;
    void nodeGeometryChanged(NodeImpl *node) override;
    void nodeMoved(NodeImpl *node) override;

    Bounds computeBounds() override;
    Bounds computeStrokedOutline(double scale) override;
    Bounds computeHitBounds(double scale) override;
    // The rectangle of the descendants' maximum bounds, widened by the
    // composite's own effects.
    Bounds computeMaximumBounds(double scale) override;
    // The union of the descendants' extents with their effects.
    IndexExtent getIndexExtent() override;

    bool contains(GLOX::GLPoint<double> const &p) override;
    bool intersects(GLOX::GLRect<double> const &r) override;
    bool intersects(Bounds const &b) override;
    using TypedNodeImpl<QGraphicsItem>::contains;

    // Paints the subtree with ChildrenTree, nothing otherwise.
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // Empty: the subtree is painted once, by paintContents.
    void paintChildren(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The effect's composite method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;
};

} // namespace VOR2
