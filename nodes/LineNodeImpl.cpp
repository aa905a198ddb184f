#include "nodes/LineNodeImpl.h"

#include <Effect>

#include <GlobalViewerInfo>

#include "nodes/StylePainter.h"
#include "nodes/StrokeReach.h"
#include "values/UsableNumber.h"

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
    placeDecorations();
}

// Each decoration points outward along the line from its end.
void LineNodeImpl::placeDecorations()
{
    m_ends.place(LineEnds::Start, m_start, m_start - m_end);
    m_ends.place(LineEnds::Finish, m_end, m_end - m_start);
}

void LineNodeImpl::setStartDecoration(LineEndDecoration const &decoration)
{
    m_ends.replace(LineEnds::Start, decoration, this);
    placeDecorations();
    notifyRepaint(); // the drawn line now stops short by the new backoff
}

void LineNodeImpl::setEndDecoration(LineEndDecoration const &decoration)
{
    m_ends.replace(LineEnds::Finish, decoration, this);
    placeDecorations();
    notifyRepaint();
}

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
    return lineStrokedOutline(geometricPath(), getDrawStyle().stroke(), scale);
}

Bounds LineNodeImpl::computeHitBounds(double scale)
{
    return lineHitBounds(geometricPath(), getDrawStyle().stroke(), scale, hitTolerance());
}

// A single segment has no join: only the cap grows its outline.
IndexExtent LineNodeImpl::getIndexExtent()
{
    Stroke const &stroke = getDrawStyle().stroke();
    return lineIndexExtent(QRectF(m_start, m_end), stroke, capGrowth(stroke.capStyle()), hitTolerance());
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
    QLineF line(m_start - m_ends.backoff(LineEnds::Start), m_end - m_ends.backoff(LineEnds::Finish));
    painter->drawLines(&line, 1);
}

void LineNodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                QWidget *widget)
{
    if (!effect->renderEffectLine(this, painter, option, widget)) effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2
