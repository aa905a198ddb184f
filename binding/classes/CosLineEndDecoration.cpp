// VOR2.LineEndDecoration: a node such as an arrow head at a line's end.
#include "LineEndDecoration"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

using Point = GLOX::GLPoint<double>;
using Decoration = LineEndDecoration;

// The rotation has no property of its own (desiredDirection sets it); it
// rides in the state so that a copy keeps the way its node points.
Value encodeDecoration(Decoration const &d)
{
    return Value::structure({{"RelativePosition", Value::scalar(d.getRelativePosition())},
                             {"LineBackoff", Value::scalar(d.getLineBackoff())},
                             {"ForwardDirection", fromPoint(d.getReferenceDirection())},
                             {"Position", fromPoint(d.getPosition())},
                             {"Origin", fromPoint(d.getOrigin())},
                             {"Rotation", Value::scalar(d.getRotation())},
                             {"Node", fromNode(d.getNode())}});
}

// Built around its node without placing it: reading a decoration must not
// move the node. Only the script's own changes (Node, desiredDirection,
// setParent) place it, as the library's setters do.
Decoration decodeDecoration(Value const &state)
{
    Decoration d(toNode(stateField(state, "Node")));
    d.setRelativePosition(toDouble(stateField(state, "RelativePosition")));
    d.setLineBackoff(toDouble(stateField(state, "LineBackoff")));
    d.setReferenceDirection(toPoint(stateField(state, "ForwardDirection")));
    d.setPosition(toPoint(stateField(state, "Position")));
    d.setOrigin(toPoint(stateField(state, "Origin")));
    d.setRotation(toDouble(stateField(state, "Rotation")));
    return d;
}

void scalarProperty(ClassBuilder &c, char const *name, char const *help, double (Decoration::*get)() const,
                    void (Decoration::*set)(double))
{
    c.property(
        name, "double scalar", help, [get](Self &s) { return Value::scalar((s.value<Decoration>().*get)()); },
        [set](Self &s, Value const &v) { (s.value<Decoration>().*set)(toDouble(v)); });
}

void pointProperty(ClassBuilder &c, char const *name, char const *help, Point (Decoration::*get)() const,
                   void (Decoration::*set)(Point const &))
{
    c.property(
        name, "double vector", help, [get](Self &s) { return fromPoint((s.value<Decoration>().*get)()); },
        [set](Self &s, Value const &v) { (s.value<Decoration>().*set)(toPoint(v)); });
}

ClassInfo cosLineEndDecoration()
{
    ClassBuilder c("VOR2.LineEndDecoration", ClassKind::Value, "",
                   "A node, such as an arrow head, placed at one end of a line or open path; the line stops short "
                   "of it by the backoff. VOR2.LineEndDecoration(node). Copies share the node. Numbers and points "
                   "that are not finite are ignored.");
    c.valueCodec<Decoration>(&encodeDecoration, &decodeDecoration);
    c.constructor("node", 1, [](Self &, Args const &a) {
        return fromValueOf(Decoration(toNode(a[0])), "VOR2.LineEndDecoration");
    });
    scalarProperty(c, "RelativePosition", "How far the node is shifted along its forward direction.",
                   &Decoration::getRelativePosition, &Decoration::setRelativePosition);
    scalarProperty(c, "LineBackoff", "How far the line stops short of its end, so that it does not show through.",
                   &Decoration::getLineBackoff, &Decoration::setLineBackoff);
    pointProperty(c, "ForwardDirection",
                  "The direction [dx dy] the node points in when not turned; a zero vector raises "
                  "VOR2:ZeroLengthDirectionVector.",
                  &Decoration::getReferenceDirection, &Decoration::setReferenceDirection);
    pointProperty(c, "Position", "Where [x y] the node's origin is placed, in the line's coordinates.",
                  &Decoration::getPosition, &Decoration::setPosition);
    pointProperty(c, "Origin", "The point [x y] of the node, in its own coordinates, that lands on Position.",
                  &Decoration::getOrigin, &Decoration::setOrigin);
    c.property(
        "Node", "VOR2.Node",
        "The decorating node, or empty. A new node takes the old one's place under the line and is placed.",
        [](Self &s) { return fromNode(s.value<Decoration>().getNode()); },
        [](Self &s, Value const &v) { s.value<Decoration>().setNode(toNode(v)); });
    c.method("desiredDirection", "Turns the node so that its forward direction points along [dx dy], and places it.",
             "setDirection")
        .overload("direction", 1, [](Self &s, Args const &a) {
            Point d = toPoint(a[0]);
            s.value<Decoration>().setDirection(d);
            return Value();
        });
    c.method("setParent", "Makes the node a child of the line node, and places it.")
        .overload("lineNode", 1, [](Self &s, Args const &a) {
            Node line = toNode(a[0]);
            s.value<Decoration>().setParent(line);
            return Value();
        });
    c.method("getBackoffVector",
             "How far [dx dy] the line's end stops short: the backoff along the way the node points; [0 0] "
             "without a node or a backoff.")
        .overload("", 0, [](Self &s, Args const &) { return fromPoint(s.value<Decoration>().getBackoffVector()); });
    return c.build();
}

ClassRegistration registration("VOR2.LineEndDecoration", &cosLineEndDecoration);

} // namespace

} // namespace VOR2::script
