#include "nodes/LinearPathNodeImpl.h"

#include <Error>

#include "values/UsableNumber.h"

#include <algorithm>

namespace VOR2 {

char const *const LinearPathNodeImpl::TYPE_NAME = "VOR2.LinearPathNode";

bool LinearPathNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || NodeImpl::isa(typeName);
}

void LinearPathNodeImpl::checkIndex(int index) const
{
    if (index < 0 || index >= m_points.size()) throwError(VOR2_InvalidLinearPathIndex);
}

QPointF LinearPathNodeImpl::point(int index) const
{
    checkIndex(index);
    return m_points[index];
}

void LinearPathNodeImpl::assign(QPolygonF const &points)
{
    if (!std::all_of(points.begin(), points.end(), [](QPointF const &p) { return isUsable(p); })) return;
    m_points = points;
    pathChanged();
}

void LinearPathNodeImpl::append(QPointF const &p)
{
    if (!isUsable(p)) return;
    m_points.append(p);
    pathChanged();
}

void LinearPathNodeImpl::translate(QPointF const &d) { assign(m_points.translated(d)); }

void LinearPathNodeImpl::scale(double s)
{
    if (s < 0.0) throwError(VOR2_NegativeLinearPathScale);
    if (!isUsable(s)) return;
    QPolygonF scaled = m_points;
    for (QPointF &p : scaled) p *= s;
    assign(scaled);
}

void LinearPathNodeImpl::setPoint(int index, QPointF const &p)
{
    checkIndex(index);
    if (!isUsable(p)) return;
    m_points[index] = p;
    pathChanged();
}

void LinearPathNodeImpl::setPoints(QPolygonF const &points) { assign(points); }

void LinearPathNodeImpl::pathChanged() { notifyGeometryChanged(false); }

} // namespace VOR2
