#include "nodes/OutlineStroker.h"

#include "nodes/StylePainter.h"

#include <QPainterPathStroker>

namespace VOR2 {

QPainterPath strokeOutline(QPainterPath const &path, Stroke const &stroke, double scale, StrokerShape shape)
{
    QPen pen = penForStroke(stroke, scale);
    QPainterPathStroker stroker;
    stroker.setWidth(pen.widthF());
    if (shape == StrokerShape::FromStroke) {
        stroker.setCapStyle(pen.capStyle());
        stroker.setJoinStyle(pen.joinStyle());
    }
    return stroker.createStroke(path);
}

QPainterPath strokedArea(QPainterPath const &path, Stroke const &stroke, double scale, StrokerShape shape)
{
    if (stroke.isNoStroke()) return path;
    return strokeOutline(path, stroke, scale, shape).united(path);
}

} // namespace VOR2
