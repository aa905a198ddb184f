#include <LineNode>

#include "nodes/LineNodeImpl.h"
#include "values/UsableNumber.h"

namespace VOR2 {

LineNode::LineNode() : Node(new LineNodeImpl) {}

LineNode::LineNode(GLOX::GLPoint<double> const &start, GLOX::GLPoint<double> const &end)
    : Node(isUsable(start) && isUsable(end) ? new LineNodeImpl(GLOX::toQPointF(start), GLOX::toQPointF(end))
                                            : new LineNodeImpl)
{
}

LineNode::LineNode(NodeImpl *impl) : Node(impl && impl->isa(LineNodeImpl::TYPE_NAME) ? impl : nullptr) {}

char const *LineNode::staticGetFullyQualifiedTcosTypeName() { return LineNodeImpl::TYPE_NAME; }

GLOX::GLPoint<double> LineNode::getStart() const { return GLOX::toDPoint(getValidLineNodeImpl()->start()); }

GLOX::GLPoint<double> LineNode::getEnd() const { return GLOX::toDPoint(getValidLineNodeImpl()->end()); }

void LineNode::setStart(GLOX::GLPoint<double> const &start) const
{
    getValidLineNodeImpl()->setStart(GLOX::toQPointF(start));
}

void LineNode::setEnd(GLOX::GLPoint<double> const &end) const { getValidLineNodeImpl()->setEnd(GLOX::toQPointF(end)); }

void LineNode::setLine(GLOX::GLPoint<double> const &start, GLOX::GLPoint<double> const &end) const
{
    getValidLineNodeImpl()->setLine(GLOX::toQPointF(start), GLOX::toQPointF(end));
}

LineEndDecoration const &LineNode::getStartDecoration() const
{
    return getValidLineNodeImpl()->startDecoration();
}

LineEndDecoration const &LineNode::getEndDecoration() const { return getValidLineNodeImpl()->endDecoration(); }

void LineNode::setStartDecoration(LineEndDecoration const &decoration) const
{
    getValidLineNodeImpl()->setStartDecoration(decoration);
}

void LineNode::setEndDecoration(LineEndDecoration const &decoration) const
{
    getValidLineNodeImpl()->setEndDecoration(decoration);
}

LineNodeImpl *LineNode::getLineNodeImpl() const { return static_cast<LineNodeImpl *>(getImpl()); }

LineNodeImpl *LineNode::getValidLineNodeImpl() const { return static_cast<LineNodeImpl *>(getValidImpl()); }

} // namespace VOR2
