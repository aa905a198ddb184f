#pragma once
// GLOX::Gradient: a colour gradient as a plain value: a type (none, linear,
// radial, conical), its geometry, a spread, a coordinate mode and a list of
// colour stops. The default Gradient is of no type and draws nothing.
//
// getGradient() builds the matching QGradient on first call and keeps it in a
// cache that copies share; any change drops the cache. Not for concurrent
// use of one value from several threads.

#include "GLOX/Color.h"
#include "GLOX/Containers.h"
#include "GLOX/GLPoint.h"

#include <memory>

class QGradient;

namespace GLOX {

struct GradientStop {
    double position = 0.0; // 0 to 1 along the gradient
    Color color;

    bool operator==(GradientStop const &o) const { return position == o.position && color == o.color; }
    bool operator!=(GradientStop const &o) const { return !(*this == o); }
};

class Gradient {
public:
    enum class Type { NoGradient, Linear, Radial, Conical };
    // The orders of QGradient::Spread and QGradient::CoordinateMode.
    enum class Spread { Pad, Reflect, Repeat };
    enum class CoordinateMode { Logical, StretchToDevice, ObjectBoundingBox };

    Gradient() = default;

    // From start to end.
    static Gradient linear(GLPoint<double> const &start, GLPoint<double> const &end);
    // Around center out to radius, with the focal point at the centre.
    static Gradient radial(GLPoint<double> const &center, double radius);
    // Around center, starting at angle degrees counter-clockwise from 3 o'clock.
    static Gradient conical(GLPoint<double> const &center, double angle);

    Type type() const { return m_type; }
    void setType(Type t);
    Spread spread() const { return m_spread; }
    void setSpread(Spread s);
    CoordinateMode coordinateMode() const { return m_mode; }
    void setCoordinateMode(CoordinateMode m);

    // Linear geometry.
    GLPoint<double> start() const { return m_start; }
    void setStart(GLPoint<double> const &p);
    GLPoint<double> end() const { return m_end; }
    void setEnd(GLPoint<double> const &p);
    // Radial and conical geometry.
    GLPoint<double> center() const { return m_center; }
    void setCenter(GLPoint<double> const &p);
    double radius() const { return m_radius; }
    void setRadius(double r);
    GLPoint<double> focalPoint() const { return m_focal; }
    void setFocalPoint(GLPoint<double> const &p);
    double angle() const { return m_angle; }
    void setAngle(double degrees);

    // Stops, in the order given. Positions are clamped to [0, 1] (NaN to 0).
    GList<GradientStop> const &stops() const { return m_stops; }
    int stopCount() const { return m_stops.size(); }
    void addStop(double position, Color const &color);
    void setStops(GList<GradientStop> const &stops);
    void clearStops();

    // True when the gradient has a type, so that it draws.
    bool isValid() const { return m_type != Type::NoGradient; }

    // The Qt gradient of this value, or null when it has no type. The pointer
    // stays valid while this value lives unchanged. Allocates on the first
    // call after a change.
    QGradient const *getGradient() const;

    // Field by field; the cache does not count.
    bool operator==(Gradient const &o) const;
    bool operator!=(Gradient const &o) const { return !(*this == o); }

private:
    void changed() { m_cache.reset(); }

    Type m_type = Type::NoGradient;
    Spread m_spread = Spread::Pad;
    CoordinateMode m_mode = CoordinateMode::Logical;
    GLPoint<double> m_start;
    GLPoint<double> m_end;
    GLPoint<double> m_center;
    double m_radius = 0.0;
    GLPoint<double> m_focal;
    double m_angle = 0.0;
    GList<GradientStop> m_stops;
    mutable std::shared_ptr<QGradient const> m_cache;
};

} // namespace GLOX
