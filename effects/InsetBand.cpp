#include "effects/InsetBand.h"

#include <QImage>
#include <QPaintDevice>
#include <QPainter>
#include <cmath>

namespace VOR2 {

QRect insetBandDeviceRect(QPainter const &painter, QPainterPath const &path, QPen const &pen)
{
    // A miter reaches a little over four half widths from its corner (the
    // limit is two pen widths along the bisector); a square cap less.
    double const grow = pen.widthF() * 2.1;
    QRectF const local = path.controlPointRect().adjusted(-grow, -grow, grow, grow);
    QRect device = painter.worldTransform().mapRect(local).toAlignedRect().adjusted(-1, -1, 1, 1);
    if (painter.hasClipping())
        device &= painter.worldTransform().mapRect(painter.clipBoundingRect()).toAlignedRect().adjusted(-1, -1, 1, 1);
    if (QPaintDevice const *target = painter.device()) device &= QRect(0, 0, target->width(), target->height());
    return device;
}

void drawInsetBand(QPainter &painter, QImage &scratch, QPainterPath const &path, QPen const &pen, BandSide side,
                   bool antialias)
{
    QRect const device = insetBandDeviceRect(painter, path, pen);
    if (device.isEmpty()) return;
    QTransform const world = painter.worldTransform();
    {
        QPainter band(&scratch);
        band.setCompositionMode(QPainter::CompositionMode_Source);
        band.fillRect(QRect(QPoint(0, 0), device.size()), Qt::transparent);
        band.setClipRect(QRect(QPoint(0, 0), device.size()));
        band.setCompositionMode(QPainter::CompositionMode_SourceOver);
        band.setRenderHint(QPainter::Antialiasing, antialias);
        band.setWorldTransform(world * QTransform::fromTranslate(-device.x(), -device.y()));
        if (side == BandSide::Inside) {
            // Qt rasterises a clip path with its antialiasing, as a fill.
            band.setClipPath(path, Qt::IntersectClip);
            band.strokePath(path, pen);
        } else {
            band.strokePath(path, pen);
            band.setCompositionMode(QPainter::CompositionMode_DestinationOut);
            band.fillPath(path, Qt::black);
        }
    }
    painter.resetTransform();
    painter.drawImage(device.topLeft(), scratch, QRect(QPoint(0, 0), device.size()));
    painter.setWorldTransform(world);
}

} // namespace VOR2
