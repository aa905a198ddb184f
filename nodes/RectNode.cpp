#include <RectNode>

#include "nodes/RectNodeImpl.h"
#include "values/UsableNumber.h"

namespace VOR2 {

RectNode::RectNode() : Node(new RectNodeImpl) {}

RectNode::RectNode(GLOX::GLRect<double> const &rect)
    : Node(new RectNodeImpl(isUsable(rect) ? GLOX::toQRectF(rect) : QRectF()))
{
}

RectNode::RectNode(NodeImpl *impl)
    : Node(impl && impl->isa(RectNodeImpl::TYPE_NAME) ? impl : nullptr)
{
}

char const *RectNode::staticGetFullyQualifiedTcosTypeName() { return RectNodeImpl::TYPE_NAME; }

GLOX::GLRect<double> RectNode::getRect() const { return GLOX::toDRect(getValidRectNodeImpl()->rect()); }

void RectNode::setRect(GLOX::GLRect<double> const &rect) const
{
    getValidRectNodeImpl()->setRect(GLOX::toQRectF(rect));
}

RectNodeImpl *RectNode::getRectNodeImpl() const { return static_cast<RectNodeImpl *>(getImpl()); }

RectNodeImpl *RectNode::getValidRectNodeImpl() const { return static_cast<RectNodeImpl *>(getValidImpl()); }

} // namespace VOR2
