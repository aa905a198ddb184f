#include "nodes/LineNodeImpl.h"

#include <Effect>

#include <GlobalViewerInfo>

#include "nodes/OutlineStroker.h"
#include "nodes/StylePainter.h"
#include "nodes/StrokeReach.h"
#include "values/UsableNumber.h"

#include <QPainterPathStroker>
#include <algorithm>
#include <cmath>

namespace VOR2 {

char const *const LineNodeImpl::TYPE_NAME = "VOR2.LineNode";

bool LineNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || NodeImpl::isa(typeName);
}

void LineNodeImpl::setStart(QPointF const &start) { setLine(start, m_end); }

void LineNodeImpl::setEnd(QPointF const &end) { setLine(m_start, end); }

void LineNodeImpl::setLine(QPointF const &start, QPointF const &end)
{
    if (!isUsable(start) || !isUsable(end)) return;
    prepareItemGeometryChange();
    m_start = start;
    m_end = end;
    notifyGeometryChanged(false);
    placeStartDecoration();
    placeEndDecoration();
}

// Each decoration points outward along the line from its end.
void LineNodeImpl::placeStartDecoration()
{
    if (!m_startDecoration.isValid()) return;
    m_startDecoration.setPosition(GLOX::toDPoint(m_start));
    m_startDecoration.setDirection(GLOX::toDPoint(m_start - m_end));
}

void LineNodeImpl::placeEndDecoration()
{
    if (!m_endDecoration.isValid()) return;
    m_endDecoration.setPosition(GLOX::toDPoint(m_end));
    m_endDecoration.setDirection(GLOX::toDPoint(m_end - m_start));
}

void LineNodeImpl::setStartDecoration(LineEndDecoration const &decoration)
{
    if (m_startDecoration.isValid()) m_startDecoration.getNode().remove();
    m_startDecoration = decoration;
    m_startDecoration.setParent(Node(this));
    placeStartDecoration();
    notifyRepaint(); // the drawn line now stops short by the new backoff
}

void LineNodeImpl::setEndDecoration(LineEndDecoration const &decoration)
{
    if (m_endDecoration.isValid()) m_endDecoration.getNode().remove();
    m_endDecoration = decoration;
    m_endDecoration.setParent(Node(this));
    placeEndDecoration();
    notifyRepaint();
}

namespace {
// A stroke outline as one region. The outline of one straight segment is a
// single closed contour that never crosses itself and is kept as it is;
// only outlines of several contours go through QPainterPath::simplified,
// a boolean operation that costs far more than the stroke itself.
QPainterPath simplifiedOutline(QPainterPath const &outline)
{
    int contours = 0;
    for (int i = 0; i < outline.elementCount(); ++i)
        contours += outline.elementAt(i).type == QPainterPath::MoveToElement;
    return contours == 1 ? outline : outline.simplified();
}
} // namespace

QPainterPath LineNodeImpl::geometricPath() const
{
    QPainterPath path;
    path.moveTo(m_start);
    path.lineTo(m_end);
    return path;
}

double LineNodeImpl::hitTolerance() const { return scene() ? HIT_TOLERANCE : 0.0; }

Bounds LineNodeImpl::computeBounds() { return Bounds(geometricPath()); }

Bounds LineNodeImpl::computeStrokedOutline(double scale)
{
    QPainterPath stroke = strokeOutline(geometricPath(), getDrawStyle().stroke(), scale, StrokerShape::FromStroke);
    return Bounds(simplifiedOutline(stroke));
}

Bounds LineNodeImpl::computeHitBounds(double scale)
{
    double w = std::max(getDrawStyle().stroke().width(scale), 2 * hitTolerance());
    QPainterPathStroker stroker;
    // The whole width is divided by the scale, the tolerance and a stroke
    // width already in scene units included.
    stroker.setWidth(w / scale);
    return Bounds(simplifiedOutline(stroker.createStroke(geometricPath())));
}

// With the stroke's width W(s) <= a + b / s, the outline reaches
// cap * W / 2. The hit band is max(W, 2 * tolerance) / s wide with a square
// cap: sqrt(2) / 2 * max(W / s, 2 * tolerance / s), and W / s <= a / s +
// b / s^2, which no constant and pixel part can bound as s falls.
IndexExtent LineNodeImpl::getIndexExtent()
{
    IndexExtent extent;
    QRectF const box = QRectF(m_start, m_end).normalized();
    if (!isUsable(box)) return extent;
    extent.local = box;
    Stroke const &stroke = getDrawStyle().stroke();
    LodReach const width = stroke.widthBound();
    LodReach const outline = width.scaled(0.5 * capGrowth(stroke.capStyle()) * CURVE_SLACK);
    double const hit = 0.5 * std::sqrt(2.0) * CURVE_SLACK;
    extent.reachSceneUnits = outline.sceneUnits;
    extent.reachPixels = std::max(outline.pixels, hit * std::max(width.sceneUnits, 2 * hitTolerance()));
    extent.reachPixelsOverScale = hit * width.pixels;
    return extent;
}

bool LineNodeImpl::contains(GLOX::GLPoint<double> const &p)
{
    double dx = m_end.x() - m_start.x();
    double dy = m_end.y() - m_start.y();
    // Distance from the infinite line; NaN or infinite for a line without
    // length, which the comparison below rejects.
    double d = std::abs((p.x - m_start.x()) * dy - (p.y - m_start.y()) * dx) / std::sqrt(dx * dx + dy * dy);
    double w = getDrawStyle().stroke().width(GlobalViewerInfo::instance()->getViewerScale());
    return w + hitTolerance() > d;
}

void LineNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    applyDrawStyle(painter, getDrawStyle(), paintScale(painter));
    QLineF line(m_start - GLOX::toQPointF(m_startDecoration.getBackoffVector()),
                m_end - GLOX::toQPointF(m_endDecoration.getBackoffVector()));
    painter->drawLines(&line, 1);
}

void LineNodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                QWidget *widget)
{
    if (!effect->renderEffectLine(this, painter, option, widget)) effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2
