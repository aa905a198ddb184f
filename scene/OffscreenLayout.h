#pragma once
// OffscreenLayout: where a node's offscreen image lies on the device of the
// painter that shows it, and how the node is painted into it.
//
// When the painter maps item units to device pixels by one scale and a
// shift, and draws on the device's own pixels (the case of every view and
// render), the image is laid on the device's pixel grid: it covers the
// bounds grown to whole device pixels, plus the border of one pixel, and
// the node is painted into it with the painter's own transform, shifted by
// whole pixels. The image then holds exactly the pixels that painting
// directly would give, anti-aliasing included, as long as the sub-pixel
// part of the painter's shift (the phase) stays the same.
//
// Otherwise (a rotation, unequal scales, a view transform), the image is
// `bounds` times the level of detail, ceiled, plus the border, painted
// after translating by (1, 1), scaling by the level of detail and
// translating by minus the bounds' corner, and shown in the rectangle at
// one device pixel (`1 / lod` units) above and left of the bounds' corner.

#include <QPainter>
#include <QPoint>
#include <QPointF>
#include <QRectF>
#include <QSize>
#include <QTransform>

namespace VOR2 {

struct OffscreenLayout {
    // In device pixels, the border included; empty when no image of that
    // extent can be made (the node then paints directly).
    QSize size;
    // From item coordinates to image pixels, for painting into the image.
    QTransform toImage;
    // Whether the image lies on the device's pixel grid, at `corner`.
    bool onDeviceGrid = false;
    QPoint corner;
    // Where the image is drawn in item coordinates when not on the grid.
    QRectF target;
    // The sub-pixel part of the painter's shift on the grid, else 0.
    QPointF phase;

    // Lays out the image of `bounds` (item coordinates, normalised) for
    // `painter`, at the level of detail `lod` the painter has. Pure.
    static OffscreenLayout of(QRectF const &bounds, double lod, QPainter const &painter);

    // Draws `image`, made with this layout, with `painter`; leaves the
    // painter's transform as it was.
    void draw(QPainter &painter, QImage const &image) const;
};

} // namespace VOR2
