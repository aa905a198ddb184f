#include <CompositeNode>

#include "nodes/CompositeNodeImpl.h"

namespace VOR2 {

CompositeNode::CompositeNode() : Node(new CompositeNodeImpl) {}

CompositeNode::CompositeNode(CompositeNodeImpl *impl) : Node(impl) {}

CompositeNode::CompositeNode(NodeImpl *impl)
    : Node(impl && impl->isa(CompositeNodeImpl::TYPE_NAME) ? impl : nullptr)
{
}

char const *CompositeNode::staticGetFullyQualifiedTcosTypeName() { return CompositeNodeImpl::TYPE_NAME; }

CompositeNodeImpl *CompositeNode::getCompositeNodeImpl() const
{
    return static_cast<CompositeNodeImpl *>(getImpl());
}

CompositeNodeImpl *CompositeNode::getValidCompositeNodeImpl() const
{
    return static_cast<CompositeNodeImpl *>(getValidImpl());
}

} // namespace VOR2
