#include "nodes/ClosedLinearPathNodeImpl.h"

#include <Effect>

#include "nodes/ClosedPathOutline.h"
#include "nodes/StylePainter.h"

namespace VOR2 {

char const *const ClosedLinearPathNodeImpl::TYPE_NAME = "VOR2.ClosedLinearPathNode";

bool ClosedLinearPathNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || LinearPathNodeImpl::isa(typeName);
}

QPainterPath ClosedLinearPathNodeImpl::geometricPath() const
{
    QPainterPath path;
    path.addPolygon(points());
    path.closeSubpath();
    return path;
}

Bounds ClosedLinearPathNodeImpl::computeBounds() { return Bounds(geometricPath()); }

Bounds ClosedLinearPathNodeImpl::computeStrokedOutline(double scale)
{
    return closedStrokedOutline(geometricPath(), getDrawStyle().stroke(), scale);
}

QRectF ClosedLinearPathNodeImpl::computeStrokedOutlineRect(double scale)
{
    return closedStrokedOutlineRect(geometricPath(), getDrawStyle().stroke(), scale);
}

IndexExtent ClosedLinearPathNodeImpl::getIndexExtent()
{
    if (points().isEmpty()) return IndexExtent();
    return closedIndexExtent(getBounds(), getDrawStyle().stroke());
}

void ClosedLinearPathNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    if (numberOfPoints() <= 2) return;
    applyDrawStyle(painter, getDrawStyle(), paintScale(painter));
    painter->drawPath(geometricPath());
}

void ClosedLinearPathNodeImpl::renderEffect(Effect *effect, QPainter *painter,
                                            QStyleOptionGraphicsItem const *option, QWidget *widget)
{
    if (!effect->renderEffectClosedLinearPath(this, painter, option, widget))
        effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2
