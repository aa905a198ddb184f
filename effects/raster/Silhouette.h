#pragma once
// A node's silhouette as device pixels: the node's mask (solid black where
// it covers, antialiased at its edges) painted at a level of detail into a
// premultiplied ARGB32 image, with a margin of transparent pixels around
// the area of interest for a blur to spread into. The node is given by a
// function that paints its mask in its own coordinates, so these are pure
// functions of that painting. Any thread with its own image.

#include <QPainter>
#include <QPointF>
#include <QSize>

#include <functional>

class QImage;

namespace VOR2 {

// Paints a node's mask with the painter set up in the node's coordinates.
using MaskPainter = std::function<void(QPainter &)>;

// Where node coordinates land in a silhouette image: the node point
// `origin` at pixel (margin, margin), one node unit `levelOfDetail` pixels.
struct SilhouettePlacement {
    QPointF origin;
    int margin = 0;
    double levelOfDetail = 1.0;

    // The image size that holds `area` pixels plus the margin on each side.
    QSize imageSize(QSize area) const { return area + QSize(2 * margin, 2 * margin); }
};

// Clears the top-left `size` of `image` and paints the mask there as
// `placement` says. Nothing outside `size` is touched; the mask is not cut
// to the area of interest, only to the image.
void paintSilhouette(QImage &image, QSize size, SilhouettePlacement const &placement, MaskPainter const &paint);

// Erases the mask from the top-left `size` of `image`, placed as
// `placement` says: what lies under the node becomes transparent.
void cutSilhouette(QImage &image, QSize size, SilhouettePlacement const &placement, MaskPainter const &paint);

} // namespace VOR2
