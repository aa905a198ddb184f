#include <ClosedLinearPathNode>

#include "nodes/ClosedLinearPathNodeImpl.h"

namespace VOR2 {

ClosedLinearPathNode::ClosedLinearPathNode() : LinearPathNode(new ClosedLinearPathNodeImpl, Adopt()) {}

ClosedLinearPathNode::ClosedLinearPathNode(GLOX::GVector<GLOX::GLPoint<double>> const &points)
    : ClosedLinearPathNode()
{
    setPoints(points);
}

ClosedLinearPathNode::ClosedLinearPathNode(NodeImpl *impl)
    : LinearPathNode(impl && impl->isa(ClosedLinearPathNodeImpl::TYPE_NAME) ? impl : nullptr, Adopt())
{
}

char const *ClosedLinearPathNode::staticGetFullyQualifiedTcosTypeName()
{
    return ClosedLinearPathNodeImpl::TYPE_NAME;
}

ClosedLinearPathNodeImpl *ClosedLinearPathNode::getClosedLinearPathNodeImpl() const
{
    return static_cast<ClosedLinearPathNodeImpl *>(getImpl());
}

ClosedLinearPathNodeImpl *ClosedLinearPathNode::getValidClosedLinearPathNodeImpl() const
{
    return static_cast<ClosedLinearPathNodeImpl *>(getValidImpl());
}

} // namespace VOR2
