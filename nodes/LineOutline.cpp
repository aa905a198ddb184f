#include "nodes/LineOutline.h"

#include "nodes/OutlineStroker.h"
#include "nodes/StrokeReach.h"
#include "values/UsableNumber.h"

#include <QPainterPathStroker>
#include <algorithm>
#include <cmath>

namespace VOR2 {


Bounds lineStrokedOutline(QPainterPath const &path, Stroke const &stroke, double scale)
{
    return Bounds(strokeOutline(path, stroke, scale, StrokerShape::FromStroke));
}

Bounds lineHitBounds(QPainterPath const &path, Stroke const &stroke, double scale, double tolerance)
{
    double const w = std::max(stroke.width(scale), 2 * tolerance);
    QPainterPathStroker stroker;
    stroker.setWidth(w / scale);
    return Bounds(stroker.createStroke(path));
}

// With the stroke's width W(s) <= a + b / s, the outline reaches
// growth * W / 2. The hit band is max(W, 2 * tolerance) / s wide with a
// square cap: sqrt(2) / 2 * max(W / s, 2 * tolerance / s), and W / s <=
// a / s + b / s^2, which no constant and pixel part can bound as s falls.
IndexExtent lineIndexExtent(QRectF const &box, Stroke const &stroke, double outlineGrowth, double tolerance)
{
    IndexExtent extent;
    if (!isUsable(box)) return extent;
    extent.local = box.normalized();
    LodReach const width = stroke.widthBound();
    LodReach const outline = width.scaled(0.5 * outlineGrowth * CURVE_SLACK);
    double const hit = 0.5 * std::sqrt(2.0) * CURVE_SLACK;
    extent.reachSceneUnits = outline.sceneUnits;
    extent.reachPixels = std::max(outline.pixels, hit * std::max(width.sceneUnits, 2 * tolerance));
    extent.reachPixelsOverScale = hit * width.pixels;
    return extent;
}

} // namespace VOR2
