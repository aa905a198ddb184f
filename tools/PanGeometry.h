#pragma once
// The geometry of panning: how far a pan may move the view so that it stays
// inside a margin around the scene, and whether a step hit that margin.
// Pure functions of plain values; any thread.

#include "GLOX/GLPoint.h"
#include "GLOX/GLRect.h"

namespace VOR2::PanGeometry {

using Point = GLOX::GLPoint<double>;
using Rect = GLOX::GLRect<double>;

// Share of the view's size that may lie beyond each edge of the scene: nearly
// a whole view of empty space, and at least a tenth of the view shows the
// scene.
constexpr double MARGIN_SHARE = 0.9;

// The area the view must stay in: the scene grown on every side by
// MARGIN_SHARE of the view's width (left and right) and height (top and
// bottom).
Rect panBounds(Rect const &scene, Rect const &view);

// The part of delta that keeps the view's interval [lo, hi], which a pan
// moves to [lo - delta, hi - delta], inside [minEdge, maxEdge]: a step that
// would cross an edge stops exactly at it; a view already outside (after a
// zoom) may move back in freely but not further out.
double limitDelta(double delta, double lo, double hi, double minEdge, double maxEdge);

struct PanStep {
    Point delta;         // the limited delta, in scene units
    bool hitX = false;   // the x delta was cut by the margin
    bool hitY = false;
};

// One pan of the view by delta scene units (the view moves by -delta),
// limited on each axis to bounds.
PanStep limitPan(Point const &delta, Rect const &view, Rect const &bounds);

} // namespace VOR2::PanGeometry
