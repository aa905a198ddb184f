#pragma once
// The gallery's row of image effects: a glow, a shadow, an inner glow, an
// inner shadow and a colour overlay, on several node kinds.

#include <Scene>

namespace demo {

// Adds the row's nodes to `scene`, their top edge at `top`.
void addGlowRow(VOR2::Scene &scene, double top);

} // namespace demo
