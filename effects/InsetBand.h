#pragma once
// The part of a band along a path (a pen of some width stroked along it)
// that lies inside the path, or outside it: how the stroke effect draws an
// outline within or around a node.
//
// The geometric answer, the band's outline intersected with or subtracted
// from the path, costs Qt's path clipper time that grows with the square of
// the edges on both sides: seconds for a dashed or curved outline, on every
// paint. Here the band is drawn into an image of the device pixels it
// covers, clipped to the path (inside) or with the path erased from it
// (outside) by Qt's own antialiased fill, and the image is drawn: the same
// pixels, in time proportional to the area. Pure function, any thread with
// its own images.

#include <QPainterPath>
#include <QPen>
#include <QRect>

class QImage;
class QPainter;

namespace VOR2 {

enum class BandSide { Inside, Outside };

// The device pixels a band drawn with `pen` along `path` can cover under
// `painter`'s world transform, cut to the painter's clip and device.
QRect insetBandDeviceRect(QPainter const &painter, QPainterPath const &path, QPen const &pen);

// Draws the `side` part of the band of `pen` along `path` with `painter`,
// through `scratch`, which is overwritten and must be at least as large as
// insetBandDeviceRect. The painter's transform is left as it was.
void drawInsetBand(QPainter &painter, QImage &scratch, QPainterPath const &path, QPen const &pen, BandSide side,
                   bool antialias);

} // namespace VOR2
