#include "nodes/RectNodeImpl.h"

#include <Effect>

#include "nodes/StrokeReach.h"
#include "nodes/StylePainter.h"
#include "values/UsableNumber.h"

namespace VOR2 {

char const *const RectNodeImpl::TYPE_NAME = "VOR2.RectNode";

bool RectNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || NodeImpl::isa(typeName);
}

void RectNodeImpl::setRect(QRectF const &rect)
{
    if (!isUsable(rect)) return;
    if (rect.x() == m_rect.x() && rect.y() == m_rect.y() && rect.width() == m_rect.width() &&
        rect.height() == m_rect.height())
        return;
    prepareItemGeometryChange(); // while Qt can still see the old rectangle
    m_rect = rect;
    notifyGeometryChanged(false);
}

Bounds RectNodeImpl::computeBounds() { return Bounds(m_rect); }

Bounds RectNodeImpl::computeStrokedOutline(double scale)
{
    Stroke const &stroke = getDrawStyle().stroke();
    if (stroke.isNoStroke()) return Bounds(m_rect);
    double half = 0.5 * stroke.width(scale);
    return Bounds(m_rect.adjusted(-half, -half, half, half));
}

// The outline is the rectangle grown by exactly half the width.
IndexExtent RectNodeImpl::getIndexExtent() { return strokedExtent(m_rect, getDrawStyle().stroke(), 1.0); }

void RectNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    applyDrawStyle(painter, getDrawStyle(), paintScale(painter));
    painter->drawRects(&m_rect, 1);
}

void RectNodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                QWidget *widget)
{
    if (!effect->renderEffectRect(this, painter, option, widget)) effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2
