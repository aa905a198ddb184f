#pragma once
// The demo's gallery scene: every primitive node kind, at several stroke
// styles, fills and scale functions, an image node, outline effects and
// paths.

#include <Scene>

namespace demo {

// Builds the gallery into `scene`.
void buildGallery(VOR2::Scene &scene);

// Renders the whole scene at `scale` pixels per unit, background included.
QImage renderAtScale(VOR2::Scene const &scene, double scale, int margin);

} // namespace demo
