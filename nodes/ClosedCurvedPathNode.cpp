#include <ClosedCurvedPathNode>

#include "nodes/ClosedCurvedPathNodeImpl.h"

namespace VOR2 {

ClosedCurvedPathNode::ClosedCurvedPathNode() : CurvedPathNode(new ClosedCurvedPathNodeImpl, Adopt()) {}

ClosedCurvedPathNode::ClosedCurvedPathNode(GLOX::GVector<Vertex> const &vertices) : ClosedCurvedPathNode()
{
    setVertices(vertices);
}

ClosedCurvedPathNode::ClosedCurvedPathNode(NodeImpl *impl)
    : CurvedPathNode(impl && impl->isa(ClosedCurvedPathNodeImpl::TYPE_NAME) ? impl : nullptr, Adopt())
{
}

char const *ClosedCurvedPathNode::staticGetFullyQualifiedTcosTypeName()
{
    return ClosedCurvedPathNodeImpl::TYPE_NAME;
}

ClosedCurvedPathNodeImpl *ClosedCurvedPathNode::getClosedCurvedPathNodeImpl() const
{
    return static_cast<ClosedCurvedPathNodeImpl *>(getImpl());
}

ClosedCurvedPathNodeImpl *ClosedCurvedPathNode::getValidClosedCurvedPathNodeImpl() const
{
    return static_cast<ClosedCurvedPathNodeImpl *>(getValidImpl());
}

} // namespace VOR2
