#include <CurvedPathNode>

#include "nodes/CurvedPathNodeImpl.h"

namespace VOR2 {

CurvedPathNode::CurvedPathNode(NodeImpl *impl)
    : Node(impl && impl->isa(CurvedPathNodeImpl::TYPE_NAME) ? impl : nullptr)
{
}

char const *CurvedPathNode::staticGetFullyQualifiedTcosTypeName() { return CurvedPathNodeImpl::TYPE_NAME; }

int CurvedPathNode::numberOfVertices() const { return getValidCurvedPathNodeImpl()->numberOfVertices(); }

Vertex const &CurvedPathNode::getVertex(int index) const
{
    return static_cast<CurvedPathNodeImpl const *>(getValidCurvedPathNodeImpl())->vertex(index);
}

Vertex &CurvedPathNode::getVertex(int index) { return getValidCurvedPathNodeImpl()->vertex(index); }

void CurvedPathNode::append(Vertex const &v) const { getValidCurvedPathNodeImpl()->append(v); }

GLOX::GVector<Vertex> CurvedPathNode::getVertices() const { return getValidCurvedPathNodeImpl()->vertices(); }

void CurvedPathNode::setVertices(GLOX::GVector<Vertex> const &vertices) const
{
    getValidCurvedPathNodeImpl()->setVertices(vertices);
}

void CurvedPathNode::setVertex(int index, Vertex const &v) const { getValidCurvedPathNodeImpl()->setVertex(index, v); }

void CurvedPathNode::scale(double s) const { getValidCurvedPathNodeImpl()->scale(s); }

void CurvedPathNode::translate(GLOX::GLPoint<double> const &d) const
{
    getValidCurvedPathNodeImpl()->translate(GLOX::toQPointF(d));
}

void CurvedPathNode::setVertexPosition(int index, GLOX::GLPoint<double> const &p) const
{
    getValidCurvedPathNodeImpl()->setVertexPosition(index, p);
}

void CurvedPathNode::setVertexForwardTangent(int index, GLOX::GLPoint<double> const &t) const
{
    getValidCurvedPathNodeImpl()->setVertexForwardTangent(index, t);
}

void CurvedPathNode::setVertexBackwardTangent(int index, GLOX::GLPoint<double> const &t) const
{
    getValidCurvedPathNodeImpl()->setVertexBackwardTangent(index, t);
}

CurvedPathNodeImpl *CurvedPathNode::getCurvedPathNodeImpl() const
{
    return static_cast<CurvedPathNodeImpl *>(getImpl());
}

CurvedPathNodeImpl *CurvedPathNode::getValidCurvedPathNodeImpl() const
{
    return static_cast<CurvedPathNodeImpl *>(getValidImpl());
}

} // namespace VOR2
