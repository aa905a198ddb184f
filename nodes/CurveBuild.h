#pragma once
// How a curved path's vertices become a QPainterPath: one cubic segment per
// pair of neighbours, with control points a third of a tangent away from
// each end. Pure functions; any thread.

#include <Vertex>

#include "GLOX/Containers.h"

#include <QPainterPath>

namespace VOR2 {

// Control points lie this fraction of a tangent from their vertex.
constexpr double TANGENT_THIRD = 0.3333333333333333;

// The curve through `vertices`, in order. With three or more, every
// interior vertex takes Catmull-Rom tangents, half the vector from its
// predecessor to its successor (forward) and its opposite (backward),
// whatever tangents it holds; so only the first vertex's forward tangent
// and the last one's backward tangent shape the curve. The vertices given
// are not changed. An empty path for no vertex, a lone moveTo for one.
QPainterPath buildCurve(GLOX::GVector<Vertex> vertices);

} // namespace VOR2
