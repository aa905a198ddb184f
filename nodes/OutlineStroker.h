#pragma once
// The area a stroked outline covers, for the stroked bounds of shapes drawn
// from a QPainterPath. Widths come from Stroke::width(scale), so a hairline
// covers one device pixel at every scale.

#include <Stroke>

#include <QPainterPath>

namespace VOR2 {

// Which pen shape the stroker takes: Qt's default cap and join, or those
// of the stroke.
enum class StrokerShape { Default, FromStroke };

// The outline of the stroke alone along `path`, as wide as `stroke` at
// `scale`, whatever its line style. Where the stroke crosses or folds over
// itself the outline's contours overlap; its winding fill rule makes them
// one region for every area test and union, so it is kept as it is (merging
// the contours is a boolean operation that costs far more than the stroke).
// Whoever draws its edge merges it first: see asOneRegion.
QPainterPath strokeOutline(QPainterPath const &path, Stroke const &stroke, double scale, StrokerShape shape);

// What painting `path` with `stroke` at `scale` covers: the path alone when
// the stroke draws nothing, else the stroke's outline united with the path.
QPainterPath strokedArea(QPainterPath const &path, Stroke const &stroke, double scale, StrokerShape shape);
// The bounding rectangle of strokedArea, from the path's and the stroke
// outline's own rectangles, without their union.
QRectF strokedAreaRect(QPainterPath const &path, Stroke const &stroke, double scale, StrokerShape shape);

// strokedArea for one closed convex subpath (an ellipse, a rounded
// rectangle), with Qt's default pen shape: the stroke's outer contour, which
// holds the path and the stroke's inner half, curves kept. It skips the
// boolean union, which costs a hundred times more and flattens the curves;
// a stroke outline of other than one outer and one inner contour falls back
// to the union.
QPainterPath convexStrokedArea(QPainterPath const &path, Stroke const &stroke, double scale);

// The stroked outline of a rectangle or ellipse of no size, which makes no
// path: the point `r` grown by half the stroke's width at `scale` (as a
// rectangle node's), so that it lies where the shape is and not at the
// origin.
QRectF pointStrokedRect(QRectF const &r, Stroke const &stroke, double scale);

// `outline` with overlapping contours merged, so that drawing its edge
// draws no edge inside the region; an outline of one contour as it is.
QPainterPath asOneRegion(QPainterPath const &outline);

} // namespace VOR2
