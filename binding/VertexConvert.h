#pragma once
// Vertices of curved paths at the script border: a VOR2.Vertex value, or a
// point [x y] for a vertex without tangents. A list of vertices is a cell of
// those, or the points of a 2xn or nx2 array.

#include "Vertex"
#include "binding/ScriptValue.h"

#include "GLOX/Containers.h"

namespace VOR2::script {

Vertex toVertex(Value const &v);
GLOX::GVector<Vertex> toVertices(Value const &v);
Value fromVertex(Vertex const &vertex);
// A cell of VOR2.Vertex values.
Value fromVertices(GLOX::GVector<Vertex> const &vertices);

} // namespace VOR2::script
