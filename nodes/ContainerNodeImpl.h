#pragma once
// ContainerNodeImpl: the element of a ContainerNode, a plain Qt item with
// zero bounds that paints nothing and draws no effects.

#include "scene/TypedNodeImpl.h"

namespace VOR2 {

class ContainerNodeImpl : public TypedNodeImpl<QGraphicsItem> {
public:
    static char const *const TYPE_NAME;

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;

    // The zero rectangle.
    Bounds computeBounds() override;
    // Nothing: effects on a container never draw.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;
};

} // namespace VOR2
