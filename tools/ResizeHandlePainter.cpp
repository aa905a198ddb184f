#include <ResizeHandlePainter>
#include <SelectionNonLinearLodScale>

#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace VOR2 {

namespace {
QRectF square(double scale)
{
    double const half = ResizeHandlePainter::halfSide(scale);
    return QRectF(-half, -half, 2 * half, 2 * half);
}
} // namespace

// The scale function keeps f(s) * s at or below 2, so half * s <= 8.
double ResizeHandlePainter::halfSide(double scale)
{
    return SelectionNonLinearLodScale::instance()->apply(scale) * 4.0;
}

Bounds ResizeHandlePainter::getBounds() { return Bounds(square(1.0)); }

Bounds ResizeHandlePainter::getStrokedOutline(double scale) { return Bounds(square(scale)); }

void ResizeHandlePainter::paint(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    if (!m_visible) return;
    double const scale = QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
    QPen pen(QColor(140, 140, 140, 255));
    pen.setWidth(0);
    painter->setPen(pen);
    painter->setBrush(Qt::white);
    QRectF const r = square(scale);
    painter->drawRects(&r, 1);
}

} // namespace VOR2
