#include <ContainerNode>

#include "nodes/ContainerNodeImpl.h"

namespace VOR2 {

ContainerNode::ContainerNode() : Node(new ContainerNodeImpl) {}

ContainerNode::ContainerNode(ContainerNodeImpl *impl) : Node(impl) {}

ContainerNode::ContainerNode(NodeImpl *impl)
    : Node(impl && impl->isa(ContainerNodeImpl::TYPE_NAME) ? impl : nullptr)
{
}

char const *ContainerNode::staticGetFullyQualifiedTcosTypeName() { return ContainerNodeImpl::TYPE_NAME; }

ContainerNodeImpl *ContainerNode::getContainerNodeImpl() const
{
    return static_cast<ContainerNodeImpl *>(getImpl());
}

ContainerNodeImpl *ContainerNode::getValidContainerNodeImpl() const
{
    return static_cast<ContainerNodeImpl *>(getValidImpl());
}

} // namespace VOR2
