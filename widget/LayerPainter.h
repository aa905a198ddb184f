#pragma once
// Composes the published layer images of a Rendering into a view: for each
// visible layer from the base up, its background and then its image. Runs
// on the GUI thread inside a paint, with the Rendering locked by the
// caller. Copies pixels only: no scene is touched.

#include <QRect>

class QPainter;

namespace VOR2 {

class Rendering;

// Paints the exposed view rectangle `exposed` (view pixels).
void paintLayers(QPainter *painter, Rendering const &rendering, QRect const &exposed);

} // namespace VOR2
