#include "nodes/OpenLinearPathNodeImpl.h"

#include <Effect>

#include "nodes/LineOutline.h"
#include "nodes/StrokeReach.h"
#include "nodes/StylePainter.h"

#include <algorithm>

namespace VOR2 {

char const *const OpenLinearPathNodeImpl::TYPE_NAME = "VOR2.OpenLinearPathNode";

bool OpenLinearPathNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || LinearPathNodeImpl::isa(typeName);
}

void OpenLinearPathNodeImpl::setStartDecoration(LineEndDecoration const &decoration)
{
    m_ends.replace(LineEnds::Start, decoration, this);
    pathChanged();
}

void OpenLinearPathNodeImpl::setEndDecoration(LineEndDecoration const &decoration)
{
    m_ends.replace(LineEnds::Finish, decoration, this);
    pathChanged();
}

// A path too short for a direction gives its decorations (0, 0), and an
// empty one puts them at the origin.
void OpenLinearPathNodeImpl::pathChanged()
{
    QPolygonF const &p = points();
    int const n = p.size();
    QPointF const first = n ? p[0] : QPointF(), last = n ? p[n - 1] : QPointF();
    m_ends.place(LineEnds::Start, first, n >= 2 ? p[0] - p[1] : QPointF());
    m_ends.place(LineEnds::Finish, last, n >= 2 ? p[n - 1] - p[n - 2] : QPointF());
    LinearPathNodeImpl::pathChanged();
}

QPainterPath OpenLinearPathNodeImpl::geometricPath() const
{
    QPainterPath path;
    if (numberOfPoints() < 2) return path;
    QPolygonF drawn = points();
    drawn.first() -= m_ends.backoff(LineEnds::Start);
    drawn.last() -= m_ends.backoff(LineEnds::Finish);
    path.addPolygon(drawn);
    return path;
}

double OpenLinearPathNodeImpl::hitTolerance() const { return scene() ? LINE_HIT_TOLERANCE : 0.0; }

Bounds OpenLinearPathNodeImpl::computeBounds() { return Bounds(geometricPath()); }

Bounds OpenLinearPathNodeImpl::computeStrokedOutline(double scale)
{
    return lineStrokedOutline(geometricPath(), getDrawStyle().stroke(), scale);
}

Bounds OpenLinearPathNodeImpl::computeHitBounds(double scale)
{
    return lineHitBounds(geometricPath(), getDrawStyle().stroke(), scale, hitTolerance());
}

// The polyline's box; its outline grows by the larger of cap and join.
IndexExtent OpenLinearPathNodeImpl::getIndexExtent()
{
    if (numberOfPoints() < 2) return IndexExtent();
    Stroke const &stroke = getDrawStyle().stroke();
    double const growth = std::max(capGrowth(stroke.capStyle()), joinGrowth(stroke.joinStyle()));
    return lineIndexExtent(GLOX::toQRectF(getBounds().boundingRect()), stroke, growth, hitTolerance());
}

void OpenLinearPathNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    applyDrawStyle(painter, getDrawStyle(), paintScale(painter));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(geometricPath());
}

void OpenLinearPathNodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                          QWidget *widget)
{
    if (!effect->renderEffectOpenLinearPath(this, painter, option, widget))
        effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2
