#include "nodes/CurvedPathNodeImpl.h"

#include <Error>

#include "values/UsableNumber.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace VOR2 {

char const *const CurvedPathNodeImpl::TYPE_NAME = "VOR2.CurvedPathNode";

bool isUsable(Vertex const &v)
{
    return isUsable(v.position) && isUsable(v.forwardTangent) && isUsable(v.backwardTangent);
}

bool CurvedPathNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || NodeImpl::isa(typeName);
}

void CurvedPathNodeImpl::checkIndex(int index) const
{
    if (index < 0 || index >= m_vertices.size()) throwError(VOR2_InvalidCurveIndex);
}

Vertex const &CurvedPathNodeImpl::vertex(int index) const
{
    checkIndex(index);
    return m_vertices[index];
}

Vertex &CurvedPathNodeImpl::vertex(int index)
{
    checkIndex(index);
    return m_vertices[index];
}

void CurvedPathNodeImpl::assign(GLOX::GVector<Vertex> const &vertices)
{
    if (!std::all_of(vertices.begin(), vertices.end(), [](Vertex const &v) { return isUsable(v); })) return;
    m_vertices = vertices;
    notifyGeometryChanged(false);
}

void CurvedPathNodeImpl::append(Vertex const &v)
{
    if (!isUsable(v)) return;
    m_vertices.append(v);
    notifyGeometryChanged(false);
}

void CurvedPathNodeImpl::setVertices(GLOX::GVector<Vertex> const &vertices) { assign(vertices); }

void CurvedPathNodeImpl::setVertex(int index, Vertex const &v)
{
    checkIndex(index);
    if (!isUsable(v)) return;
    m_vertices[index] = v;
    notifyGeometryChanged(false);
}

void CurvedPathNodeImpl::scale(double s)
{
    if (std::abs(s - 1.0) <= DBL_EPSILON || !isUsable(s)) return;
    GLOX::GVector<Vertex> scaled = m_vertices;
    for (Vertex &v : scaled) v = Vertex(v.position * s, v.forwardTangent * s, v.backwardTangent * s);
    assign(scaled);
}

void CurvedPathNodeImpl::translate(QPointF const &d)
{
    if (!isUsable(d) || std::abs(d.x() * d.x() + d.y() * d.y()) <= DBL_EPSILON) return;
    GLOX::GVector<Vertex> moved = m_vertices;
    for (Vertex &v : moved) v.position += GLOX::toDPoint(d);
    assign(moved);
}

void CurvedPathNodeImpl::setVertexPosition(int index, GLOX::GLPoint<double> const &p)
{
    checkIndex(index);
    if (isUsable(p)) m_vertices[index].position = p;
}

void CurvedPathNodeImpl::setVertexForwardTangent(int index, GLOX::GLPoint<double> const &t)
{
    checkIndex(index);
    if (isUsable(t)) m_vertices[index].forwardTangent = t;
}

void CurvedPathNodeImpl::setVertexBackwardTangent(int index, GLOX::GLPoint<double> const &t)
{
    checkIndex(index);
    if (isUsable(t)) m_vertices[index].backwardTangent = t;
}

} // namespace VOR2
