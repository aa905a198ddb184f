#include "effects/raster/Silhouette.h"

#include <QImage>

namespace VOR2 {

namespace {
void paintPlaced(QImage &image, QSize size, SilhouettePlacement const &placement, MaskPainter const &paint,
                 QPainter::CompositionMode mode, bool clear)
{
    QPainter painter(&image);
    QRect const area(QPoint(0, 0), size);
    painter.setClipRect(area);
    if (clear) {
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        painter.fillRect(area, Qt::transparent);
    }
    painter.setCompositionMode(mode);
    painter.translate(placement.margin, placement.margin);
    painter.scale(placement.levelOfDetail, placement.levelOfDetail);
    painter.translate(-placement.origin);
    paint(painter);
}
} // namespace

void paintSilhouette(QImage &image, QSize size, SilhouettePlacement const &placement, MaskPainter const &paint)
{
    paintPlaced(image, size, placement, paint, QPainter::CompositionMode_SourceOver, true);
}

void cutSilhouette(QImage &image, QSize size, SilhouettePlacement const &placement, MaskPainter const &paint)
{
    paintPlaced(image, size, placement, paint, QPainter::CompositionMode_DestinationOut, false);
}

} // namespace VOR2
