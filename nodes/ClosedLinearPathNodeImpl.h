#pragma once
// ClosedLinearPathNodeImpl: a polygon through the points, closed back to
// the first, filled by the node's fill and stroked by its stroke. Bounds
// are the polygon's; its stroked outline and hit area are the polygon
// with its stroke, as for a shape. A polygon of one or two points has
// bounds but draws nothing.

#include "nodes/LinearPathNodeImpl.h"

namespace VOR2 {

class ClosedLinearPathNodeImpl : public LinearPathNodeImpl {
public:
    static char const *const TYPE_NAME;

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;

    Bounds computeBounds() override;
    IndexExtent getIndexExtent() override;
    Bounds computeStrokedOutline(double scale) override;
    QRectF computeStrokedOutlineRect(double scale) override;
    // The hit area is the stroked outline.
    QRectF computeHitBoundsRect(double scale) override { return computeStrokedOutlineRect(scale); }
    // Draws only with more than two points; with fewer it leaves the
    // painter as it was.
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The effect's renderClosedLinearPath method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;

private:
    QPainterPath geometricPath() const;
};

} // namespace VOR2
