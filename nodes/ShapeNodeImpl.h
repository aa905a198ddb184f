#pragma once
// ShapeNodeImpl: the element of a ShapeNode, a plain Qt item that draws one
// GLOX::Shape held by value.

#include "GLOX/Shape.h"
#include "scene/TypedNodeImpl.h"

namespace VOR2 {

class ShapeNodeImpl : public TypedNodeImpl<QGraphicsItem> {
public:
    static char const *const TYPE_NAME;

    ShapeNodeImpl() = default;

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;

    // Not shape(): that is the Qt item's outline.
    GLOX::Shape const &getShape() const { return m_shape; }
    // Always stores and reports a geometry change.
    void setShape(GLOX::Shape const &shape);

    Bounds computeBounds() override;
    // The shape's box; half the stroke width's bound, grown by the larger of
    // the stroke's cap and join, as reach. Empty for an empty shape.
    IndexExtent getIndexExtent() override;
    // The shape widened by the stroke at `scale`, with the stroke's own cap
    // and join, united with its interior.
    Bounds computeStrokedOutline(double scale) override;
    QRectF computeStrokedOutlineRect(double scale) override;
    // The hit area is the stroked outline.
    QRectF computeHitBoundsRect(double scale) override { return computeStrokedOutlineRect(scale); }
    // Nothing at all for an empty shape: not even the painter is touched.
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The effect's renderShape method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;
    bool paintIgnoresPainterState() const override { return true; }

private:
    GLOX::Shape m_shape;
};

} // namespace VOR2
