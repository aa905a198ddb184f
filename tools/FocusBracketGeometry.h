#pragma once
// The geometry of a focus bracket: an L of two strips in a square box just
// outside one corner of a node. The bracket's own origin sits on the
// corner; the box is 8 pixels on a side at view scale 1 and follows the
// selection outline's scale function (it stays readable at every zoom), and
// lies 0.5 units outside the corner on each axis: left of and above the
// top-left corner, right of and below the bottom-right one, centred on a
// centre alignment. Each strip covers a third of the box (0.333, the far
// one from 0.667) on the side the alignment names; a centre alignment
// gives no strip on that axis. Pure functions.

#include <Alignment>

#include <QRectF>
#include <vector>

namespace VOR2 {

// The side of the box in scene units at view scale `scale` (> 0).
double focusBracketSize(double scale);
// The box in the bracket's coordinates at view scale `scale`.
QRectF focusBracketBox(HorizontalAlignment h, VerticalAlignment v, double scale);
// The strips that form the L inside `box`: the vertical one first (when
// the horizontal alignment is not centred), then the horizontal one.
std::vector<QRectF> focusBracketStrips(HorizontalAlignment h, VerticalAlignment v, QRectF const &box);

} // namespace VOR2
