// Glow, shadow, their inner kinds and the colour overlay on pixels, on each
// node kind; their settings, notifications and bounds.

#include <ConstantLodScale>
#include <EffectColorOverlay>
#include <EffectGlow>
#include <EffectInnerGlow>
#include <EffectInnerShadow>
#include <EffectShadow>
#include <EffectStroke>
#include <EllipseNode>
#include <Image>
#include <ImageNode>
#include <LineNode>
#include <NodeEffects>
#include <RoundedRectNode>
#include <ShapeNode>
#include <SplitLinearLodScale>

#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/SceneFixture.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionGraphicsItem>
#include <functional>

using namespace VOR2;
using namespace VOR2::test;

namespace {

using GlowEffectsTest = SceneTest;

QImage renderScene(Scene &scene, double scale, double side = 60)
{
    QImage image(int(side * scale), int(side * scale), QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    scene.render(image, {0, 0, side, side}, {0, 0, side * scale, side * scale});
    return image;
}

bool isWhite(QImage const &image, int x, int y) { return image.pixel(x, y) == qRgb(255, 255, 255); }
bool isBlue(QImage const &image, int x, int y) { return image.pixel(x, y) == qRgb(0, 0, 255); }
// Tinted by a red effect over white: red stays full, green drops.
bool isReddened(QImage const &image, int x, int y)
{
    QRgb const p = image.pixel(x, y);
    return qRed(p) > 200 && qGreen(p) < 230 && qBlue(p) < 230;
}

// Every kind that paints a solid blue body covering (20, 20) to (40, 40),
// touching its edge at the middle of each side.
struct Kind {
    char const *name;
    std::function<Node()> make;
};

std::vector<Kind> kinds()
{
    DrawStyle const blue(Stroke::NoStroke(), Fill(GLOX::fromQColor(Qt::blue)));
    auto styled = [blue](Node n) {
        n.setDrawStyle(blue);
        return n;
    };
    QPainterPath diamond;
    diamond.addPolygon(QPolygonF({{30, 20}, {40, 30}, {30, 40}, {20, 30}}));
    diamond.closeSubpath();
    QImage pixels(20, 20, QImage::Format_ARGB32_Premultiplied);
    pixels.fill(Qt::blue);
    return {
        {"rect", [=] { return styled(RectNode({20, 20, 20, 20})); }},
        {"rounded rect", [=] { return styled(RoundedRectNode({20, 20, 20, 20}, 4)); }},
        {"ellipse", [=] { return styled(EllipseNode(Ellipse({20, 20, 20, 20}))); }},
        {"shape", [=] { return styled(ShapeNode(GLOX::Shape(diamond))); }},
        {"image",
         [=] {
             ImageNode image(Image::fromQImage(pixels));
             image.setSize(20, 20);
             image.setPosition({20, 20});
             return Node(image);
         }},
    };
}

template <typename E>
GLOX::Holder<E> red(int spread = 6)
{
    GLOX::Holder<E> effect(new E);
    effect->setColor(GLOX::Color(1, 0, 0, 1.0));
    effect->setSpread(spread);
    return effect;
}

// The effect painted alone on a rectangle (20, 20, 20, 20) into a 60 by 60
// image at scale 1, exposing `exposed`, with the painter at `opacity`.
QImage paintAlone(RectNode const &node, Effect &effect, QRectF const &exposed, double opacity = 1.0)
{
    QImage image = transparentImage(60, 60);
    QPainter painter(&image);
    painter.setOpacity(opacity);
    painter.translate(20, 20); // the outline's top-left
    QStyleOptionGraphicsItem option;
    option.levelOfDetail = 1.0;
    option.exposedRect = exposed;
    effect.renderEffectGeneric(node.getImpl(), &painter, &option, nullptr);
    return image;
}

} // namespace

TEST_F(GlowEffectsTest, GlowAndShadowColourOutsideTheSilhouetteAndNotInside)
{
    for (Kind const &kind : kinds()) {
        for (bool shadow : {false, true}) {
            SCOPED_TRACE(testing::Message() << kind.name << (shadow ? " shadow" : " glow"));
            Node node = added(kind.make());
            GLOX::Holder<EffectGlow> effect = shadow ? GLOX::Holder<EffectGlow>(red<EffectShadow>(4))
                                                     : red<EffectGlow>(6);
            effect->setDistance({0, 0});
            node.getEffects().add(effect.get());
            int const offscreen = Diagnostics::intValue("Scene:Node offscreen repaint count");
            QImage const image = renderScene(*scene, 1);
            EXPECT_GT(Diagnostics::intValue("Scene:Node offscreen repaint count"), offscreen)
                << "drawn through the node's own image";
            for (QPoint outside : {QPoint(19, 30), QPoint(40, 30), QPoint(30, 19), QPoint(30, 40)})
                EXPECT_TRUE(isReddened(image, outside.x(), outside.y())) << outside.x() << "," << outside.y();
            EXPECT_TRUE(isBlue(image, 30, 30)) << "the node stays as it was";
            EXPECT_TRUE(isBlue(image, 22, 30));
            EXPECT_TRUE(isWhite(image, 10, 30)) << "beyond the spread";
            node.remove();
        }
    }
}

TEST_F(GlowEffectsTest, InnerGlowAndInnerShadowColourOnlyInside)
{
    for (Kind const &kind : kinds()) {
        SCOPED_TRACE(kind.name);
        Node node = added(kind.make());
        GLOX::Holder<EffectInnerGlow> glow = red<EffectInnerGlow>(4);
        node.getEffects().add(glow.get());
        QImage image = renderScene(*scene, 1);
        EXPECT_TRUE(isWhite(image, 18, 30));
        EXPECT_TRUE(isWhite(image, 41, 30));
        QRgb const edge = image.pixel(20, 30);
        EXPECT_GT(qRed(edge), 80) << "red bleeds in at the edge";
        EXPECT_TRUE(isBlue(image, 30, 30)) << "not in the middle";
        node.getEffects().clear();

        GLOX::Holder<EffectInnerShadow> shadow = red<EffectInnerShadow>(3);
        shadow->setDistance({-10, -10});
        node.getEffects().add(shadow.get());
        image = renderScene(*scene, 1);
        EXPECT_TRUE(isWhite(image, 18, 30));
        EXPECT_GT(qRed(image.pixel(21, 30)), 80) << "dark along the left edge";
        if (std::string(kind.name) != "shape") { // a diamond's top right edge is lit from the top left too
            EXPECT_TRUE(isBlue(image, 37, 30)) << "not along the right, whatever the distance";
        }
        EXPECT_TRUE(isWhite(image, 41, 30));
        node.remove();
    }
}

TEST_F(GlowEffectsTest, AShadowMovesWithItsDistance)
{
    RectNode node = added(solidRect({20, 20, 20, 20}, Qt::blue));
    GLOX::Holder<EffectShadow> shadow = red<EffectShadow>(2);
    node.getEffects().add(shadow.get());
    for (int dx : {8, -8}) {
        shadow->setDistance({dx, 0});
        QImage const image = renderScene(*scene, 1);
        int const ahead = dx > 0 ? 45 : 14, behind = dx > 0 ? 14 : 45;
        EXPECT_TRUE(isReddened(image, ahead, 30)) << dx;
        EXPECT_TRUE(isWhite(image, behind, 30)) << dx;
        EXPECT_EQ(node.getImpl()->getGraphicsItem()->boundingRect().left(), dx > 0 ? 20 : 10);
    }
}

TEST_F(GlowEffectsTest, AGlowHasTheSameWidthOnScreenAtEveryZoom)
{
    RectNode node = added(solidRect({20, 20, 20, 20}, Qt::blue));
    GLOX::Holder<EffectGlow> glow = red<EffectGlow>(8);
    node.getEffects().add(glow.get());
    auto widthLeftOf = [&](double scale) {
        QImage const image = renderScene(*scene, scale);
        int const edge = int(20 * scale), row = int(30 * scale);
        int width = 0;
        for (int x = edge - 1; x >= 0 && !isWhite(image, x, row); --x) ++width;
        return width;
    };
    int const one = widthLeftOf(1), three = widthLeftOf(3);
    EXPECT_GE(one, 6);
    EXPECT_NEAR(one, three, 1);
}

TEST_F(GlowEffectsTest, AnOverlayCoversExactlyTheBounds)
{
    RectNode rect = added(solidRect({20, 20, 20, 20}, Qt::blue));
    GLOX::Holder<EffectColorOverlay> overlay(new EffectColorOverlay);
    overlay->setColor(GLOX::Color(0, 1, 0, 1.0));
    rect.getEffects().add(overlay.get());
    QImage image = renderScene(*scene, 3);
    for (QPoint in : {QPoint(60, 60), QPoint(119, 119), QPoint(90, 60)})
        EXPECT_EQ(image.pixel(in), qRgb(0, 255, 0)) << in.x() << "," << in.y();
    for (QPoint out : {QPoint(59, 90), QPoint(120, 90), QPoint(90, 59), QPoint(90, 120)})
        EXPECT_TRUE(isWhite(image, out.x(), out.y())) << out.x() << "," << out.y();
    EXPECT_FALSE(overlay->isIntensiveProcess());

    rect.remove();
    EllipseNode ellipse = added(EllipseNode(Ellipse({20, 20, 20, 20})));
    ellipse.getEffects().add(overlay.get());
    image = renderScene(*scene, 1);
    EXPECT_EQ(image.pixel(30, 30), qRgb(0, 255, 0));
    EXPECT_TRUE(isWhite(image, 21, 21)) << "the ellipse's path, not its rectangle";
}

TEST_F(GlowEffectsTest, PartialPaintsMatchTheWholeAndOnlyGlowsFadeWithThePainter)
{
    RectNode node = solidRect({20, 20, 20, 20}, Qt::blue);
    GLOX::Holder<EffectGlow> glow = red<EffectGlow>(6);
    QRect const part(13, 25, 9, 12);
    QImage const whole = paintAlone(node, *glow, QRectF(14, 14, 32, 32));
    QImage const partial = paintAlone(node, *glow, part);
    EXPECT_EQ(partial.copy(part), whole.copy(part));
    EXPECT_EQ(qAlpha(whole.pixel(30, 30)), 0) << "masked out";
    EXPECT_NEAR(qAlpha(paintAlone(node, *glow, part, 0.5).pixel(19, 30)), qAlpha(whole.pixel(19, 30)) / 2, 1);

    glow->setIsMaskedOut(false);
    EXPECT_GT(qAlpha(paintAlone(node, *glow, part).pixel(21, 30)), 100) << "covers the node's edge";

    GLOX::Holder<EffectInnerGlow> inner = red<EffectInnerGlow>(4);
    EXPECT_EQ(paintAlone(node, *inner, part, 0.5).pixel(20, 30), paintAlone(node, *inner, part).pixel(20, 30));
}

TEST_F(GlowEffectsTest, LinesNeitherGlowNorCastShadowsButTheirBoundsGrow)
{
    LineNode line = added(LineNode({10, 30}, {50, 30}));
    line.setStroke(Stroke(GLOX::Color(), 2.0));
    QImage const plain = renderScene(*scene, 1);
    QRectF const outline = GLOX::toQRectF(line.getImpl()->getCachedStrokedOutline(1.0).boundingRect());
    GLOX::Holder<EffectGlow> glow = red<EffectGlow>(6);
    GLOX::Holder<EffectShadow> shadow = red<EffectShadow>(3);
    line.getEffects().add(glow.get());
    line.getEffects().add(shadow.get());
    EXPECT_EQ(renderScene(*scene, 1), plain);
    EXPECT_TRUE(line.getImpl()->getGraphicsItem()->boundingRect().contains(outline.adjusted(-6, -6, 6, 6)));
}

TEST_F(GlowEffectsTest, BoundsGrowByTheScaledSpreadAndMoveByTheScaledDistance)
{
    EffectGlow glow;
    EffectShadow shadow;
    EffectInnerGlow innerGlow;
    EffectInnerShadow innerShadow;
    EffectColorOverlay overlay;
    // Grown by the scaled spread, moved by the scaled distance; inner kinds
    // and the overlay keep the node's.
    Bounds const r(GLOX::GLRect<double>(10, 10, 20, 20));
    EXPECT_EQ(glow.computeBounds(r, 2).boundingRect(), (GLOX::GLRect<double>(7, 7, 26, 26)));
    EXPECT_EQ(glow.reachBound(), (LodReach{0, 6}));
    EXPECT_EQ(shadow.computeBounds(r, 1).boundingRect(), (GLOX::GLRect<double>(9, 9, 26, 26)));
    EXPECT_EQ(shadow.reachBound(), SplitLinearLodScale::instance()->reachBound().scaled(5));
    for (Effect *e : {(Effect *)&innerGlow, (Effect *)&innerShadow, (Effect *)&overlay}) {
        EXPECT_EQ(e->computeBounds(r, 2).boundingRect(), r.boundingRect());
        EXPECT_EQ(e->reachBound(), LodReach());
    }
    shadow.setSpread(-20);
    EXPECT_EQ(shadow.computeBounds(r, 1).boundingRect(), r.boundingRect()) << "shrunk to nothing";
    glow.setOpacity(0.0);
    EXPECT_EQ(glow.computeBounds(r, 2).boundingRect(), r.boundingRect()) << "alpha 0 reaches nowhere";
}

TEST_F(GlowEffectsTest, SettersNotifyOnlyOnChangeAndTheBoundNodeFollows)
{
    GLOX::Holder<EffectGlow> glow(new EffectGlow);
    int notes = 0;
    glow->propertyChangedEmitter.connect(nullptr, std::function<void(GLUV::Packet)>([&](GLUV::Packet) { ++notes; }));
    glow->setColor(glow->getColor());
    glow->setDistance(glow->getDistance());
    glow->setSpread(6);
    glow->setIsMaskedOut(true);
    glow->setOpacity(glow->getOpacity());
    EXPECT_EQ(notes, 0);
    glow->setOpacity(0.5);
    EXPECT_EQ(glow->getColor().blueByte(), 190) << "only the alpha changes";
    EXPECT_EQ(glow->getColor().alphaByte(), 128);
    glow->setSpread(2);
    glow->setDistance({1, 0});
    glow->setIsMaskedOut(false);
    glow->setColor(GLOX::Color(0, 0, 0));
    EXPECT_EQ(notes, 5);

    RectNode n = added(solidRect({20, 20, 10, 10}, Qt::blue));
    n.getEffects().add(glow.get());
    glow->setSpread(4);
    EXPECT_EQ(n.getImpl()->getGraphicsItem()->boundingRect(), QRectF(17, 16, 18, 18));
}

TEST_F(GlowEffectsTest, AnEllipseWithoutAreaGainsNoBoundsAroundTheOrigin)
{
    // Its outline is a shape with nothing inside, whose rectangle is the
    // zero one: growing that would put the node's bounds at the origin.
    EllipseNode n = added(EllipseNode(Ellipse({300, 200, 0, 0})));
    GLOX::Holder<EffectStroke> stroke(new EffectStroke(Stroke(GLOX::Color(1, 0, 0), 8.0), Outer));
    GLOX::Holder<EffectGlow> glow = red<EffectGlow>(8);
    n.getEffects().add(stroke.get());
    n.getEffects().add(glow.get());
    EXPECT_FALSE(n.getImpl()->getGraphicsItem()->boundingRect().contains(QPointF(0, 0)));
}
