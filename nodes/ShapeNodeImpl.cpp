#include "nodes/ShapeNodeImpl.h"

#include "nodes/OutlineStroker.h"
#include "nodes/StylePainter.h"

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

void ShapeNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    if (m_shape.isEmpty()) return;
    applyDrawStyle(painter, getDrawStyle(), paintScale(painter));
    painter->drawPath(m_shape.getPath());
}

} // namespace VOR2
