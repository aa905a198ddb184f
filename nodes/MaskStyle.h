#pragma once
// The painter set-up of a mask that follows the node's own drawing: the
// node's pen (width, cap, join, line style) and a solid brush, both opaque
// black. Effects paint masks to learn what a node covers.

#include <DrawStyle>

class QPainter;

namespace VOR2 {

// Gives the painter the style's pen at `scale` in opaque black and a solid
// opaque black brush. Antialiasing follows the style alone: thin lines are
// not smoothed here.
void applyMaskStyle(QPainter *painter, DrawStyle const &style, double scale);

} // namespace VOR2
