#pragma once
// CustomNodeImpl: the element of a CustomNode, a plain Qt item whose
// geometry and paint come from its painter.

#include <CustomNodePainter>

#include "GLOX/Holder.h"
#include "scene/TypedNodeImpl.h"

namespace VOR2 {

class CustomNodeImpl : public TypedNodeImpl<QGraphicsItem> {
public:
    static char const *const TYPE_NAME;

    CustomNodeImpl() = default;
    ~CustomNodeImpl() override;

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;

    CustomNodePainter *painter() const { return m_painter.get(); }
    void setPainter(CustomNodePainter *painter);
    // The painter's area changed: Qt and the caches learn of it.
    void boundsChanging();

    Bounds computeBounds() override;
    Bounds computeStrokedOutline(double scale) override;
    // The bounds' rectangle grown by the painter's reach.
    IndexExtent getIndexExtent() override;
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The painter's mask. Without a painter, nothing: the node covers
    // nothing.
    void paintMask(QPainter *painter, double scale, GLOX::GLRect<double> const &rect) override;
    // The effect's custom method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;

private:
    GLOX::Holder<CustomNodePainter> m_painter;
};

} // namespace VOR2
