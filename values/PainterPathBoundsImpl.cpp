#include "values/PainterPathBoundsImpl.h"

namespace VOR2 {

using GLOX::GLPoint;
using GLOX::GLRect;

QPainterPath rectPath(GLRect<double> const &r)
{
    QPainterPath p;
    p.addRect(GLOX::toQRectF(r));
    return p;
}

PainterPathBoundsImpl::PainterPathBoundsImpl(QPainterPath const &path)
    : m_path(path), m_rect(GLOX::toDRect(path.boundingRect()))
{
}

BoundsImpl::Ptr PainterPathBoundsImpl::make(QPainterPath const &path)
{
    return std::make_shared<PainterPathBoundsImpl>(path);
}

BoundsImpl::Ptr PainterPathBoundsImpl::clone() const
{
    return make(m_path);
}

bool PainterPathBoundsImpl::isEmpty() const
{
    return m_path.isEmpty();
}

bool PainterPathBoundsImpl::contains(GLPoint<double> const &p) const
{
    return m_path.contains(GLOX::toQPointF(p));
}

bool PainterPathBoundsImpl::contains(GLRect<double> const &r) const
{
    return m_path.contains(GLOX::toQRectF(r));
}

bool PainterPathBoundsImpl::contains(BoundsImpl const &o) const
{
    // Qt answers false for a path whose edges touch ours, itself included.
    return isEqual(o) || m_path.contains(o.toPainterPath());
}

bool PainterPathBoundsImpl::intersects(GLRect<double> const &r) const
{
    return m_path.intersects(GLOX::toQRectF(r));
}

bool PainterPathBoundsImpl::intersects(BoundsImpl const &o) const
{
    return m_path.intersects(o.toPainterPath());
}

bool PainterPathBoundsImpl::intersects(GLPoint<double> const &p, double tolerance) const
{
    if (!(tolerance > 0.0)) return contains(p);
    return m_path.intersects(QRectF(p.x - tolerance, p.y - tolerance, 2 * tolerance, 2 * tolerance));
}

BoundsImpl::Ptr PainterPathBoundsImpl::intersected(GLRect<double> const &r) const
{
    return make(m_path.intersected(rectPath(r)));
}

BoundsImpl::Ptr PainterPathBoundsImpl::intersected(BoundsImpl const &o) const
{
    return make(m_path.intersected(o.toPainterPath()));
}

BoundsImpl::Ptr PainterPathBoundsImpl::united(GLRect<double> const &r) const
{
    return make(m_path.united(rectPath(r)));
}

BoundsImpl::Ptr PainterPathBoundsImpl::united(BoundsImpl const &o) const
{
    return make(m_path.united(o.toPainterPath()));
}

BoundsImpl::Ptr PainterPathBoundsImpl::transformed(GLOX::Transform const &t) const
{
    return make(t.toQTransform().map(m_path));
}

bool PainterPathBoundsImpl::isEqual(GLRect<double> const &r) const
{
    return m_rect == r && m_path == rectPath(r);
}

bool PainterPathBoundsImpl::isEqual(BoundsImpl const &o) const
{
    return this == &o || (m_rect == o.boundingRect() && m_path == o.toPainterPath());
}

GLOX::GList<GLRect<double>> PainterPathBoundsImpl::toRects() const
{
    // One rectangle per subpath; a subpath inside another one's rectangle
    // (a hole, or an island in a hole) adds nothing.
    GLOX::GList<GLRect<double>> pieces;
    QPainterPath sub;
    auto flush = [&] {
        if (!sub.isEmpty()) pieces.append(GLOX::toDRect(sub.boundingRect()));
        sub = QPainterPath();
    };
    for (int i = 0; i < m_path.elementCount(); ++i) {
        QPainterPath::Element const e = m_path.elementAt(i);
        switch (e.type) {
        case QPainterPath::MoveToElement:
            flush();
            sub.moveTo(e.x, e.y);
            break;
        case QPainterPath::LineToElement:
            sub.lineTo(e.x, e.y);
            break;
        case QPainterPath::CurveToElement: {
            QPainterPath::Element const c2 = m_path.elementAt(i + 1);
            QPainterPath::Element const end = m_path.elementAt(i + 2);
            sub.cubicTo(e.x, e.y, c2.x, c2.y, end.x, end.y);
            i += 2;
            break;
        }
        case QPainterPath::CurveToDataElement:
            break; // consumed with its CurveToElement
        }
    }
    flush();

    GLOX::GList<GLRect<double>> rects;
    for (int i = 0; i < pieces.size(); ++i) {
        bool inside = false;
        for (int j = 0; j < pieces.size() && !inside; ++j) {
            if (i == j) continue;
            // Of two equal rectangles the first one stays.
            inside = pieces[j] == pieces[i] ? j < i : pieces[j].contains(pieces[i]);
        }
        if (!inside) rects.append(pieces[i]);
    }
    return rects;
}

} // namespace VOR2
