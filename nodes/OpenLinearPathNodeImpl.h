#pragma once
// OpenLinearPathNodeImpl: a polyline through the points, stroked and never
// filled, with a decoration at either end. The decorations' nodes are
// children of this node and not part of its bounds; each end of the drawn
// and measured polyline stops short by its decoration's backoff. A path of
// fewer than two points has no geometry.
//
// Outline and hit area are those of a line: the stroke alone, and on a
// scene a band at least 2 * 4 scene units wide, divided by the scale.
//
// A fill is not drawn: an open path has no interior, and a fill would
// paint outside the stroked outline that bounds the node.

#include "nodes/LineEnds.h"
#include "nodes/LinearPathNodeImpl.h"

namespace VOR2 {

class OpenLinearPathNodeImpl : public LinearPathNodeImpl {
public:
    static char const *const TYPE_NAME;

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;

    LineEndDecoration const &startDecoration() const { return m_ends.decoration(LineEnds::Start); }
    LineEndDecoration const &endDecoration() const { return m_ends.decoration(LineEnds::Finish); }
    // Removes the present decoration's node from the tree, hangs the new
    // one under this node, places it and reports the geometry change (the
    // polyline's ends move by the new backoff).
    void setStartDecoration(LineEndDecoration const &decoration);
    void setEndDecoration(LineEndDecoration const &decoration);

    // Places both decorations at the ends, pointing outward along the end
    // segments, then reports.
    void pathChanged() override;

    Bounds computeBounds() override;
    IndexExtent getIndexExtent() override;
    Bounds computeStrokedOutline(double scale) override;
    Bounds computeHitBounds(double scale) override;
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The effect's renderOpenLinearPath method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;

    int handlesHeldOnChild(NodeImpl const *child) const override { return m_ends.handlesOn(child); }

private:
    QPainterPath geometricPath() const;
    double hitTolerance() const;

    LineEnds m_ends;
};

} // namespace VOR2
