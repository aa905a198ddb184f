#include <FocusIndicatorsPainter>

#include "tools/FocusBracketGeometry.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace VOR2 {

void FocusIndicatorsPainter::setAlignment(HorizontalAlignment h, VerticalAlignment v)
{
    if (h == m_h && v == m_v) return;
    m_h = h, m_v = v;
    boundsChanging();
}

Bounds FocusIndicatorsPainter::getBounds() { return Bounds(focusBracketBox(m_h, m_v, 1.0)); }

Bounds FocusIndicatorsPainter::getStrokedOutline(double scale) { return Bounds(focusBracketBox(m_h, m_v, scale)); }

// The box's far side is 0.5 + 8 f(s) from the corner, and the scale
// function keeps f(s) at or below 2 / s.
LodReach FocusIndicatorsPainter::getReach() const { return {0.5, 16.0}; }

void FocusIndicatorsPainter::paint(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    double const scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
    std::vector<QRectF> const strips = focusBracketStrips(m_h, m_v, focusBracketBox(m_h, m_v, scale));
    painter->setPen(Qt::NoPen);
    painter->setBrush(QColor(97, 163, 250, 255));
    painter->drawRects(strips.data(), int(strips.size()));
}

} // namespace VOR2
