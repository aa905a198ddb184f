#include "nodes/ClosedPathOutline.h"

#include "nodes/OutlineStroker.h"
#include "nodes/StrokeReach.h"

#include <algorithm>

namespace VOR2 {

Bounds closedStrokedOutline(QPainterPath const &path, Stroke const &stroke, double scale)
{
    return Bounds(strokedArea(path, stroke, scale, StrokerShape::FromStroke));
}

QRectF closedStrokedOutlineRect(QPainterPath const &path, Stroke const &stroke, double scale)
{
    return strokedAreaRect(path, stroke, scale, StrokerShape::FromStroke);
}

IndexExtent closedIndexExtent(Bounds const &bounds, Stroke const &stroke)
{
    double const growth = std::max(capGrowth(stroke.capStyle()), joinGrowth(stroke.joinStyle())) * CURVE_SLACK;
    return strokedExtent(GLOX::toQRectF(bounds.boundingRect()), stroke, growth);
}

} // namespace VOR2
