#include "effects/GlowImage.h"

#include "effects/raster/BoxBlur.h"
#include "effects/raster/InnerBand.h"
#include "effects/raster/Tint.h"
#include "scene/ImageExtent.h"
#include "scene/NodeImpl.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <cmath>

namespace VOR2 {

GlowArea exposedGlowArea(QRectF const &whole, QStyleOptionGraphicsItem const &option, double lod, int margin)
{
    QRectF const exposed = option.exposedRect.isNull() ? whole : whole & option.exposedRect;
    if (exposed.isEmpty() || !(lod > 0.0)) return {};
    double const wide = std::ceil(whole.width() * lod), high = std::ceil(whole.height() * lod);
    auto clamp = [](double v, double hi) { return std::min(std::max(v, 0.0), hi); };
    double const x0 = clamp(std::floor((exposed.left() - whole.left()) * lod), wide);
    double const y0 = clamp(std::floor((exposed.top() - whole.top()) * lod), high);
    double const x1 = clamp(std::ceil((exposed.right() - whole.left()) * lod), wide);
    double const y1 = clamp(std::ceil((exposed.bottom() - whole.top()) * lod), high);
    if (imageExtent(x1 - x0 + 2.0 * margin, y1 - y0 + 2.0 * margin).isEmpty()) return {};
    return {whole.topLeft() + QPointF(x0, y0) / lod, QSize(int(x1 - x0), int(y1 - y0))};
}

MaskPainter nodeMask(NodeImpl *node, double lod)
{
    GLOX::GLRect<double> const rect = node->getCachedStrokedOutline(lod).boundingRect();
    return [node, lod, rect](QPainter &painter) { node->paintMask(&painter, lod, rect); };
}

void drawGlowImage(QPainter &painter, QImage const &image, QRect const &source, QPointF const &origin, double lod,
                   double opacity)
{
    QTransform const world = painter.worldTransform();
    double const oldOpacity = painter.opacity();
    painter.translate(origin);
    painter.scale(1.0 / lod, 1.0 / lod);
    painter.setOpacity(opacity);
    painter.drawImage(QPointF(0.0, 0.0), image, source);
    painter.setOpacity(oldOpacity);
    painter.setWorldTransform(world);
}

int glowBlurRadius(double scaledSpread, double lod)
{
    return int(std::min(std::max(scaledSpread * lod, 0.0), double(MAX_BLUR_RADIUS)));
}

void paintInnerBand(NodeImpl *node, QPainter &painter, QStyleOptionGraphicsItem const &option,
                    ScratchImage const &scratch, int radius, int shift, GLOX::Color const &colour)
{
    double const lod = option.levelOfDetail;
    if (!(lod > 0.0)) return;
    // The painter's origin is the outline's top-left as the list took it;
    // geometry may run left or up.
    QRectF const raw = GLOX::toQRectF(node->getCachedStrokedOutline(lod).boundingRect());
    QRectF const outline = raw.normalized();
    // The blur reads `radius` pixels beyond what it writes, and the shift
    // reads that much farther up and left: a margin for both.
    int const margin = radius + shift;
    GlowArea const area = exposedGlowArea(outline, option, lod, margin);
    if (area.isEmpty()) return;
    SilhouettePlacement const placement{area.origin, margin, lod};
    QSize const size = placement.imageSize(area.pixels);
    QImage &image = scratch(size);
    paintSilhouette(image, size, placement, nodeMask(node, lod));
    innerBand(image, size, radius, shift);
    QRect const result(QPoint(margin, margin), area.pixels);
    tintByAlpha(image, result, qRgb(colour.redByte(), colour.greenByte(), colour.blueByte()));
    drawGlowImage(painter, image, result, area.origin - raw.topLeft(), lod, colour.alphaByte() / 255.0);
}

} // namespace VOR2
