// VOR2.Shape: an outline of lines, curves and closed figures.
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

#include "GLOX/Shape.h"

#include <QFont>
#include <QPolygonF>

namespace VOR2::script {

namespace {

using GLOX::Shape;

QPointF toQPoint(Value const &v)
{
    auto p = toPoint(v);
    return QPointF(p.x, p.y);
}

QRectF toQRect(Value const &v)
{
    auto r = toRect(v);
    return QRectF(r.x, r.y, r.width, r.height);
}

Value fromQRect(QRectF const &r) { return Value::row({r.x(), r.y(), r.width(), r.height()}); }

QPainterPath pathOf(Value const &v) { return toCopied<Shape>(v, "VOR2.Shape").getPath(); }

Value newShape(QPainterPath const &path) { return BindingRegistry::instance().announceCopied(Shape(path), "VOR2.Shape"); }

// Changes the shape in place: every script object of it sees the change.
template <class F>
Value edit(Self &s, F &&change)
{
    Shape &shape = s.copied<Shape>();
    QPainterPath path = shape.getPath();
    change(path);
    shape.setPath(path);
    return Value();
}

QPainterPath const &path(Self &s) { return s.copied<Shape>().getPath(); }

void addFigures(ClassBuilder &c)
{
    c.method("addEllipse", "Adds the ellipse inside [x y width height], or the one at centre [x y] with radii rx and ry.")
        .overload("rect", 1,
                  [](Self &s, Args const &a) {
                      QRectF r = toQRect(a[0]);
                      return edit(s, [&](QPainterPath &p) { p.addEllipse(r); });
                  })
        .overload("center, rx, ry", 3, [](Self &s, Args const &a) {
            QPointF center = toQPoint(a[0]);
            double rx = toDouble(a[1]), ry = toDouble(a[2]);
            return edit(s, [&](QPainterPath &p) { p.addEllipse(center, rx, ry); });
        });
    c.method("addPath", "Adds the figures of another shape.").overload("shape", 1, [](Self &s, Args const &a) {
        QPainterPath other = pathOf(a[0]);
        return edit(s, [&](QPainterPath &p) { p.addPath(other); });
    });
    c.method("addPolygon", "Adds the polygon through the points, a 2xn or nx2 array (not closed by itself).")
        .overload("points", 1, [](Self &s, Args const &a) {
            QPolygonF polygon;
            for (auto const &pt : toPoints(a[0])) polygon << QPointF(pt.x, pt.y);
            return edit(s, [&](QPainterPath &p) { p.addPolygon(polygon); });
        });
    c.method("addRect", "Adds the rectangle [x y width height] as a closed figure.")
        .overload("rect", 1, [](Self &s, Args const &a) {
            QRectF r = toQRect(a[0]);
            return edit(s, [&](QPainterPath &p) { p.addRect(r); });
        });
    c.method("addRoundedRect", "Adds the rectangle [x y width height] with corner radii xRadius and yRadius.")
        .overload("rect, xRadius, yRadius", 3, [](Self &s, Args const &a) {
            QRectF r = toQRect(a[0]);
            double rx = toDouble(a[1]), ry = toDouble(a[2]);
            return edit(s, [&](QPainterPath &p) { p.addRoundedRect(r, rx, ry); });
        });
    c.method("addText", "Adds the outline of the text in the default font, its baseline starting at [x y].")
        .overload("point, text", 2, [](Self &s, Args const &a) {
            QPointF at = toQPoint(a[0]);
            QString text = QString::fromStdString(toString(a[1]));
            return edit(s, [&](QPainterPath &p) { p.addText(at, QFont(), text); });
        });
}

void addSegments(ClassBuilder &c)
{
    c.method("moveTo", "Starts a new figure at [x y].").overload("point", 1, [](Self &s, Args const &a) {
        QPointF pt = toQPoint(a[0]);
        return edit(s, [&](QPainterPath &p) { p.moveTo(pt); });
    });
    c.method("lineTo", "Adds a straight line to [x y].").overload("point", 1, [](Self &s, Args const &a) {
        QPointF pt = toQPoint(a[0]);
        return edit(s, [&](QPainterPath &p) { p.lineTo(pt); });
    });
    c.method("quadTo", "Adds a quadratic curve to endPoint with the control point c.")
        .overload("c, endPoint", 2, [](Self &s, Args const &a) {
            QPointF c1 = toQPoint(a[0]), end = toQPoint(a[1]);
            return edit(s, [&](QPainterPath &p) { p.quadTo(c1, end); });
        });
    c.method("cubicTo", "Adds a cubic curve to endPoint with the control points c1 and c2.")
        .overload("c1, c2, endPoint", 3, [](Self &s, Args const &a) {
            QPointF c1 = toQPoint(a[0]), c2 = toQPoint(a[1]), end = toQPoint(a[2]);
            return edit(s, [&](QPainterPath &p) { p.cubicTo(c1, c2, end); });
        });
    c.method("arcTo", "Adds an arc of the ellipse in rect from startAngle over sweepLength, in degrees "
                      "counter-clockwise.")
        .overload("rect, startAngle, sweepLength", 3, [](Self &s, Args const &a) {
            QRectF r = toQRect(a[0]);
            double start = toDouble(a[1]), sweep = toDouble(a[2]);
            return edit(s, [&](QPainterPath &p) { p.arcTo(r, start, sweep); });
        });
    c.method("arcMoveTo", "Starts a new figure on the ellipse in rect at the angle in degrees.")
        .overload("rect, angle", 2, [](Self &s, Args const &a) {
            QRectF r = toQRect(a[0]);
            double angle = toDouble(a[1]);
            return edit(s, [&](QPainterPath &p) { p.arcMoveTo(r, angle); });
        });
    c.method("closeSubpath", "Closes the current figure with a line back to its start.")
        .overload("", 0, [](Self &s, Args const &) { return edit(s, [](QPainterPath &p) { p.closeSubpath(); }); });
    c.method("connectPath", "Adds another shape, joined to this one's last point by a line.")
        .overload("shape", 1, [](Self &s, Args const &a) {
            QPainterPath other = pathOf(a[0]);
            return edit(s, [&](QPainterPath &p) { p.connectPath(other); });
        });
}

void addQueries(ClassBuilder &c)
{
    c.method("contains", "True when the point [x y], the rectangle [x y width height] or the shape lies inside.")
        .overload("point", 1, [](Self &s, Args const &a) {
            QPointF pt = toQPoint(a[0]);
            return Value::logical(path(s).contains(pt));
        })
        .overload("rect", 1, [](Self &s, Args const &a) {
            QRectF r = toQRect(a[0]);
            return Value::logical(path(s).contains(r));
        })
        .overload("shape", 1, [](Self &s, Args const &a) {
            QPainterPath other = pathOf(a[0]);
            return Value::logical(path(s).contains(other));
        });
    c.method("intersects", "True when the rectangle [x y width height] or the shape overlaps this one.")
        .overload("rect", 1, [](Self &s, Args const &a) {
            QRectF r = toQRect(a[0]);
            return Value::logical(path(s).intersects(r));
        })
        .overload("shape", 1, [](Self &s, Args const &a) {
            QPainterPath other = pathOf(a[0]);
            return Value::logical(path(s).intersects(other));
        });
    c.method("isEmpty", "True when the shape has no figures.").overload("", 0, [](Self &s, Args const &) {
        return Value::logical(path(s).isEmpty());
    });
    c.method("angleAtPercent", "The angle in degrees of the outline's tangent at the fraction t (0 to 1) of its length.")
        .overload("t", 1, [](Self &s, Args const &a) {
            double t = toDouble(a[0]);
            if (!(t >= 0.0 && t <= 1.0)) wrongType("double scalar from 0 to 1", a[0]);
            return Value::scalar(path(s).angleAtPercent(t));
        });
    c.method("intersected", "A new shape: the area inside both.").overload("shape", 1, [](Self &s, Args const &a) {
        QPainterPath other = pathOf(a[0]);
        return newShape(path(s).intersected(other));
    });
    c.method("united", "A new shape: the area inside either.").overload("shape", 1, [](Self &s, Args const &a) {
        QPainterPath other = pathOf(a[0]);
        return newShape(path(s).united(other));
    });
    c.method("subtracted", "A new shape: this area less the other's.").overload("shape", 1, [](Self &s, Args const &a) {
        QPainterPath other = pathOf(a[0]);
        return newShape(path(s).subtracted(other));
    });
    c.method("simplified", "A new shape: the same area without overlapping figures.")
        .overload("", 0, [](Self &s, Args const &) { return newShape(path(s).simplified()); });
    c.method("toReversed", "A new shape: the same figures drawn in the other direction.")
        .overload("", 0, [](Self &s, Args const &) { return newShape(path(s).toReversed()); });
}

ClassInfo cosShape()
{
    ClassBuilder c("VOR2.Shape", ClassKind::CopiedHandle, "",
                   "An outline of lines, curves and closed figures, for a VOR2.ShapeNode. VOR2.Shape() is empty; "
                   "the add and ...To methods change it in place. Reading a node's Shape gives a copy.");
    c.constructor("", 0, [](Self &, Args const &) { return newShape(QPainterPath()); });
    c.property("BoundingRect", "double vector", "The rectangle [x y width height] the outline covers.",
               [](Self &s) { return fromQRect(path(s).boundingRect()); });
    c.property("ControlPointRect", "double vector", "The rectangle [x y width height] of all points, control points included.",
               [](Self &s) { return fromQRect(path(s).controlPointRect()); });
    c.property("CurrentPosition", "double vector", "The end [x y] of the last figure.", [](Self &s) {
        QPointF p = path(s).currentPosition();
        return Value::row({p.x(), p.y()});
    });
    addFigures(c);
    addSegments(c);
    addQueries(c);
    return c.build();
}

ClassRegistration registration("VOR2.Shape", &cosShape);

} // namespace

} // namespace VOR2::script
