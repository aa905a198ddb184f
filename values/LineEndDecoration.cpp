#include <LineEndDecoration>

#include <Error>

#include "scene/NodeImpl.h"
#include "values/UsableNumber.h"

#include <QTransform>
#include <QtMath>
#include <algorithm>
#include <cfloat>
#include <cmath>

namespace VOR2 {

namespace {
double dot(GLOX::GLPoint<double> const &a, GLOX::GLPoint<double> const &b) { return a.x * b.x + a.y * b.y; }
double cross(GLOX::GLPoint<double> const &a, GLOX::GLPoint<double> const &b) { return a.x * b.y - a.y * b.x; }
bool isZeroLength(GLOX::GLPoint<double> const &v) { return std::abs(dot(v, v)) <= DBL_EPSILON; }

// The signed angle in radians that turns `from` onto `to`; 0 when either
// has no length.
double signedAngle(GLOX::GLPoint<double> const &from, GLOX::GLPoint<double> const &to)
{
    if (isZeroLength(from) || isZeroLength(to)) return 0.0;
    double cosine = dot(from, to) / (std::sqrt(dot(from, from)) * std::sqrt(dot(to, to)));
    // Rounding can push parallel vectors just past +-1, outside acos.
    double angle = std::acos(std::clamp(cosine, -1.0, 1.0));
    return cross(from, to) < 0 ? -angle : angle;
}

QTransform rotation(double radians) { return QTransform().rotate(qRadiansToDegrees(radians)); }
} // namespace

void LineEndDecoration::setNode(Node const &node)
{
    Node line = m_node.isValid() ? m_node.getParent() : Node();
    m_node = node;
    if (line.isValid() && m_node.isValid()) m_node.setParent(line);
    updateTransform();
}

namespace {
template <typename T>
void setIfUsable(T &field, T const &value)
{
    if (isUsable(value)) field = value;
}
} // namespace

void LineEndDecoration::setPosition(GLOX::GLPoint<double> const &p) { setIfUsable(m_position, p); }
void LineEndDecoration::setOrigin(GLOX::GLPoint<double> const &p) { setIfUsable(m_origin, p); }
void LineEndDecoration::setRotation(double radians) { setIfUsable(m_rotation, radians); }
void LineEndDecoration::setRelativePosition(double d) { setIfUsable(m_relativePosition, d); }
void LineEndDecoration::setLineBackoff(double d) { setIfUsable(m_lineBackoff, d); }

void LineEndDecoration::setReferenceDirection(GLOX::GLPoint<double> const &v)
{
    if (!isUsable(v)) return;
    if (isZeroLength(v)) throwError(VOR2_ZeroLengthDirectionVector);
    m_referenceDirection = v;
}

void LineEndDecoration::setDirection(GLOX::GLPoint<double> const &d)
{
    if (!isUsable(d)) return;
    m_rotation = signedAngle(m_referenceDirection, d);
    updateTransform();
}

GLOX::GLPoint<double> LineEndDecoration::getBackoffVector() const
{
    if (!isValid() || m_lineBackoff == 0.0) return {0.0, 0.0};
    // The same turn the node's transform applies, so the vector points where
    // the node points.
    QPointF along = rotation(m_rotation).map(GLOX::toQPointF(m_referenceDirection));
    return GLOX::toDPoint(along) * m_lineBackoff;
}

void LineEndDecoration::setParent(Node const &lineNode)
{
    if (m_node.isValid()) m_node.setParent(lineNode);
    updateTransform();
}

void LineEndDecoration::updateTransform() const
{
    if (!isValid()) return;
    GLOX::GLPoint<double> shift = m_referenceDirection * m_relativePosition - m_origin;
    QTransform t;
    t.translate(m_position.x, m_position.y);
    t.rotate(qRadiansToDegrees(m_rotation));
    t.translate(shift.x, shift.y);
    m_node.setTransform(GLOX::Transform(t));
}

void LineEndDecoration::boundsChanging() const
{
    if (isValid()) m_node.getValidImpl()->notifyGeometryChanged(false);
}

bool LineEndDecoration::operator==(LineEndDecoration const &o) const
{
    return m_relativePosition == o.m_relativePosition && m_lineBackoff == o.m_lineBackoff &&
           m_referenceDirection == o.m_referenceDirection && m_position == o.m_position &&
           m_origin == o.m_origin && m_rotation == o.m_rotation && m_node == o.m_node;
}

} // namespace VOR2
