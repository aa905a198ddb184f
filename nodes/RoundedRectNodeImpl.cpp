#include "nodes/RoundedRectNodeImpl.h"

#include <Effect>

#include <RoundedRect>

#include "nodes/MaskStyle.h"
#include "nodes/OutlineStroker.h"
#include "nodes/StylePainter.h"
#include "nodes/StrokeReach.h"
#include "values/UsableNumber.h"

namespace VOR2 {

char const *const RoundedRectNodeImpl::TYPE_NAME = "VOR2.RoundedRectNode";

bool RoundedRectNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || NodeImpl::isa(typeName);
}

void RoundedRectNodeImpl::setRect(QRectF const &rect)
{
    if (!isUsable(rect)) return;
    if (rect.x() == m_rect.x() && rect.y() == m_rect.y() && rect.width() == m_rect.width() &&
        rect.height() == m_rect.height())
        return;
    prepareItemGeometryChange();
    m_rect = rect;
    notifyGeometryChanged(false);
}

void RoundedRectNodeImpl::setRadius(double radius)
{
    if (!(radius > 0.0) || !isUsable(radius) || radius == m_radius) return;
    prepareItemGeometryChange();
    m_radius = radius;
    notifyGeometryChanged(false);
}

QPainterPath RoundedRectNodeImpl::outlinePath() const
{
    QPainterPath path;
    path.addRoundedRect(m_rect, m_radius, m_radius, Qt::AbsoluteSize);
    return path;
}

Bounds RoundedRectNodeImpl::computeBounds()
{
    return Bounds(RoundedRect(GLOX::toDRect(m_rect), m_radius, m_radius));
}

Bounds RoundedRectNodeImpl::computeStrokedOutline(double scale)
{
    QPainterPath const path = outlinePath();
    if (path.isEmpty()) return Bounds(pointStrokedRect(m_rect, getDrawStyle().stroke(), scale));
    return Bounds(convexStrokedArea(path, getDrawStyle().stroke(), scale));
}

// Qt's default stroker on a closed convex outline: bevel joins, no caps.
IndexExtent RoundedRectNodeImpl::getIndexExtent()
{
    return strokedExtent(m_rect, getDrawStyle().stroke(), CURVE_SLACK);
}

void RoundedRectNodeImpl::draw(QPainter *painter) const
{
    painter->drawRoundedRect(m_rect, m_radius, m_radius, Qt::AbsoluteSize);
}

void RoundedRectNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    applyDrawStyle(painter, getDrawStyle(), paintScale(painter));
    draw(painter);
}

void RoundedRectNodeImpl::paintMask(QPainter *painter, double scale, GLOX::GLRect<double> const &)
{
    applyMaskStyle(painter, getDrawStyle(), scale);
    draw(painter);
}

void RoundedRectNodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                       QWidget *widget)
{
    if (!effect->renderEffectRoundedRect(this, painter, option, widget)) effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2
