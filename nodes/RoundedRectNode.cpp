#include <RoundedRectNode>

#include "nodes/RoundedRectNodeImpl.h"
#include "values/UsableNumber.h"

namespace VOR2 {

RoundedRectNode::RoundedRectNode() : Node(new RoundedRectNodeImpl) {}

RoundedRectNode::RoundedRectNode(GLOX::GLRect<double> const &rect, double radius)
    : Node(new RoundedRectNodeImpl(isUsable(rect) ? GLOX::toQRectF(rect) : QRectF(),
                                   isUsable(radius) ? radius : 0.0))
{
}

RoundedRectNode::RoundedRectNode(NodeImpl *impl)
    : Node(impl && impl->isa(RoundedRectNodeImpl::TYPE_NAME) ? impl : nullptr)
{
}

GLOX::GLRect<double> RoundedRectNode::getRect() const
{
    return GLOX::toDRect(getValidRoundedRectNodeImpl()->rect());
}

void RoundedRectNode::setRect(GLOX::GLRect<double> const &rect) const
{
    getValidRoundedRectNodeImpl()->setRect(GLOX::toQRectF(rect));
}

double RoundedRectNode::getRadius() const { return getValidRoundedRectNodeImpl()->radius(); }

void RoundedRectNode::setRadius(double radius) const { getValidRoundedRectNodeImpl()->setRadius(radius); }

RoundedRectNodeImpl *RoundedRectNode::getRoundedRectNodeImpl() const
{
    return static_cast<RoundedRectNodeImpl *>(getImpl());
}

RoundedRectNodeImpl *RoundedRectNode::getValidRoundedRectNodeImpl() const
{
    return static_cast<RoundedRectNodeImpl *>(getValidImpl());
}

} // namespace VOR2
