#include "nodes/StrokeReach.h"

#include "values/UsableNumber.h"

#include <cmath>

namespace VOR2 {

namespace {
// QPainterPathStroker's miter limit, in pen widths; nodes never change it.
constexpr double MITER_LIMIT = 2.0;
} // namespace

double capGrowth(StrokeCapStyle cap)
{
    return cap == SquareCap ? std::sqrt(2.0) : 1.0;
}

double joinGrowth(StrokeJoinStyle join)
{
    switch (join) {
    case BevelJoin:
    case RoundJoin: return 1.0;
    case SvgMiterJoin: return MITER_LIMIT;
    default: {
        // Cut at MITER_LIMIT pen widths (2 * MITER_LIMIT half widths) out,
        // a half width to each side.
        double const out = 2.0 * MITER_LIMIT;
        return std::sqrt(1.0 + out * out);
    }
    }
}

QRectF usableNormalized(QRectF const &r)
{
    return isUsable(r) ? r.normalized() : QRectF();
}

IndexExtent strokedExtent(QRectF const &geometry, Stroke const &stroke, double growth)
{
    IndexExtent extent;
    if (!isUsable(geometry)) return extent;
    extent.local = geometry.normalized();
    if (stroke.isNoStroke()) return extent;
    LodReach const half = stroke.widthBound().scaled(0.5 * growth);
    extent.reachSceneUnits = half.sceneUnits;
    extent.reachPixels = half.pixels;
    return extent;
}

} // namespace VOR2
