#pragma once
// RectNodeImpl: the element of a RectNode, a plain Qt item that draws one
// rectangle.

#include "scene/TypedNodeImpl.h"

namespace VOR2 {

class RectNodeImpl : public TypedNodeImpl<QGraphicsItem> {
public:
    static char const *const TYPE_NAME;

    RectNodeImpl() = default;
    // A new node has nobody to tell of its rectangle: no caches, no scene.
    explicit RectNodeImpl(QRectF const &rect) : m_rect(rect) {}

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;

    QRectF const &rect() const { return m_rect; }
    void setRect(QRectF const &rect);

    Bounds computeBounds() override;
    // The rectangle; half the stroke width's bound as reach.
    IndexExtent getIndexExtent() override;
    // The rectangle grown by half the stroke width at `scale` on each side.
    Bounds computeStrokedOutline(double scale) override;
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The effect's renderRect method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;
    bool paintIgnoresPainterState() const override { return true; }

private:
    QRectF m_rect;
};

} // namespace VOR2
