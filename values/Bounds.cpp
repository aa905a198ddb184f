#include <Bounds>

#include <Ellipse>
#include <RoundedRect>

#include "values/PainterPathBoundsImpl.h"
#include "values/UsableNumber.h"

#include <QPolygonF>

namespace VOR2 {

using GLOX::GLPoint;
using GLOX::GLRect;

namespace {

// Whether b lies inside a, edges included, even when b has no area.
bool boxContains(GLRect<double> const &a, GLRect<double> const &b)
{
    return b.x >= a.x && b.right() <= a.right() && b.y >= a.y && b.bottom() <= a.bottom();
}

// When the union of a and b is one rectangle, stores it in out and answers
// true. Rectangles without area count for nothing.
bool unionIsRect(GLRect<double> a, GLRect<double> b, GLRect<double> *out)
{
    if (b.isEmpty() || a.contains(b)) {
        *out = a;
        return true;
    }
    if (a.isEmpty() || b.contains(a)) {
        *out = b;
        return true;
    }
    bool const sameColumn = a.x == b.x && a.width == b.width && a.y <= b.bottom() && b.y <= a.bottom();
    bool const sameRow = a.y == b.y && a.height == b.height && a.x <= b.right() && b.x <= a.right();
    if (!sameColumn && !sameRow) return false;
    *out = a.united(b);
    return true;
}

} // namespace

Bounds::Bounds(GLOX::Shape const &shape)
{
    setShape(shape.getPath());
}

Bounds::Bounds(QPainterPath const &path)
{
    setShape(path);
}

Bounds::Bounds(RoundedRect const &roundedRect)
{
    GLRect<double> const &r = roundedRect.rect();
    if (r.isEmpty()) {
        setShape(QPainterPath(), r);
        return;
    }
    double const rx = roundedRect.roundedX(), ry = roundedRect.roundedY();
    if (!(rx > 0) || !(ry > 0)) { // square corners; also keeps a NaN radius out of the path
        setShape(rectPath(r), r);
        return;
    }
    QPainterPath p;
    p.addRoundedRect(GLOX::toQRectF(r), rx, ry, Qt::AbsoluteSize);
    setShape(p, r);
}

Bounds::Bounds(Ellipse const &ellipse)
{
    GLRect<double> const &r = ellipse.rect();
    QPainterPath p;
    if (!r.isEmpty()) p.addEllipse(GLOX::toQRectF(r));
    setShape(p, r);
}

Bounds::Bounds(GLOX::GList<GLRect<double>> const &rects)
{
    // Every rectangle is its own closed subpath, all turning the same way:
    // under the winding rule an overlap counts once. Rectangles without area
    // (or with a negative side, which would turn the other way and cut a
    // hole) add nothing. One rectangle keeps the default rule, so that it
    // compares equal to the same rectangle bare.
    QPainterPath p;
    int pieces = 0;
    for (GLRect<double> const &r : rects) {
        if (r.isEmpty()) continue;
        p.addRect(GLOX::toQRectF(r));
        ++pieces;
    }
    if (pieces > 1) p.setFillRule(Qt::WindingFill);
    setShape(p);
}

Bounds::Bounds(GLOX::GList<GLPoint<double>> const &polygon)
{
    QPolygonF poly;
    poly.reserve(polygon.size());
    for (GLPoint<double> const &p : polygon) poly.append(GLOX::toQPointF(p));
    QPainterPath path;
    path.addPolygon(poly);
    path.closeSubpath();
    setShape(path);
}

Bounds::Bounds(GLPoint<double> const &p1, GLPoint<double> const &p2, GLPoint<double> const &p3,
               GLPoint<double> const &p4)
    : Bounds(GLOX::GList<GLPoint<double>>{p1, p2, p3, p4})
{
}

void Bounds::setShape(QPainterPath const &path)
{
    m_impl = PainterPathBoundsImpl::make(path);
    m_rect = m_impl->boundingRect();
}

void Bounds::setShape(QPainterPath const &path, GLRect<double> const &rect)
{
    m_impl = PainterPathBoundsImpl::make(path);
    m_rect = rect;
}

void Bounds::setPath(QPainterPath const &path)
{
    if (path.isEmpty()) {
        clear();
        return;
    }
    setImpl(PainterPathBoundsImpl::make(path));
}

void Bounds::setImpl(std::shared_ptr<BoundsImpl> impl)
{
    if (!impl || impl->isEmpty()) {
        clear();
        return;
    }
    m_rect = impl->boundingRect();
    m_impl = std::move(impl);
}

bool Bounds::isEmpty() const
{
    return m_impl ? m_impl->isEmpty() : m_rect.isEmpty();
}

GLOX::GList<GLRect<double>> Bounds::boundingRects() const
{
    if (m_impl) return m_impl->toRects();
    GLOX::GList<GLRect<double>> rects;
    if (!m_rect.isEmpty()) rects.append(m_rect);
    return rects;
}

bool Bounds::contains(GLPoint<double> const &p) const
{
    return m_impl ? m_impl->contains(p) : m_rect.contains(p);
}

bool Bounds::contains(Bounds const &o) const
{
    if (isEmpty() || o.isEmpty()) return false;
    if (!m_impl) return boxContains(m_rect, o.m_rect); // exact for a shape too
    if (!o.m_impl) return boxContains(m_rect, o.m_rect) && m_impl->contains(o.m_rect);
    return m_impl->contains(*o.m_impl);
}

bool Bounds::intersectsWith(Bounds const &o) const
{
    if (isEmpty() || o.isEmpty()) return false;
    if (!m_impl && !o.m_impl) return m_rect.intersects(o.m_rect);
    if (!o.m_impl) return m_impl->intersects(o.m_rect);
    if (!m_impl) return o.m_impl->intersects(m_rect);
    return m_impl->intersects(*o.m_impl);
}

bool Bounds::intersectsWith(GLPoint<double> const &p, double tolerance) const
{
    if (m_impl) return m_impl->intersects(p, tolerance);
    if (m_rect.isEmpty()) return false;
    double const t = tolerance > 0 ? tolerance : 0.0;
    return p.x >= m_rect.left() - t && p.x <= m_rect.right() + t && p.y >= m_rect.top() - t &&
           p.y <= m_rect.bottom() + t;
}

QPainterPath Bounds::asQPainterPath() const
{
    return m_impl ? m_impl->toPainterPath() : rectPath(m_rect);
}

GLOX::Shape Bounds::asShape() const
{
    return GLOX::Shape(asQPainterPath());
}

bool Bounds::operator==(Bounds const &o) const
{
    if (!(m_rect == o.m_rect)) return false;
    if (!m_impl && !o.m_impl) return true;
    if (m_impl && o.m_impl) return m_impl == o.m_impl || m_impl->isEqual(*o.m_impl);
    if (m_impl) return m_impl->isEqual(o.m_rect);
    return o.m_impl->isEqual(m_rect);
}

void Bounds::clear()
{
    m_rect = GLRect<double>();
    m_impl.reset();
}

void Bounds::simplifyToRect()
{
    m_impl.reset();
}

void Bounds::intersectWith(Bounds const &o)
{
    if (!m_impl && !o.m_impl) {
        m_rect = m_rect.intersected(o.m_rect);
        return;
    }
    if (isEmpty() || o.isEmpty() || !m_rect.intersects(o.m_rect)) {
        clear();
        return;
    }
    if (!o.m_impl) {
        if (o.m_rect.contains(m_rect)) return; // the shape lies inside
        if (m_impl->contains(o.m_rect)) {
            *this = o;
            return;
        }
        setImpl(m_impl->intersected(o.m_rect));
        return;
    }
    if (!m_impl) {
        if (m_rect.contains(o.m_rect)) {
            *this = o; // shares o's shape
            return;
        }
        if (o.m_impl->contains(m_rect)) return;
        setImpl(o.m_impl->intersected(m_rect));
        return;
    }
    setImpl(m_impl->intersected(*o.m_impl));
}

void Bounds::unionWith(Bounds const &o)
{
    // A region whose rectangle holds numbers that are not usable counts as
    // empty here, so that it cannot spoil the union of good ones.
    if (o.isEmpty() || !isUsable(o.m_rect)) return;
    if (isEmpty() || !isUsable(m_rect)) {
        *this = o;
        return;
    }
    if (!m_impl && !o.m_impl) {
        GLRect<double> r;
        if (unionIsRect(m_rect, o.m_rect, &r))
            m_rect = r;
        else
            setPath(rectPath(m_rect).united(rectPath(o.m_rect)));
        return;
    }
    if (!o.m_impl) {
        if (boxContains(o.m_rect, m_rect)) { // the shape lies inside o
            *this = o;
            return;
        }
        setImpl(m_impl->united(o.m_rect));
        return;
    }
    if (!m_impl) {
        if (boxContains(m_rect, o.m_rect)) return;
        setImpl(o.m_impl->united(m_rect));
        return;
    }
    setImpl(m_impl->united(*o.m_impl));
}

void Bounds::transform(GLOX::Transform const &t)
{
    QTransform const &q = t.toQTransform();
    if (q.isIdentity()) return;
    if (m_impl) {
        setImpl(m_impl->transformed(t));
        return;
    }
    if (q.type() <= QTransform::TxScale) {
        m_rect = GLOX::toDRect(q.mapRect(GLOX::toQRectF(m_rect)));
        return;
    }
    if (m_rect.isEmpty()) { // stays empty, where its corner goes
        m_rect = GLRect<double>(t.map(m_rect.topLeft()), GLOX::Size<double>());
        return;
    }
    setPath(q.map(rectPath(m_rect)));
}

Bounds Bounds::intersectedWith(Bounds const &other) const
{
    Bounds b(*this);
    b.intersectWith(other);
    return b;
}

Bounds Bounds::unionedWith(Bounds const &other) const
{
    Bounds b(*this);
    b.unionWith(other);
    return b;
}

Bounds Bounds::transformed(GLOX::Transform const &t) const
{
    Bounds b(*this);
    b.transform(t);
    return b;
}

} // namespace VOR2
