#pragma once
// The outline of a closed path, filled and stroked: the path united with
// its stroke, as for a shape. Pure functions; host thread.

#include <Bounds>
#include <Stroke>

#include "scene/IndexExtent.h"

#include <QPainterPath>

namespace VOR2 {

// `path` united with its stroke at `scale`, with the stroke's cap and
// join; the path alone for a stroke that draws nothing.
Bounds closedStrokedOutline(QPainterPath const &path, Stroke const &stroke, double scale);
// Its bounding rectangle, without the union.
QRectF closedStrokedOutlineRect(QPainterPath const &path, Stroke const &stroke, double scale);

// The box of `bounds`, reaching half the stroke width's bound grown by the
// larger of cap and join.
IndexExtent closedIndexExtent(Bounds const &bounds, Stroke const &stroke);

} // namespace VOR2
