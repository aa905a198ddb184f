#pragma once
// The outline and hit area of an open line (a segment or an open path),
// which has no interior: the stroke alone, whatever its line style, and a
// band around it kept wide enough to hit on a scene. Pure functions; host
// thread (they read nothing but their arguments).

#include <Bounds>
#include <Stroke>

#include "scene/IndexExtent.h"

#include <QPainterPath>

namespace VOR2 {

// Added to the stroke width by hit tests on a scene, in scene units.
constexpr double LINE_HIT_TOLERANCE = 4.0;

// `path` widened by the stroke's width, cap and join at `scale`, even for
// a stroke that draws nothing.
Bounds lineStrokedOutline(QPainterPath const &path, Stroke const &stroke, double scale);

// `path` widened, with Qt's default stroker, to the larger of the stroke
// width and twice `tolerance`, that width divided by `scale`. The division
// applies to a width already in scene units too, deliberately.
Bounds lineHitBounds(QPainterPath const &path, Stroke const &stroke, double scale, double tolerance);

// The extent of an open line whose bare box is `box`: the outline reaches
// `outlineGrowth` half widths of the stroke, the hit band the square cap
// of Qt's default stroker around max(W, 2 * tolerance) / s.
IndexExtent lineIndexExtent(QRectF const &box, Stroke const &stroke, double outlineGrowth, double tolerance);

} // namespace VOR2
