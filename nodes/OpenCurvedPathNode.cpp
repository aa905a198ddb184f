#include <OpenCurvedPathNode>

#include "nodes/OpenCurvedPathNodeImpl.h"

namespace VOR2 {

OpenCurvedPathNode::OpenCurvedPathNode() : CurvedPathNode(new OpenCurvedPathNodeImpl, Adopt()) {}

OpenCurvedPathNode::OpenCurvedPathNode(GLOX::GVector<Vertex> const &vertices) : OpenCurvedPathNode()
{
    setVertices(vertices);
}

OpenCurvedPathNode::OpenCurvedPathNode(NodeImpl *impl)
    : CurvedPathNode(impl && impl->isa(OpenCurvedPathNodeImpl::TYPE_NAME) ? impl : nullptr, Adopt())
{
}

char const *OpenCurvedPathNode::staticGetFullyQualifiedTcosTypeName() { return OpenCurvedPathNodeImpl::TYPE_NAME; }

LineEndDecoration const &OpenCurvedPathNode::getStartDecoration() const
{
    return getValidOpenCurvedPathNodeImpl()->startDecoration();
}

LineEndDecoration const &OpenCurvedPathNode::getEndDecoration() const
{
    return getValidOpenCurvedPathNodeImpl()->endDecoration();
}

void OpenCurvedPathNode::setStartDecoration(LineEndDecoration const &decoration) const
{
    getValidOpenCurvedPathNodeImpl()->setStartDecoration(decoration);
}

void OpenCurvedPathNode::setEndDecoration(LineEndDecoration const &decoration) const
{
    getValidOpenCurvedPathNodeImpl()->setEndDecoration(decoration);
}

void OpenCurvedPathNode::updateDecorations() const { getValidOpenCurvedPathNodeImpl()->updateDecorations(); }

OpenCurvedPathNodeImpl *OpenCurvedPathNode::getOpenCurvedPathNodeImpl() const
{
    return static_cast<OpenCurvedPathNodeImpl *>(getImpl());
}

OpenCurvedPathNodeImpl *OpenCurvedPathNode::getValidOpenCurvedPathNodeImpl() const
{
    return static_cast<OpenCurvedPathNodeImpl *>(getValidImpl());
}

} // namespace VOR2
