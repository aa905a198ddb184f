#pragma once
// EllipseNodeImpl: the element of an EllipseNode. Its rectangle lives in the
// Qt ellipse item it derives from (rect(), setRect()); setting it goes
// through Qt's own geometry preparation and reports nothing to the node.

#include "scene/TypedNodeImpl.h"

namespace VOR2 {

class EllipseNodeImpl : public TypedNodeImpl<QGraphicsEllipseItem> {
public:
    static char const *const TYPE_NAME;

    EllipseNodeImpl() = default;

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;

    Bounds computeBounds() override;
    // The ellipse's rectangle; half the stroke width's bound as reach, with
    // room for the curves.
    IndexExtent getIndexExtent() override;
    // The ellipse widened by the stroke at `scale` (default join and cap),
    // united with its interior.
    Bounds computeStrokedOutline(double scale) override;
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The effect's renderEllipse method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;
    bool paintIgnoresPainterState() const override { return true; }
    // The node drawn as in paintContents in opaque black, its stroke width
    // kept; antialiased only when the style asks.
    void paintMask(QPainter *painter, double scale, GLOX::GLRect<double> const &rect) override;

private:
    QPainterPath ellipsePath() const;
};

} // namespace VOR2
