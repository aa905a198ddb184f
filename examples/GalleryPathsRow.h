#pragma once
// The gallery's row of paths: open paths ending in arrow heads, a curve
// through marked points, a filled closed curve and an outlined polygon.

#include <Scene>

namespace demo {

// Adds the row to `scene`, five cells of `cellWidth` from `topLeft`, each
// node selectable and movable.
void addPathsRow(VOR2::Scene &scene, GLOX::GLPoint<double> const &topLeft, double cellWidth);

} // namespace demo
