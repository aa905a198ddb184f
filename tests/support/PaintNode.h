#pragma once
// Paints one node's own item into a fresh transparent image, as a view at
// `scale` would: the painter's world transform carries the scale.

#include <Node>

#include "scene/NodeImpl.h"
#include "support/PixelCompare.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace VOR2::test {

// A w by h image (device pixels) of `node` painted at `scale`.
inline QImage paintNodeAtScale(Node const &node, double scale, int w, int h)
{
    QImage image = transparentImage(w, h);
    QPainter painter(&image);
    painter.scale(scale, scale);
    QStyleOptionGraphicsItem option;
    node.getImpl()->getGraphicsItem()->paint(&painter, &option, nullptr);
    return image;
}

// The number of pixels that are not fully transparent on the line of
// `image` from `from` in steps of `step`.
inline int paintedAlong(QImage const &image, QPoint from, QPoint step)
{
    int n = 0;
    for (QPoint p = from; image.valid(p); p += step) n += qAlpha(image.pixel(p)) != 0;
    return n;
}

} // namespace VOR2::test
