#pragma once
// The gallery's resize row: a rectangle with handles on its corners and
// sides to drag, and one whose handles are invisible but work.

#include <Scene>

namespace demo {

// Adds the row with its top at `top`.
void galleryResizeRow(VOR2::Scene &scene, double top);

} // namespace demo
