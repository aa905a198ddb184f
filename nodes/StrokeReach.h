#pragma once
// How far a stroked outline's bounding box reaches beyond the box of the
// path it strokes, in half stroke widths, as Qt's path stroker draws it.
// Measured on Qt's stroker over every angle of a corner and of a line:
//   flat cap, bevel and round joins: 1 (the offset edge itself);
//   square cap: sqrt(2) (the corner of the square turned by 45 degrees);
//   round cap and curves: Qt's curve offsets overshoot by up to 0.5 per
//   cent, which CURVE_SLACK covers;
//   Qt's MiterJoin: cut at the miter limit of 2 pen widths along the
//   bisector, so its corners lie sqrt(1 + 4^2) half widths out;
//   SvgMiterJoin: falls back to a bevel past the limit, so 2.
// Pure functions; any thread.

#include <Stroke>

#include "scene/IndexExtent.h"

namespace VOR2 {

// Room for Qt's approximation of curves and round caps.
constexpr double CURVE_SLACK = 1.02;

// The growth of a stroke's cap, in half widths.
double capGrowth(StrokeCapStyle cap);
// The growth of a stroke's join, in half widths.
double joinGrowth(StrokeJoinStyle join);

// The extent of a path whose bare box is `geometry`, stroked with `stroke`
// grown by `growth` half widths; the bare box alone for NoStroke.
// `geometry` is normalised; a rectangle beyond usable numbers gives an
// empty extent.
IndexExtent strokedExtent(QRectF const &geometry, Stroke const &stroke, double growth);

// `r` with no negative side, or a null rectangle when `r` holds a number
// that is not usable.
QRectF usableNormalized(QRectF const &r);

} // namespace VOR2
