#include <OpenLinearPathNode>

#include "nodes/OpenLinearPathNodeImpl.h"

namespace VOR2 {

OpenLinearPathNode::OpenLinearPathNode() : LinearPathNode(new OpenLinearPathNodeImpl, Adopt()) {}

OpenLinearPathNode::OpenLinearPathNode(GLOX::GVector<GLOX::GLPoint<double>> const &points) : OpenLinearPathNode()
{
    setPoints(points);
}

OpenLinearPathNode::OpenLinearPathNode(NodeImpl *impl)
    : LinearPathNode(impl && impl->isa(OpenLinearPathNodeImpl::TYPE_NAME) ? impl : nullptr, Adopt())
{
}

char const *OpenLinearPathNode::staticGetFullyQualifiedTcosTypeName() { return OpenLinearPathNodeImpl::TYPE_NAME; }

LineEndDecoration const &OpenLinearPathNode::getStartDecoration() const
{
    return getValidOpenLinearPathNodeImpl()->startDecoration();
}

LineEndDecoration const &OpenLinearPathNode::getEndDecoration() const
{
    return getValidOpenLinearPathNodeImpl()->endDecoration();
}

void OpenLinearPathNode::setStartDecoration(LineEndDecoration const &decoration) const
{
    getValidOpenLinearPathNodeImpl()->setStartDecoration(decoration);
}

void OpenLinearPathNode::setEndDecoration(LineEndDecoration const &decoration) const
{
    getValidOpenLinearPathNodeImpl()->setEndDecoration(decoration);
}

OpenLinearPathNodeImpl *OpenLinearPathNode::getOpenLinearPathNodeImpl() const
{
    return static_cast<OpenLinearPathNodeImpl *>(getImpl());
}

OpenLinearPathNodeImpl *OpenLinearPathNode::getValidOpenLinearPathNodeImpl() const
{
    return static_cast<OpenLinearPathNodeImpl *>(getValidImpl());
}

} // namespace VOR2
