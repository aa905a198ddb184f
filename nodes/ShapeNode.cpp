#include <ShapeNode>

#include "nodes/ShapeNodeImpl.h"

namespace VOR2 {

ShapeNode::ShapeNode() : Node(new ShapeNodeImpl) {}

ShapeNode::ShapeNode(GLOX::Shape const &shape) : ShapeNode() { setShape(shape); }

ShapeNode::ShapeNode(NodeImpl *impl) : Node(impl && impl->isa(ShapeNodeImpl::TYPE_NAME) ? impl : nullptr) {}

char const *ShapeNode::staticGetFullyQualifiedTcosTypeName() { return ShapeNodeImpl::TYPE_NAME; }

GLOX::Shape ShapeNode::getShape() const { return getValidShapeNodeImpl()->getShape(); }

void ShapeNode::setShape(GLOX::Shape const &shape) const { getValidShapeNodeImpl()->setShape(shape); }

ShapeNodeImpl *ShapeNode::getShapeNodeImpl() const { return static_cast<ShapeNodeImpl *>(getImpl()); }

ShapeNodeImpl *ShapeNode::getValidShapeNodeImpl() const { return static_cast<ShapeNodeImpl *>(getValidImpl()); }

} // namespace VOR2
