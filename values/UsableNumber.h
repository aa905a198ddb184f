#pragma once
// Which numbers the library lets into a scene, a render or a view.
//
// A coordinate, size, width or transform entry is usable when it is finite
// and no larger in magnitude than COORDINATE_LIMIT. Qt keeps no path point
// beyond that limit (QPainterPath drops it), so geometry past it could be
// neither drawn nor hit-tested consistently. Setters ignore values that are
// not usable, queries with them match nothing, and unions of rectangles
// leave out the rectangles that are not usable. Pure functions; any thread.

#include "GLOX/GLPoint.h"
#include "GLOX/GLRect.h"
#include "GLOX/Size.h"

#include <QPointF>
#include <QRectF>
#include <QTransform>
#include <cmath>

namespace VOR2 {

constexpr double COORDINATE_LIMIT = 1e128;

inline bool isUsable(double v) { return std::isfinite(v) && std::fabs(v) <= COORDINATE_LIMIT; }

inline bool isUsable(GLOX::GLPoint<double> const &p) { return isUsable(p.x) && isUsable(p.y); }
inline bool isUsable(QPointF const &p) { return isUsable(p.x()) && isUsable(p.y()); }
inline bool isUsable(GLOX::Size<double> const &s) { return isUsable(s.width) && isUsable(s.height); }

inline bool isUsable(GLOX::GLRect<double> const &r)
{
    return isUsable(r.x) && isUsable(r.y) && isUsable(r.width) && isUsable(r.height);
}
inline bool isUsable(QRectF const &r)
{
    return isUsable(r.x()) && isUsable(r.y()) && isUsable(r.width()) && isUsable(r.height());
}

// Usable, with a positive width and height: a rectangle worth uniting.
inline bool hasUsableArea(QRectF const &r) { return isUsable(r) && r.width() > 0 && r.height() > 0; }
inline bool hasUsableArea(GLOX::GLRect<double> const &r) { return hasUsableArea(GLOX::toQRectF(r)); }

inline bool isUsable(QTransform const &t)
{
    return isUsable(t.m11()) && isUsable(t.m12()) && isUsable(t.m13()) && isUsable(t.m21()) &&
           isUsable(t.m22()) && isUsable(t.m23()) && isUsable(t.m31()) && isUsable(t.m32()) &&
           isUsable(t.m33());
}

} // namespace VOR2
