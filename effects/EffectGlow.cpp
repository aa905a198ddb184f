#include <ConstantLodScale>
#include <EffectGlow>

#include "effects/GlowImage.h"
#include "effects/raster/BoxBlur.h"
#include "effects/raster/Tint.h"
#include "nodes/RectNodeImpl.h"
#include "scene/NodeImpl.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace VOR2 {

namespace {
GLOX::Color const &defaultGlowColor()
{
    static GLOX::Color const color(1.0, 1.0, 190.0 / 255.0, 0.75);
    return color;
}
} // namespace

EffectGlow::EffectGlow() : EffectGlow(defaultGlowColor(), {0, 0}, 6, ConstantLodScale::instance()) {}

EffectGlow::EffectGlow(GLOX::Color const &color, GLOX::GLPoint<int> distance, int spread, LodScale const *scale)
    : m_color(color), m_distance(distance), m_spread(spread)
{
    setScaleFunction(scale);
}

void EffectGlow::setColor(GLOX::Color const &color) { assignAndNotify(m_color, color); }

void EffectGlow::setDistance(GLOX::GLPoint<int> const &distance) { assignAndNotify(m_distance, distance); }

void EffectGlow::setSpread(int spread) { assignAndNotify(m_spread, spread); }

void EffectGlow::setIsMaskedOut(bool maskedOut) { assignAndNotify(m_maskedOut, maskedOut); }

double EffectGlow::getOpacity() const { return m_color.alphaByte() / 255.0; }

void EffectGlow::setOpacity(double opacity)
{
    if (opacity == getOpacity()) return;
    m_color = GLOX::Color(m_color.red(), m_color.green(), m_color.blue(), opacity);
    notifyPropertyChanged();
}

double EffectGlow::getScaledSpread(double levelOfDetail) const
{
    return scaleFunction()->scale(levelOfDetail) * m_spread;
}

GLOX::GLPoint<double> EffectGlow::getScaledDistance(double levelOfDetail) const
{
    double const f = scaleFunction()->scale(levelOfDetail);
    return {f * m_distance.x, f * m_distance.y};
}

QRectF EffectGlow::outerRect(QRectF const &rect, double levelOfDetail) const
{
    double const s = getScaledSpread(levelOfDetail);
    GLOX::GLPoint<double> const d = getScaledDistance(levelOfDetail);
    return QRectF(rect.x() - s + d.x, rect.y() - s + d.y, rect.width() + 2 * s, rect.height() + 2 * s);
}

Bounds EffectGlow::computeBounds(Bounds const &bounds, double levelOfDetail)
{
    // A shape with nothing inside has no place of its own and no silhouette.
    if (m_color.alphaByte() == 0 || (bounds.isEmpty() && !bounds.isOnlyRect())) return bounds;
    QRectF const outer = outerRect(GLOX::toQRectF(bounds.boundingRect()).normalized(), levelOfDetail);
    // A negative spread can shrink the area to nothing: nothing is drawn.
    if (!(outer.width() > 0.0 && outer.height() > 0.0)) return bounds;
    return Bounds(GLOX::toDRect(outer));
}

LodReach EffectGlow::reachBound() const
{
    // Grown by the spread, then moved by at most the larger coordinate of
    // the distance on either axis.
    double const beyond =
        std::abs(double(m_spread)) + std::max(std::abs(double(m_distance.x)), std::abs(double(m_distance.y)));
    return scaleFunction()->reachBound().scaled(beyond);
}

bool EffectGlow::isIntensiveProcess() const { return true; }

GLOX::StringID EffectGlow::getEffectID() const
{
    static GLOX::StringID const id("Glow");
    return id;
}

char const *EffectGlow::getFullyQualifiedTcosTypeName() const { return "VOR2.EffectGlow"; }

bool EffectGlow::renderEffectRect(RectNodeImpl *node, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                  QWidget *widget)
{
    renderEffectGeneric(node, painter, option, widget);
    return true;
}

bool EffectGlow::renderEffectLine(LineNodeImpl *, QPainter *, QStyleOptionGraphicsItem const *, QWidget *)
{
    return true;
}

bool EffectGlow::renderEffectText(TextNodeImpl *, QPainter *, QStyleOptionGraphicsItem const *, QWidget *)
{
    return true;
}

void EffectGlow::renderEffectGeneric(NodeImpl *node, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                     QWidget *)
{
    double const lod = option->levelOfDetail;
    if (!(lod > 0.0)) return;
    // The painter's origin is the outline's top-left as the list took it;
    // geometry may run left or up.
    QRectF const raw = GLOX::toQRectF(node->getCachedStrokedOutline(lod).boundingRect());
    QRectF const outline = raw.normalized();
    QRectF const whole = outerRect(outline, lod);
    if (!(whole.width() > 0.0 && whole.height() > 0.0)) return;
    int const radius = glowBlurRadius(getScaledSpread(lod), lod);
    GlowArea const area = exposedGlowArea(whole, *option, lod, radius);
    if (area.isEmpty()) return;
    GLOX::GLPoint<double> const d = getScaledDistance(lod);
    // The silhouette moved by the distance, with room for the blur to
    // spread; the area's pixels are then those at (radius, radius).
    SilhouettePlacement const moved{area.origin - QPointF(d.x, d.y), radius, lod};
    QSize const size = moved.imageSize(area.pixels);
    QImage &image = getScratchBuffer({size.width(), size.height()}, false);
    MaskPainter const mask = nodeMask(node, lod);
    paintSilhouette(image, size, moved, mask);
    boxBlurAlpha(image, size, radius);
    if (m_maskedOut) cutSilhouette(image, size, {area.origin, radius, lod}, mask);
    QRect const result(QPoint(radius, radius), area.pixels);
    tintByAlpha(image, result, qRgb(m_color.redByte(), m_color.greenByte(), m_color.blueByte()));
    drawGlowImage(*painter, image, result, area.origin - raw.topLeft(), lod,
                  painter->opacity() * m_color.alphaByte() / 255.0);
}

} // namespace VOR2
