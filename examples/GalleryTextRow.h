#pragma once
// The gallery's text row: texts to click into and type, each aligned
// differently around its marked position.

#include <Scene>

namespace demo {

// Adds the row with its top at `top`.
void galleryTextRow(VOR2::Scene &scene, double top);

} // namespace demo
