// VOR2.Gradient: a colour gradient value with its stops.
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EnumTables.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

#include "GLOX/Gradient.h"

#include <cmath>

namespace VOR2::script {

namespace {

using GLOX::Gradient;
using GLOX::GradientStop;

// Stops cross as a 5 by n matrix, one column [position; red; green; blue; alpha] a stop.
Value fromStops(GLOX::GList<GradientStop> const &stops)
{
    std::vector<double> n;
    for (GradientStop const &s : stops)
        n.insert(n.end(), {s.position, s.color.red(), s.color.green(), s.color.blue(), s.color.alpha()});
    return Value::matrix(stops.isEmpty() ? 0 : 5, stops.size(), std::move(n));
}

GLOX::GList<GradientStop> toStops(Value const &v)
{
    GLOX::GList<GradientStop> stops;
    if (v.isEmpty()) return stops;
    if (v.type() != Value::Type::Double || v.rows() != 5) wrongType("5 by n double matrix of stops", v);
    auto const &n = v.numbers();
    for (std::size_t c = 0; c < v.cols(); ++c) {
        double const *column = n.data() + 5 * c;
        stops.append(GradientStop{column[0], toColor(Value::row({column[1], column[2], column[3], column[4]}))});
    }
    return stops;
}

Value encodeGradient(Gradient const &g)
{
    return Value::structure({{"Type", fromEnum(g.type())},
                             {"Spread", fromEnum(g.spread())},
                             {"CoordinateMode", fromEnum(g.coordinateMode())},
                             {"Start", fromPoint(g.start())},
                             {"End", fromPoint(g.end())},
                             {"FocalPoint", fromPoint(g.focalPoint())},
                             {"Radius", Value::scalar(g.radius())},
                             {"Center", fromPoint(g.center())},
                             {"Angle", Value::scalar(g.angle())},
                             {"Stops", fromStops(g.stops())}});
}

Gradient decodeGradient(Value const &state)
{
    Gradient g;
    g.setType(toEnum<Gradient::Type>(stateField(state, "Type")));
    g.setSpread(toEnum<Gradient::Spread>(stateField(state, "Spread")));
    g.setCoordinateMode(toEnum<Gradient::CoordinateMode>(stateField(state, "CoordinateMode")));
    g.setStart(toPoint(stateField(state, "Start")));
    g.setEnd(toPoint(stateField(state, "End")));
    g.setFocalPoint(toPoint(stateField(state, "FocalPoint")));
    g.setRadius(toDouble(stateField(state, "Radius")));
    g.setCenter(toPoint(stateField(state, "Center")));
    g.setAngle(toDouble(stateField(state, "Angle")));
    g.setStops(toStops(stateField(state, "Stops")));
    return g;
}

// A stop's index, from 0 as the library counts; "VOR2:InvalidIndex" when
// the gradient has no such stop.
int toStopIndex(Gradient const &g, Value const &v)
{
    double d = toDouble(v);
    if (!(d >= 0 && d < g.stopCount()) || d != std::floor(d))
        raise("VOR2:InvalidIndex", "The gradient has no stop " + v.describe() + " (it has " +
                                       std::to_string(g.stopCount()) + ", counted from 0)");
    return int(d);
}

// A point property: get and set through the library's member pair.
void pointProperty(ClassBuilder &c, char const *name, char const *help, GLOX::GLPoint<double> (Gradient::*get)() const,
                   void (Gradient::*set)(GLOX::GLPoint<double> const &))
{
    c.property(
        name, "double vector", help, [get](Self &s) { return fromPoint((s.value<Gradient>().*get)()); },
        [set](Self &s, Value const &v) { (s.value<Gradient>().*set)(toPoint(v)); });
}

void scalarProperty(ClassBuilder &c, char const *name, char const *help, double (Gradient::*get)() const,
                    void (Gradient::*set)(double))
{
    c.property(
        name, "double scalar", help, [get](Self &s) { return Value::scalar((s.value<Gradient>().*get)()); },
        [set](Self &s, Value const &v) { (s.value<Gradient>().*set)(toDouble(v)); });
}

template <class E>
void enumProperty(ClassBuilder &c, char const *name, char const *help, E (Gradient::*get)() const,
                  void (Gradient::*set)(E))
{
    c.property(
        name, "char vector", help, [get](Self &s) { return fromEnum((s.value<Gradient>().*get)()); },
        [set](Self &s, Value const &v) { (s.value<Gradient>().*set)(toEnum<E>(v)); });
}

Value makeGradient(Args const &a)
{
    Gradient::Type type = toEnum<Gradient::Type>(a[0]);
    GLOX::GLPoint<double> point = toPoint(a[1]);
    switch (type) {
    case Gradient::Type::Linear: return fromValueOf(Gradient::linear(point, toPoint(a[2])), "VOR2.Gradient");
    case Gradient::Type::Radial: return fromValueOf(Gradient::radial(point, toDouble(a[2])), "VOR2.Gradient");
    case Gradient::Type::Conical: return fromValueOf(Gradient::conical(point, toDouble(a[2])), "VOR2.Gradient");
    case Gradient::Type::NoGradient: break;
    }
    raise("VOR2:WrongType", "VOR2.Gradient(type, ...) takes Linear, Radial or Conical");
}

ClassInfo cosGradient()
{
    ClassBuilder c("VOR2.Gradient", ClassKind::Value, "",
                   "A colour gradient with its colour stops. VOR2.Gradient() has no type and draws nothing; "
                   "VOR2.Gradient('Linear', start, end), VOR2.Gradient('Radial', center, radius) or "
                   "VOR2.Gradient('Conical', center, angleDegrees). Points are [x y].");
    c.valueCodec<Gradient>(&encodeGradient, &decodeGradient);
    c.constructor("type, startOrCenter, endOrRadiusOrAngle", 3, [](Self &, Args const &a) { return makeGradient(a); });
    enumProperty(c, "Type", "NoGradient, Linear, Radial or Conical.", &Gradient::type, &Gradient::setType);
    enumProperty(c, "Spread", "Beyond its ends the gradient is Pad (extends the end colours), Reflect or Repeat.",
                 &Gradient::spread, &Gradient::setSpread);
    enumProperty(c, "CoordinateMode",
                 "Logical (the node's coordinates), StretchToDevice or ObjectBoundingBox (0 to 1 across the "
                 "shape's bounds).",
                 &Gradient::coordinateMode, &Gradient::setCoordinateMode);
    pointProperty(c, "Start", "The start [x y] of a linear gradient.", &Gradient::start, &Gradient::setStart);
    pointProperty(c, "End", "The end [x y] of a linear gradient.", &Gradient::end, &Gradient::setEnd);
    pointProperty(c, "FocalPoint", "The focal point [x y] of a radial gradient.", &Gradient::focalPoint,
                  &Gradient::setFocalPoint);
    scalarProperty(c, "Radius", "The radius of a radial gradient.", &Gradient::radius, &Gradient::setRadius);
    pointProperty(c, "Center", "The centre [x y] of a radial or conical gradient.", &Gradient::center,
                  &Gradient::setCenter);
    scalarProperty(c, "Angle", "The start angle of a conical gradient, in degrees counter-clockwise from 3 o'clock.",
                   &Gradient::angle, &Gradient::setAngle);

    c.method("clearColorStops", "Removes every colour stop.").overload("", 0, [](Self &s, Args const &) {
        s.value<Gradient>().clearStops();
        return Value();
    });
    c.method("clearAll", "Makes this the empty gradient: no type, no stops, default geometry.")
        .overload("", 0, [](Self &s, Args const &) {
            s.value<Gradient>() = Gradient();
            return Value();
        });
    c.method("getStopCount", "The number of colour stops.").overload("", 0, [](Self &s, Args const &) {
        return Value::scalar(s.value<Gradient>().stopCount());
    });
    c.method("getStopPercent", "The position of stop index (from 0), from 0 (start) to 1 (end).")
        .overload("index", 1, [](Self &s, Args const &a) {
            Gradient const &g = s.value<Gradient>();
            return Value::scalar(g.stops()[toStopIndex(g, a[0])].position);
        });
    c.method("getStopColor", "The colour [red green blue alpha] of stop index (from 0).")
        .overload("index", 1, [](Self &s, Args const &a) {
            Gradient const &g = s.value<Gradient>();
            return fromColor(g.stops()[toStopIndex(g, a[0])].color);
        });
    c.method("setStopColor", "Sets the colour [red green blue (alpha)] of stop index (from 0).")
        .overload("index, color", 2, [](Self &s, Args const &a) {
            Gradient &g = s.value<Gradient>();
            int i = toStopIndex(g, a[0]);
            GLOX::Color color = toColor(a[1]);
            GLOX::GList<GradientStop> stops = g.stops();
            stops[i].color = color;
            g.setStops(stops);
            return Value();
        });
    c.method("setStopPercent", "Moves stop index (from 0) to a position from 0 to 1 (clamped).")
        .overload("index, position", 2, [](Self &s, Args const &a) {
            Gradient &g = s.value<Gradient>();
            int i = toStopIndex(g, a[0]);
            double position = toDouble(a[1]);
            GLOX::GList<GradientStop> stops = g.stops();
            stops[i].position = position;
            g.setStops(stops);
            return Value();
        });
    c.method("addStop", "Adds a stop of a colour [red green blue (alpha)] at a position from 0 to 1 (clamped).")
        .overload("position, color", 2, [](Self &s, Args const &a) {
            double position = toDouble(a[0]);
            GLOX::Color color = toColor(a[1]);
            s.value<Gradient>().addStop(position, color);
            return Value();
        });
    return c.build();
}

ClassRegistration registration("VOR2.Gradient", &cosGradient);

} // namespace

} // namespace VOR2::script
