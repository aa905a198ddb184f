#pragma once
// The marquee's band: the rectangle between its anchor and the pointer,
// normalised, so that a band dragged up or left of its anchor still has
// its corner at the smaller coordinates and a width and height that are
// not negative. A pointer on the anchor gives an empty band there. Pure;
// any thread.

#include "GLOX/GLPoint.h"
#include "GLOX/GLRect.h"

namespace VOR2 {

GLOX::GLRect<double> marqueeBand(GLOX::GLPoint<double> const &anchor, GLOX::GLPoint<double> const &pointer);

} // namespace VOR2
