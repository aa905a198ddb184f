#include "GalleryGlowRow.h"

#include <VOR2>

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

using namespace VOR2;

namespace demo {

namespace {
constexpr double LEFT = 20, STEP = 130, W = 80, H = 60;

GLOX::GLRect<double> box(int column, double top) { return {LEFT + column * STEP, top, W, H}; }

GLOX::Shape heart(GLOX::GLRect<double> const &r)
{
    QPainterPath path;
    double const cx = r.x + r.width / 2;
    path.moveTo(cx, r.y + r.height);
    path.cubicTo(r.x - r.width * 0.1, r.y + r.height * 0.5, r.x + r.width * 0.15, r.y - r.height * 0.15, cx,
                 r.y + r.height * 0.25);
    path.cubicTo(r.x + r.width * 0.85, r.y - r.height * 0.15, r.x + r.width * 1.1, r.y + r.height * 0.5, cx,
                 r.y + r.height);
    return GLOX::Shape(path);
}

GLOX::Holder<Image> picture()
{
    QImage image(64, 48, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    p.setBrush(QColor(40, 140, 90));
    p.setPen(Qt::NoPen);
    p.drawEllipse(QRectF(4, 4, 40, 40));
    p.setBrush(QColor(230, 170, 40));
    p.drawRect(QRectF(30, 14, 30, 30));
    return Image::fromQImage(image);
}

void add(Scene &scene, Node const &node, Fill const &fill, Effect *effect)
{
    node.setDrawStyle(DrawStyle(Stroke(GLOX::Color(0.3, 0.3, 0.3), 1.0), fill, true));
    node.setSelectable(true);
    node.setMovable(true);
    node.setCursor(GLOX::Cursor(Qt::PointingHandCursor));
    node.getEffects().add(effect);
    scene.addNode(node);
}
} // namespace

void addGlowRow(Scene &scene, double top)
{
    Fill const pale(GLOX::Color(0.95, 0.9, 0.75));
    Fill const blue(GLOX::Color(0.55, 0.7, 1.0));

    GLOX::Holder<EffectGlow> glow(new EffectGlow);
    glow->setColor(GLOX::Color(1.0, 0.75, 0.1, 0.9));
    glow->setSpread(10);
    add(scene, RectNode(box(0, top)), blue, glow.get());

    GLOX::Holder<EffectShadow> shadow(new EffectShadow);
    shadow->setDistance({6, 6});
    shadow->setSpread(5);
    add(scene, EllipseNode(Ellipse(box(1, top))), pale, shadow.get());

    GLOX::Holder<EffectInnerGlow> innerGlow(new EffectInnerGlow);
    innerGlow->setColor(GLOX::Color(1.0, 0.3, 0.5, 0.9));
    innerGlow->setSpread(8);
    add(scene, ShapeNode(heart(box(2, top))), pale, innerGlow.get());

    GLOX::Holder<EffectInnerShadow> innerShadow(new EffectInnerShadow);
    innerShadow->setSpread(6);
    add(scene, RoundedRectNode(box(3, top), 12), pale, innerShadow.get());

    ImageNode image(picture());
    image.setSize(W, H);
    image.setPosition({LEFT + 4 * STEP, top});
    GLOX::Holder<EffectShadow> imageShadow(new EffectShadow);
    imageShadow->setDistance({4, 5});
    imageShadow->setSpread(4);
    add(scene, image, Fill(), imageShadow.get());

    GLOX::Holder<EffectColorOverlay> overlay(new EffectColorOverlay);
    overlay->setColor(GLOX::Color(0.2, 0.4, 1.0, 0.35));
    ImageNode tinted(picture());
    tinted.setSize(W, H);
    tinted.setPosition({LEFT + 5 * STEP, top});
    add(scene, tinted, Fill(), overlay.get());
}

} // namespace demo
