// VOR2.Vertex: a vertex of a curved path with its two tangents.
#include "Vertex"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

using Point = GLOX::GLPoint<double>;

Value encodeVertex(Vertex const &v)
{
    return Value::structure({{"Position", fromPoint(v.position)},
                             {"TangentForward", fromPoint(v.forwardTangent)},
                             {"TangentBackward", fromPoint(v.backwardTangent)}});
}

Vertex decodeVertex(Value const &state)
{
    return Vertex(toPoint(stateField(state, "Position")), toPoint(stateField(state, "TangentForward")),
                  toPoint(stateField(state, "TangentBackward")));
}

// The vertex's fields are plain members: each point property reads and
// writes one of them.
void pointProperty(ClassBuilder &c, char const *name, char const *help, Point Vertex::*member)
{
    c.property(
        name, "double vector", help, [member](Self &s) { return fromPoint(s.value<Vertex>().*member); },
        [member](Self &s, Value const &v) { s.value<Vertex>().*member = toPoint(v); });
}

ClassInfo cosVertex()
{
    ClassBuilder c("VOR2.Vertex", ClassKind::Value, "",
                   "A vertex of a curved path: its position and its forward and backward tangents, each [x y]. "
                   "VOR2.Vertex(position) or VOR2.Vertex(position, tangentForward, tangentBackward).");
    c.valueCodec<Vertex>(&encodeVertex, &decodeVertex);
    c.constructor("position", 1,
                  [](Self &, Args const &a) { return fromValueOf(Vertex(toPoint(a[0])), "VOR2.Vertex"); });
    c.constructor("position, tangentForward, tangentBackward", 3, [](Self &, Args const &a) {
        Vertex v(toPoint(a[0]), toPoint(a[1]), toPoint(a[2]));
        return fromValueOf(v, "VOR2.Vertex");
    });
    pointProperty(c, "Position", "The vertex's position [x y].", &Vertex::position);
    pointProperty(c, "TangentForward", "The tangent [dx dy] towards the next vertex, relative to the position.",
                  &Vertex::forwardTangent);
    pointProperty(c, "TangentBackward", "The tangent [dx dy] towards the previous vertex, relative to the position.",
                  &Vertex::backwardTangent);
    return c.build();
}

ClassRegistration registration("VOR2.Vertex", &cosVertex);

} // namespace

} // namespace VOR2::script
