#include "nodes/EllipseNodeImpl.h"

#include <Effect>

#include "nodes/MaskStyle.h"
#include "nodes/OutlineStroker.h"
#include "nodes/StylePainter.h"
#include "nodes/StrokeReach.h"

namespace VOR2 {

char const *const EllipseNodeImpl::TYPE_NAME = "VOR2.EllipseNode";

bool EllipseNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || NodeImpl::isa(typeName);
}

QPainterPath EllipseNodeImpl::ellipsePath() const
{
    QPainterPath path;
    path.addEllipse(rect());
    return path;
}

// An ellipse of no size makes no path: it is the point where it is.
Bounds EllipseNodeImpl::computeBounds()
{
    QPainterPath const path = ellipsePath();
    return path.isEmpty() ? Bounds(rect()) : Bounds(path);
}

Bounds EllipseNodeImpl::computeStrokedOutline(double scale)
{
    QPainterPath const path = ellipsePath();
    if (path.isEmpty()) return Bounds(pointStrokedRect(rect(), getDrawStyle().stroke(), scale));
    return Bounds(convexStrokedArea(path, getDrawStyle().stroke(), scale));
}

// Qt's default stroker on a closed convex outline: no corners, no caps.
// The box is the bounds' own: an ellipse without area has an empty path,
// whose bounds sit at the origin rather than at its rectangle.
IndexExtent EllipseNodeImpl::getIndexExtent()
{
    return strokedExtent(GLOX::toQRectF(getBounds().boundingRect()), getDrawStyle().stroke(), CURVE_SLACK);
}

void EllipseNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    applyDrawStyle(painter, getDrawStyle(), paintScale(painter));
    painter->drawEllipse(rect());
}

void EllipseNodeImpl::paintMask(QPainter *painter, double scale, GLOX::GLRect<double> const &)
{
    applyMaskStyle(painter, getDrawStyle(), scale);
    painter->drawEllipse(rect());
}

void EllipseNodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                   QWidget *widget)
{
    if (!effect->renderEffectEllipse(this, painter, option, widget)) effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2
