#pragma once
// ClosedCurvedPathNodeImpl: the curve through the vertices, closed by a
// straight side from the last vertex back to the first, filled by the
// node's fill and stroked by its stroke. The closing side is straight on
// purpose: the ends are not smoothed across it, and only the first
// vertex's forward tangent and the last one's backward tangent shape the
// curve next to it. Outline and hit area are the filled curve with its
// stroke, as for a shape.

#include "nodes/CurvedPathNodeImpl.h"

namespace VOR2 {

class ClosedCurvedPathNodeImpl : public CurvedPathNodeImpl {
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
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The effect's renderClosedCurvedPath method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;

private:
    QPainterPath geometricPath() const;
};

} // namespace VOR2
