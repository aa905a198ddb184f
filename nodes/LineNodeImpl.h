#pragma once
// LineNodeImpl: the element of a LineNode, a plain Qt item that draws one
// segment and keeps the decorations at its ends. The decorations' nodes are
// children of this node; they are not part of its bounds.
//
// Hit testing is the line's own: a band around the infinite line through
// both points, as wide as the stroke plus a tolerance of 4 scene units when
// the node is on a scene (0 off a scene). The item's bounds limit the
// search to the segment.

#include "nodes/LineEnds.h"
#include "nodes/LineOutline.h"
#include "scene/TypedNodeImpl.h"

namespace VOR2 {

class LineNodeImpl : public TypedNodeImpl<QGraphicsItem> {
public:
    static char const *const TYPE_NAME;
    // Added to the stroke width by hit tests on a scene, in scene units.
    static constexpr double HIT_TOLERANCE = LINE_HIT_TOLERANCE;

    LineNodeImpl() = default;
    // Stores both points and reports nothing.
    LineNodeImpl(QPointF const &start, QPointF const &end) : m_start(start), m_end(end) {}

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;

    QPointF const &start() const { return m_start; }
    QPointF const &end() const { return m_end; }
    // No equality guard: each reports a geometry change, then places the
    // decorations.
    void setStart(QPointF const &start);
    void setEnd(QPointF const &end);
    void setLine(QPointF const &start, QPointF const &end);

    LineEndDecoration const &startDecoration() const { return m_ends.decoration(LineEnds::Start); }
    LineEndDecoration const &endDecoration() const { return m_ends.decoration(LineEnds::Finish); }
    // Removes the present decoration's node from the tree, then hangs the
    // new one under this node and places it. Reports nothing for the line.
    void setStartDecoration(LineEndDecoration const &decoration);
    void setEndDecoration(LineEndDecoration const &decoration);

    Bounds computeBounds() override;
    // The segment's box. Reach: the larger of half the stroke width's bound
    // grown by the cap, and the hit band's half width, grown by the square
    // cap of Qt's default stroker. The decorations have extents of their own.
    IndexExtent getIndexExtent() override;
    // The segment widened by the stroke's width, cap and join at `scale`,
    // whatever its line style: an undrawn line still has an outline.
    Bounds computeStrokedOutline(double scale) override;
    // The segment widened to the larger of the stroke width and twice the
    // tolerance, that width divided by `scale`.
    Bounds computeHitBounds(double scale) override;
    // True when `p` lies closer to the line than the stroke width at the
    // viewer scale plus the tolerance. A line without length hits nothing.
    bool contains(GLOX::GLPoint<double> const &p) override;
    using TypedNodeImpl<QGraphicsItem>::contains;
    // The segment, each end drawn short by its decoration's backoff.
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The effect's renderLine method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;
    bool paintIgnoresPainterState() const override { return true; }

    int handlesHeldOnChild(NodeImpl const *child) const override { return m_ends.handlesOn(child); }

private:
    QPainterPath geometricPath() const;
    double hitTolerance() const;
    void placeDecorations();

    QPointF m_start;
    QPointF m_end;
    LineEnds m_ends;
};

} // namespace VOR2
