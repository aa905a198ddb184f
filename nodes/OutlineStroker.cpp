#include "nodes/OutlineStroker.h"

#include "nodes/StylePainter.h"

#include <QPainterPathStroker>
#include <vector>

namespace VOR2 {

QPainterPath strokeOutline(QPainterPath const &path, Stroke const &stroke, double scale, StrokerShape shape)
{
    QPen pen = penForStroke(stroke, scale);
    QPainterPathStroker stroker;
    // The width in scene units, also where the pen has to carry it in
    // device pixels.
    stroker.setWidth(stroke.width(scale));
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

QRectF strokedAreaRect(QPainterPath const &path, Stroke const &stroke, double scale, StrokerShape shape)
{
    if (stroke.isNoStroke()) return path.boundingRect();
    return strokeOutline(path, stroke, scale, shape).boundingRect() | path.boundingRect();
}

QRectF pointStrokedRect(QRectF const &r, Stroke const &stroke, double scale)
{
    double const half = stroke.isNoStroke() ? 0.0 : 0.5 * stroke.width(scale);
    return r.adjusted(-half, -half, half, half);
}

QPainterPath convexStrokedArea(QPainterPath const &path, Stroke const &stroke, double scale)
{
    if (stroke.isNoStroke()) return path;
    QPainterPath const outline = strokeOutline(path, stroke, scale, StrokerShape::Default);
    // The outline's subpaths, curves kept.
    std::vector<QPainterPath> contours;
    for (int i = 0; i < outline.elementCount(); ++i) {
        QPainterPath::Element const e = outline.elementAt(i);
        if (e.type == QPainterPath::MoveToElement) {
            contours.emplace_back(QPointF(e));
        } else if (contours.empty()) {
            return outline.united(path);
        } else if (e.type == QPainterPath::LineToElement) {
            contours.back().lineTo(e);
        } else if (e.type == QPainterPath::CurveToElement && i + 2 < outline.elementCount()) {
            contours.back().cubicTo(e, outline.elementAt(i + 1), outline.elementAt(i + 2));
            i += 2;
        }
    }
    if (contours.size() != 2) return outline.united(path);
    auto area = [](QPainterPath const &p) {
        QRectF r = p.controlPointRect();
        return r.width() * r.height();
    };
    QPainterPath outer = contours[area(contours[0]) >= area(contours[1]) ? 0 : 1];
    outer.closeSubpath();
    return outer;
}

QPainterPath asOneRegion(QPainterPath const &outline)
{
    int contours = 0;
    for (int i = 0; i < outline.elementCount() && contours < 2; ++i)
        contours += outline.elementAt(i).type == QPainterPath::MoveToElement;
    return contours < 2 ? outline : outline.simplified();
}

} // namespace VOR2
