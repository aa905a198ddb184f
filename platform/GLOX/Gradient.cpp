#include "GLOX/Gradient.h"

#include <QGradient>
#include <algorithm>

namespace GLOX {

namespace {
double clampPosition(double p)
{
    if (!(p > 0.0)) return 0.0; // NaN and negatives
    return std::min(p, 1.0);
}
} // namespace

Gradient Gradient::linear(GLPoint<double> const &start, GLPoint<double> const &end)
{
    Gradient g;
    g.m_type = Type::Linear;
    g.m_start = start;
    g.m_end = end;
    return g;
}

Gradient Gradient::radial(GLPoint<double> const &center, double radius)
{
    Gradient g;
    g.m_type = Type::Radial;
    g.m_center = center;
    g.m_focal = center;
    g.m_radius = radius;
    return g;
}

Gradient Gradient::conical(GLPoint<double> const &center, double angle)
{
    Gradient g;
    g.m_type = Type::Conical;
    g.m_center = center;
    g.m_angle = angle;
    return g;
}

void Gradient::setType(Type t) { m_type = t; changed(); }
void Gradient::setSpread(Spread s) { m_spread = s; changed(); }
void Gradient::setCoordinateMode(CoordinateMode m) { m_mode = m; changed(); }
void Gradient::setStart(GLPoint<double> const &p) { m_start = p; changed(); }
void Gradient::setEnd(GLPoint<double> const &p) { m_end = p; changed(); }
void Gradient::setCenter(GLPoint<double> const &p) { m_center = p; changed(); }
void Gradient::setRadius(double r) { m_radius = r; changed(); }
void Gradient::setFocalPoint(GLPoint<double> const &p) { m_focal = p; changed(); }
void Gradient::setAngle(double degrees) { m_angle = degrees; changed(); }

void Gradient::addStop(double position, Color const &color)
{
    m_stops.append(GradientStop{clampPosition(position), color});
    changed();
}

void Gradient::setStops(GList<GradientStop> const &stops)
{
    m_stops.clear();
    for (GradientStop const &s : stops) m_stops.append(GradientStop{clampPosition(s.position), s.color});
    changed();
}

void Gradient::clearStops()
{
    m_stops.clear();
    changed();
}

QGradient const *Gradient::getGradient() const
{
    if (m_type == Type::NoGradient) return nullptr;
    if (m_cache) return m_cache.get();

    std::shared_ptr<QGradient> g;
    switch (m_type) {
    case Type::Linear:
        g = std::make_shared<QLinearGradient>(toQPointF(m_start), toQPointF(m_end));
        break;
    case Type::Radial:
        g = std::make_shared<QRadialGradient>(toQPointF(m_center), m_radius, toQPointF(m_focal));
        break;
    case Type::Conical:
        g = std::make_shared<QConicalGradient>(toQPointF(m_center), m_angle);
        break;
    case Type::NoGradient:
        return nullptr;
    }
    g->setSpread(QGradient::Spread(int(m_spread)));
    g->setCoordinateMode(QGradient::CoordinateMode(int(m_mode)));
    // setColorAt keeps the stops sorted; a later stop at the same position
    // replaces an earlier one.
    for (GradientStop const &s : m_stops) g->setColorAt(s.position, toQColor(s.color));
    m_cache = g;
    return m_cache.get();
}

bool Gradient::operator==(Gradient const &o) const
{
    return m_type == o.m_type && m_spread == o.m_spread && m_mode == o.m_mode && m_start == o.m_start &&
           m_end == o.m_end && m_center == o.m_center && m_radius == o.m_radius && m_focal == o.m_focal &&
           m_angle == o.m_angle && m_stops == o.m_stops;
}

} // namespace GLOX
