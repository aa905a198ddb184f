#include "nodes/ShapeNodeImpl.h"

#include <Effect>

#include "nodes/OutlineStroker.h"
#include "nodes/StylePainter.h"
#include "nodes/StrokeReach.h"

#include <algorithm>

namespace VOR2 {

char const *const ShapeNodeImpl::TYPE_NAME = "VOR2.ShapeNode";

bool ShapeNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || NodeImpl::isa(typeName);
}

void ShapeNodeImpl::setShape(GLOX::Shape const &shape)
{
    prepareItemGeometryChange();
    m_shape = shape;
    notifyGeometryChanged(false);
}

Bounds ShapeNodeImpl::computeBounds() { return Bounds(m_shape); }

Bounds ShapeNodeImpl::computeStrokedOutline(double scale)
{
    return Bounds(strokedArea(m_shape.getPath(), getDrawStyle().stroke(), scale, StrokerShape::FromStroke));
}

QRectF ShapeNodeImpl::computeStrokedOutlineRect(double scale)
{
    return strokedAreaRect(m_shape.getPath(), getDrawStyle().stroke(), scale, StrokerShape::FromStroke);
}

IndexExtent ShapeNodeImpl::getIndexExtent()
{
    if (m_shape.isEmpty()) return IndexExtent();
    Stroke const &stroke = getDrawStyle().stroke();
    double const growth = std::max(capGrowth(stroke.capStyle()), joinGrowth(stroke.joinStyle())) * CURVE_SLACK;
    return strokedExtent(GLOX::toQRectF(getBounds().boundingRect()), stroke, growth);
}

void ShapeNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    if (m_shape.isEmpty()) return;
    applyDrawStyle(painter, getDrawStyle(), paintScale(painter));
    painter->drawPath(m_shape.getPath());
}

void ShapeNodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                 QWidget *widget)
{
    if (!effect->renderEffectShape(this, painter, option, widget)) effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2
