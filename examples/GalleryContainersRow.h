#pragma once
// The gallery's row of nodes that hold or draw others: a frame whose
// anchored children follow it as it grows and shrinks, a composite, a
// custom node and a plain container.

#include <Scene>

namespace demo {

// Adds the row to `scene`, its top at `top`. The frame breathes on a timer
// of the host loop for as long as it lives.
void addContainersRow(VOR2::Scene &scene, double top);

} // namespace demo
