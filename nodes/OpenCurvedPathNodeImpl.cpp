#include "nodes/OpenCurvedPathNodeImpl.h"

#include <Effect>

#include "nodes/CurveBuild.h"
#include "nodes/LineOutline.h"
#include "nodes/StrokeReach.h"
#include "nodes/StylePainter.h"

#include <algorithm>

namespace VOR2 {

char const *const OpenCurvedPathNodeImpl::TYPE_NAME = "VOR2.OpenCurvedPathNode";

bool OpenCurvedPathNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || CurvedPathNodeImpl::isa(typeName);
}

void OpenCurvedPathNodeImpl::setStartDecoration(LineEndDecoration const &decoration)
{
    m_ends.replace(LineEnds::Start, decoration, this);
    pathChanged();
}

void OpenCurvedPathNodeImpl::setEndDecoration(LineEndDecoration const &decoration)
{
    m_ends.replace(LineEnds::Finish, decoration, this);
    pathChanged();
}

// A single vertex gives its decorations (0, 0) as direction, an empty path
// puts them at the origin as well.
void OpenCurvedPathNodeImpl::pathChanged()
{
    GLOX::GVector<Vertex> const &v = vertices();
    int const n = v.size();
    QPointF const first = n ? GLOX::toQPointF(v[0].position) : QPointF();
    QPointF const last = n ? GLOX::toQPointF(v[n - 1].position) : QPointF();
    m_ends.place(LineEnds::Start, first, n >= 2 ? GLOX::toQPointF(v[0].backwardTangent) : QPointF());
    m_ends.place(LineEnds::Finish, last, n >= 2 ? GLOX::toQPointF(v[n - 1].forwardTangent) : QPointF());
    notifyGeometryChanged(false);
}

QPainterPath OpenCurvedPathNodeImpl::geometricPath() const
{
    if (numberOfVertices() < 2) return buildCurve(vertices());
    GLOX::GVector<Vertex> drawn = vertices();
    drawn.first().position -= GLOX::toDPoint(m_ends.backoff(LineEnds::Start));
    drawn.last().position -= GLOX::toDPoint(m_ends.backoff(LineEnds::Finish));
    return buildCurve(drawn);
}

double OpenCurvedPathNodeImpl::hitTolerance() const { return scene() ? LINE_HIT_TOLERANCE : 0.0; }

Bounds OpenCurvedPathNodeImpl::computeBounds() { return Bounds(geometricPath()); }

Bounds OpenCurvedPathNodeImpl::computeStrokedOutline(double scale)
{
    return lineStrokedOutline(geometricPath(), getDrawStyle().stroke(), scale);
}

Bounds OpenCurvedPathNodeImpl::computeHitBounds(double scale)
{
    return lineHitBounds(geometricPath(), getDrawStyle().stroke(), scale, hitTolerance());
}

// The curve's box; its outline grows by the larger of cap and join.
IndexExtent OpenCurvedPathNodeImpl::getIndexExtent()
{
    if (numberOfVertices() == 0) return IndexExtent();
    Stroke const &stroke = getDrawStyle().stroke();
    double const growth = std::max(capGrowth(stroke.capStyle()), joinGrowth(stroke.joinStyle()));
    return lineIndexExtent(GLOX::toQRectF(getBounds().boundingRect()), stroke, growth, hitTolerance());
}

void OpenCurvedPathNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    applyDrawStyle(painter, getDrawStyle(), paintScale(painter));
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(geometricPath());
}

void OpenCurvedPathNodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                          QWidget *widget)
{
    if (!effect->renderEffectOpenCurvedPath(this, painter, option, widget))
        effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2
