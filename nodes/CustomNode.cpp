#include <CustomNode>

#include "nodes/CustomNodeImpl.h"

namespace VOR2 {

CustomNode::CustomNode() : Node(new CustomNodeImpl) {}

CustomNode::CustomNode(CustomNodeImpl *impl) : Node(impl) {}

CustomNode::CustomNode(NodeImpl *impl) : Node(impl && impl->isa(CustomNodeImpl::TYPE_NAME) ? impl : nullptr) {}

char const *CustomNode::staticGetFullyQualifiedTcosTypeName() { return CustomNodeImpl::TYPE_NAME; }

void CustomNode::setPainter(CustomNodePainter *painter) const { getValidCustomImpl()->setPainter(painter); }

CustomNodePainter *CustomNode::getPainter() const { return getValidCustomImpl()->painter(); }

void CustomNode::boundsChanging() const { getValidCustomImpl()->boundsChanging(); }

void CustomNode::repaintRequired() const { getValidCustomImpl()->notifyRepaint(); }

CustomNodeImpl *CustomNode::getCustomImpl() const { return static_cast<CustomNodeImpl *>(getImpl()); }

CustomNodeImpl *CustomNode::getValidCustomImpl() const { return static_cast<CustomNodeImpl *>(getValidImpl()); }

} // namespace VOR2
