#include "binding/VertexConvert.h"

#include "binding/Convert.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

Vertex toVertex(Value const &v)
{
    if (v.type() == Value::Type::ValueObject) return toValueOf<Vertex>(v, "VOR2.Vertex");
    return Vertex(toPoint(v));
}

GLOX::GVector<Vertex> toVertices(Value const &v)
{
    GLOX::GVector<Vertex> vertices;
    if (v.type() == Value::Type::Cell) {
        for (Value const &item : v.items()) vertices.append(toVertex(item));
        return vertices;
    }
    for (auto const &p : toPoints(v)) vertices.append(Vertex(p));
    return vertices;
}

Value fromVertex(Vertex const &vertex) { return fromValueOf(vertex, "VOR2.Vertex"); }

Value fromVertices(GLOX::GVector<Vertex> const &vertices)
{
    std::vector<Value> items;
    for (Vertex const &vertex : vertices) items.push_back(fromVertex(vertex));
    return Value::cell(std::move(items));
}

} // namespace VOR2::script
