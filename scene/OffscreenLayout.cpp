#include "scene/OffscreenLayout.h"

#include "scene/ImageExtent.h"

#include <cmath>

namespace VOR2 {

OffscreenLayout OffscreenLayout::of(QRectF const &bounds, double lod, QPainter const &painter)
{
    OffscreenLayout layout;
    QTransform const &world = painter.worldTransform();
    bool const uniformScale = world.type() <= QTransform::TxScale && world.m11() == world.m22() && world.m11() > 0;
    if (uniformScale && !painter.viewTransformEnabled()) {
        QRectF const device = world.mapRect(bounds);
        // Beyond what an image can hold (or a pixel position an int): none.
        if (imageExtent(device.width() + 4, device.height() + 4).isEmpty() || !(std::fabs(device.left()) < 1e9) ||
            !(std::fabs(device.top()) < 1e9))
            return layout;
        int const left = int(std::floor(device.left())), top = int(std::floor(device.top()));
        int const right = int(std::ceil(device.right())), bottom = int(std::ceil(device.bottom()));
        layout.onDeviceGrid = true;
        layout.size = QSize(right - left + 2, bottom - top + 2);
        layout.corner = QPoint(left - 1, top - 1);
        layout.toImage = world * QTransform::fromTranslate(1 - left, 1 - top);
        layout.phase = QPointF(world.dx() - std::floor(world.dx()), world.dy() - std::floor(world.dy()));
        return layout;
    }
    QSize const inside = imageExtent(bounds.width() * lod, bounds.height() * lod);
    if (inside.isEmpty() || imageExtent(inside.width() + 2.0, inside.height() + 2.0).isEmpty()) return layout;
    layout.size = inside + QSize(2, 2);
    layout.toImage = QTransform::fromTranslate(-bounds.x(), -bounds.y()) * QTransform::fromScale(lod, lod) *
                     QTransform::fromTranslate(1, 1);
    double const s = 1.0 / lod;
    layout.target = QRectF(bounds.x() - s, bounds.y() - s, layout.size.width() * s, layout.size.height() * s);
    return layout;
}

void OffscreenLayout::draw(QPainter &painter, QImage const &image) const
{
    if (!onDeviceGrid) {
        painter.drawImage(target, image);
        return;
    }
    QTransform const world = painter.worldTransform();
    painter.setWorldTransform(QTransform());
    painter.drawImage(corner, image);
    painter.setWorldTransform(world);
}

} // namespace VOR2
