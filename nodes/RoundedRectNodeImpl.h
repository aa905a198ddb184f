#pragma once
// RoundedRectNodeImpl: the element of a RoundedRectNode, a plain Qt item that
// draws one rectangle with rounded corners (radius in absolute units).

#include "scene/TypedNodeImpl.h"

namespace VOR2 {

class RoundedRectNodeImpl : public TypedNodeImpl<QGraphicsItem> {
public:
    static char const *const TYPE_NAME;

    RoundedRectNodeImpl() = default;
    // Stores both unchecked and reports nothing.
    RoundedRectNodeImpl(QRectF const &rect, double radius) : m_rect(rect), m_radius(radius) {}

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;

    QRectF const &rect() const { return m_rect; }
    void setRect(QRectF const &rect);
    double radius() const { return m_radius; }
    // Only a radius above 0 that differs from the present one is taken.
    void setRadius(double radius);

    Bounds computeBounds() override;
    // The rectangle; half the stroke width's bound as reach, with room for
    // the curves of the corners.
    IndexExtent getIndexExtent() override;
    // The rounded outline widened by the stroke at `scale` (default join and
    // cap), united with the interior.
    Bounds computeStrokedOutline(double scale) override;
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The effect's renderRoundedRect method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;
    bool paintIgnoresPainterState() const override { return true; }
    // The node drawn as in paintContents in opaque black, its stroke width
    // kept; antialiased only when the style asks.
    void paintMask(QPainter *painter, double scale, GLOX::GLRect<double> const &rect) override;

private:
    QPainterPath outlinePath() const;
    void draw(QPainter *painter) const;

    QRectF m_rect;
    double m_radius = 0.0;
};

} // namespace VOR2
