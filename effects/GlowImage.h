#pragma once
// What the image-based effects (glow, shadow and their inner kinds) share
// around their raster work: which device pixels of an effect's area a paint
// needs, the node's mask as a MaskPainter, and drawing the finished image
// back onto the node at the inverse scale. Paint thread.

#include "effects/raster/Silhouette.h"

#include "GLOX/Color.h"

#include <QImage>
#include <QRectF>
#include <QSize>

#include <functional>

class QStyleOptionGraphicsItem;

namespace VOR2 {

class NodeImpl;

// A block of device pixels at a level of detail: `pixels` wide and high,
// its top-left pixel at the node point `origin`.
struct GlowArea {
    QPointF origin;
    QSize pixels;
    bool isEmpty() const { return pixels.isEmpty(); }
};

// The pixels of `whole` (node coordinates) that cover its intersection with
// the option's exposed rectangle (all of it when the option has none), on
// the grid of device pixels counted from whole's top-left at `lod`, so that
// a partial paint lands on the same pixels as a whole one. Empty when
// nothing is exposed or no image of that size can be made (with the margin
// `margin` on every side).
GlowArea exposedGlowArea(QRectF const &whole, QStyleOptionGraphicsItem const &option, double lod, int margin);

// Paints the node's mask, at `lod`, in the node's coordinates.
MaskPainter nodeMask(NodeImpl *node, double lod);

// Draws `source` of `image` with `painter`, its top-left at the point
// `origin` of the painter's coordinates and one pixel 1 / lod units, at the
// given opacity. The painter's transform and opacity are put back as they
// were.
void drawGlowImage(QPainter &painter, QImage const &image, QRect const &source, QPointF const &origin, double lod,
                   double opacity);

// The blur radius in device pixels of a spread of `scaledSpread` units at
// `lod`: truncated, at least 0, at most MAX_BLUR_RADIUS.
int glowBlurRadius(double scaledSpread, double lod);

// Gives an image at least as large as asked, contents undefined (the
// effects' shared scratch image).
using ScratchImage = std::function<QImage &(QSize)>;

// Paints the inner band of `node` (see InnerBand) in `colour` at the
// option's level of detail and exposed rectangle: the outside of its
// silhouette moved `shift` pixels right and down, blurred with `radius`,
// kept inside the silhouette, drawn at the colour's alpha alone, whatever
// opacity the painter has. The painter's origin is the top-left of the
// node's outline.
void paintInnerBand(NodeImpl *node, QPainter &painter, QStyleOptionGraphicsItem const &option,
                    ScratchImage const &scratch, int radius, int shift, GLOX::Color const &colour);

} // namespace VOR2
