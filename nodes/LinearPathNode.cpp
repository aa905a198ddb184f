#include <LinearPathNode>

#include "nodes/LinearPathNodeImpl.h"

namespace VOR2 {

LinearPathNode::LinearPathNode(NodeImpl *impl)
    : Node(impl && impl->isa(LinearPathNodeImpl::TYPE_NAME) ? impl : nullptr)
{
}

char const *LinearPathNode::staticGetFullyQualifiedTcosTypeName() { return LinearPathNodeImpl::TYPE_NAME; }

int LinearPathNode::numberOfPoints() const { return getValidLinearPathNodeImpl()->numberOfPoints(); }

void LinearPathNode::append(GLOX::GLPoint<double> const &p) const
{
    getValidLinearPathNodeImpl()->append(GLOX::toQPointF(p));
}

void LinearPathNode::translate(GLOX::GLPoint<double> const &d) const
{
    getValidLinearPathNodeImpl()->translate(GLOX::toQPointF(d));
}

void LinearPathNode::scale(double s) const { getValidLinearPathNodeImpl()->scale(s); }

void LinearPathNode::setPoint(int index, GLOX::GLPoint<double> const &p) const
{
    getValidLinearPathNodeImpl()->setPoint(index, GLOX::toQPointF(p));
}

GLOX::GLPoint<double> LinearPathNode::getPoint(int index) const
{
    return GLOX::toDPoint(getValidLinearPathNodeImpl()->point(index));
}

GLOX::GVector<GLOX::GLPoint<double>> LinearPathNode::getPoints() const
{
    QPolygonF const &points = getValidLinearPathNodeImpl()->points();
    GLOX::GVector<GLOX::GLPoint<double>> result;
    result.reserve(points.size());
    for (QPointF const &p : points) result.append(GLOX::toDPoint(p));
    return result;
}

void LinearPathNode::setPoints(GLOX::GVector<GLOX::GLPoint<double>> const &points) const
{
    QPolygonF polygon;
    polygon.reserve(points.size());
    for (GLOX::GLPoint<double> const &p : points) polygon.append(GLOX::toQPointF(p));
    getValidLinearPathNodeImpl()->setPoints(polygon);
}

LinearPathNodeImpl *LinearPathNode::getLinearPathNodeImpl() const
{
    return static_cast<LinearPathNodeImpl *>(getImpl());
}

LinearPathNodeImpl *LinearPathNode::getValidLinearPathNodeImpl() const
{
    return static_cast<LinearPathNodeImpl *>(getValidImpl());
}

} // namespace VOR2
