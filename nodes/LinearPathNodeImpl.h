#pragma once
// LinearPathNodeImpl: the element shared by the open and closed linear
// paths, a plain Qt item holding the points as one QPolygonF in the node's
// own coordinates. It checks indices, edits the points and reports each
// edit through pathChanged(); the two forms draw.
//
// Index checks come first: an index outside [0, count) throws
// VOR2_InvalidLinearPathIndex and changes nothing. A point or a factor
// holding a NaN, an infinity or a number beyond 1e128, or an edit whose
// result would, changes nothing and reports nothing.

#include "GLOX/Containers.h"
#include "GLOX/GLPoint.h"
#include "scene/TypedNodeImpl.h"

#include <QPolygonF>

namespace VOR2 {

class LinearPathNodeImpl : public TypedNodeImpl<QGraphicsItem> {
public:
    static char const *const TYPE_NAME;

    bool isa(char const *typeName) const override;

    QPolygonF const &points() const { return m_points; }
    int numberOfPoints() const { return m_points.size(); }
    // The point at `index`; throws for an index out of range.
    QPointF point(int index) const;

    void append(QPointF const &p);
    // Adds `d` to every point.
    void translate(QPointF const &d);
    // Multiplies every point by `s` about the local origin. A negative `s`
    // throws VOR2_NegativeLinearPathScale and leaves the path as it was;
    // 0 collapses it onto the origin. Reports the change even for 1.
    void scale(double s);
    void setPoint(int index, QPointF const &p);
    void setPoints(QPolygonF const &points);

    // Reports that the points changed. Open forms first move their
    // decorations to the new ends.
    virtual void pathChanged();

    bool paintIgnoresPainterState() const override { return true; }

protected:
    // Stores `points` and reports, unless a point is not usable.
    void assign(QPolygonF const &points);

private:
    void checkIndex(int index) const;

    QPolygonF m_points;
};

} // namespace VOR2
