#include "nodes/ClosedCurvedPathNodeImpl.h"

#include <Effect>

#include "nodes/ClosedPathOutline.h"
#include "nodes/CurveBuild.h"
#include "nodes/StylePainter.h"

namespace VOR2 {

char const *const ClosedCurvedPathNodeImpl::TYPE_NAME = "VOR2.ClosedCurvedPathNode";

bool ClosedCurvedPathNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || CurvedPathNodeImpl::isa(typeName);
}

QPainterPath ClosedCurvedPathNodeImpl::geometricPath() const
{
    QPainterPath path = buildCurve(vertices());
    path.closeSubpath();
    return path;
}

Bounds ClosedCurvedPathNodeImpl::computeBounds() { return Bounds(geometricPath()); }

Bounds ClosedCurvedPathNodeImpl::computeStrokedOutline(double scale)
{
    return closedStrokedOutline(geometricPath(), getDrawStyle().stroke(), scale);
}

QRectF ClosedCurvedPathNodeImpl::computeStrokedOutlineRect(double scale)
{
    return closedStrokedOutlineRect(geometricPath(), getDrawStyle().stroke(), scale);
}

IndexExtent ClosedCurvedPathNodeImpl::getIndexExtent()
{
    if (vertices().isEmpty()) return IndexExtent();
    return closedIndexExtent(getBounds(), getDrawStyle().stroke());
}

void ClosedCurvedPathNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    applyDrawStyle(painter, getDrawStyle(), paintScale(painter));
    painter->drawPath(geometricPath());
}

void ClosedCurvedPathNodeImpl::renderEffect(Effect *effect, QPainter *painter,
                                            QStyleOptionGraphicsItem const *option, QWidget *widget)
{
    if (!effect->renderEffectClosedCurvedPath(this, painter, option, widget))
        effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2
