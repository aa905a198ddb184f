// Focus brackets: their box and L at several scales, alone; the custom node
// that carries each; installing and removing the four; and the brackets in
// a scene's pixels at two scales.

#include <CustomNode>
#include <FocusIndicators>
#include <FocusIndicatorsPainter>
#include <RectNode>
#include <Scene>

#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "tools/FocusBracketGeometry.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using H = HorizontalAlignment;
using V = VerticalAlignment;

namespace {

void expectRect(QRectF const &got, QRectF const &want)
{
    EXPECT_NEAR(got.x(), want.x(), 1e-9);
    EXPECT_NEAR(got.y(), want.y(), 1e-9);
    EXPECT_NEAR(got.width(), want.width(), 1e-9);
    EXPECT_NEAR(got.height(), want.height(), 1e-9);
}

// A painter of a fixed rectangle that counts its paints.
struct BoxPainter : CustomNodePainter {
    QRectF box{1, 2, 3, 4};
    int paints = 0;
    Bounds getBounds() override { return Bounds(box); }
    void paint(QPainter *, QStyleOptionGraphicsItem const *, QWidget *) override { ++paints; }
};

QColor const BLUE(97, 163, 250);

} // namespace

TEST(FocusBracketGeometry, TheTopLeftBracketAtScaleOneIsAnLOfThickness2664OutsideTheCorner)
{
    QRectF const box = focusBracketBox(H::Left, V::Top, 1.0);
    expectRect(box, QRectF(-8.5, -8.5, 8, 8));
    std::vector<QRectF> const strips = focusBracketStrips(H::Left, V::Top, box);
    ASSERT_EQ(strips.size(), 2u);
    expectRect(strips[0], QRectF(-8.5, -8.5, 2.664, 8));
    expectRect(strips[1], QRectF(-8.5, -8.5, 8, 2.664));
}

TEST(FocusBracketGeometry, CentredAxesAndOtherScales)
{
    // A centred axis: the box straddles the corner and that axis has no strip.
    QRectF const centred = focusBracketBox(H::Center, V::Top, 1.0);
    expectRect(centred, QRectF(-4, -8.5, 8, 8));
    std::vector<QRectF> const strips = focusBracketStrips(H::Center, V::Top, centred);
    ASSERT_EQ(strips.size(), 1u);
    expectRect(strips[0], QRectF(-4, -8.5, 8, 0.333 * 8));

    // Zoomed in four times the box is 4 units: 16 pixels on screen.
    EXPECT_DOUBLE_EQ(focusBracketSize(4.0), 4.0);
    expectRect(focusBracketBox(H::Left, V::Top, 4.0), QRectF(-4.5, -4.5, 4, 4));
    // Zoomed out to a tenth it is 40 units: 4 pixels.
    EXPECT_DOUBLE_EQ(focusBracketSize(0.1), 40.0);
}

TEST(FocusBracketGeometry, TheReachHoldsTheBoxAtEveryScale)
{
    FocusIndicatorsPainter *painter = new FocusIndicatorsPainter(H::Left, V::Top);
    GLOX::Holder<CustomNodePainter> keep(painter);
    LodReach const reach = painter->getReach();
    for (double s : {0.01, 0.3, 0.5, 0.51, 0.9, 1.0, 2.0, 3.9, 4.0, 50.0}) {
        QRectF const box = GLOX::toQRectF(painter->getStrokedOutline(s).boundingRect());
        double const g = reach.at(s);
        EXPECT_TRUE(QRectF(-g, -g, 2 * g, 2 * g).contains(box)) << "scale " << s;
    }
}

TEST(CustomNode, TakesItsGeometryAndPaintFromItsPainter)
{
    CustomNode node;
    EXPECT_EQ(node.getPainter(), nullptr);
    EXPECT_EQ(node.getBoundingRect(), GLOX::GLRect<double>()) << "no painter: zero bounds";

    BoxPainter *painter = new BoxPainter;
    GLOX::Holder<CustomNodePainter> keep(painter);
    node.setPainter(painter);
    EXPECT_EQ(node.getPainter(), painter);
    EXPECT_EQ(painter->getNode(), node);
    EXPECT_EQ(node.getBoundingRect(), GLOX::GLRect<double>(1, 2, 3, 4));
    painter->box = QRectF(0, 0, 10, 10);
    painter->boundsChanging();
    EXPECT_EQ(node.getBoundingRect(), GLOX::GLRect<double>(0, 0, 10, 10)) << "a reported change is seen";

    auto scene = Scene::createScene();
    scene->addNode(node);
    QImage image(20, 20, QImage::Format_ARGB32_Premultiplied);
    scene->render(image, {0, 0, 20, 20}, {0, 0, 20, 20});
    EXPECT_GE(painter->paints, 1);

    node.setPainter(nullptr);
    EXPECT_FALSE(painter->getNode().isValid()) << "a painter let go forgets its node";
    EXPECT_EQ(CustomNode(RectNode().getImpl()).getImpl(), nullptr) << "not a custom node";
}

TEST(FocusIndicators, InstallFourBracketsOnTheCornersOnce)
{
    RectNode node(GLOX::GLRect<double>(10, 20, 40, 30));
    EXPECT_TRUE(installFocusIndicators(node));
    GLOX::GList<Node> brackets = node.getChildrenWithTag("FocusIndicator");
    ASSERT_EQ(brackets.size(), 4);
    std::vector<GLOX::GLPoint<double>> at;
    for (Node const &b : brackets) at.push_back(b.getPosition());
    std::vector<GLOX::GLPoint<double>> const corners{{10, 20}, {50, 20}, {50, 50}, {10, 50}};
    for (GLOX::GLPoint<double> const &c : corners)
        EXPECT_NE(std::find(at.begin(), at.end(), c), at.end()) << c.x << ", " << c.y;
    for (Node const &b : brackets) {
        EXPECT_TRUE(b.hasCursor());
        EXPECT_NE(dynamic_cast<FocusIndicatorsPainter *>(CustomNode(b.getImpl()).getPainter()), nullptr);
    }

    EXPECT_TRUE(installFocusIndicators(node));
    EXPECT_EQ(node.getChildrenWithTag("FocusIndicator"), brackets) << "four already: kept as they are";

    brackets.first().remove();
    EXPECT_TRUE(installFocusIndicators(node));
    GLOX::GList<Node> const rebuilt = node.getChildrenWithTag("FocusIndicator");
    ASSERT_EQ(rebuilt.size(), 4) << "three: a fresh set of four";
    for (Node const &b : rebuilt) EXPECT_FALSE(brackets.contains(b));

    RectNode other(GLOX::GLRect<double>(0, 0, 5, 5));
    other.setParent(node);
    removeFocusIndicators(node);
    EXPECT_TRUE(node.getChildrenWithTag("FocusIndicator").isEmpty());
    EXPECT_EQ(node.getChildren().size(), 1) << "other children stay";
}

TEST(FocusIndicators, ShowAsBlueCornersInTheScenesPixelsAtEveryScale)
{
    auto scene = Scene::createScene();
    RectNode node = solidRect({0, 0, 40, 30}, Qt::green);
    node.setPosition({20, 20});
    scene->addNode(node);
    installFocusIndicators(node);

    // Scale 1: each box is 8 pixels, 0.5 outside its corner; its strips are
    // 2.664 thick on the corner's two outer sides.
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    scene->render(image, {0, 0, 100, 100}, {0, 0, 100, 100});
    struct Corner {
        QPoint stripA, stripB, hollow;
    };
    Corner const corners[] = {
        {{12, 16}, {17, 12}, {17, 17}}, // top left, corner (20, 20)
        {{67, 17}, {62, 12}, {62, 17}}, // top right, (60, 20)
        {{67, 52}, {62, 57}, {62, 52}}, // bottom right, (60, 50)
        {{12, 52}, {17, 57}, {17, 52}}, // bottom left, (20, 50)
    };
    for (Corner const &c : corners) {
        EXPECT_TRUE(pixelIs(image, c.stripA.x(), c.stripA.y(), BLUE));
        EXPECT_TRUE(pixelIs(image, c.stripB.x(), c.stripB.y(), BLUE));
        EXPECT_TRUE(pixelIs(image, c.hollow.x(), c.hollow.y(), Qt::white)) << "inside the L";
    }
    EXPECT_TRUE(pixelIs(image, 30, 30, Qt::green)) << "the node itself";

    // Scale 2: the box is 6 units (12 pixels) from 13.5 to 19.5, so the
    // strips are 2 units thick and scene x 12.5 lies outside it.
    QImage zoomed(200, 200, QImage::Format_ARGB32_Premultiplied);
    scene->render(zoomed, {0, 0, 100, 100}, {0, 0, 200, 200});
    EXPECT_TRUE(pixelIs(zoomed, 29, 34, BLUE));  // scene (14.75, 17.25)
    EXPECT_TRUE(pixelIs(zoomed, 34, 29, BLUE));  // scene (17.25, 14.75)
    EXPECT_TRUE(pixelIs(zoomed, 25, 34, Qt::white)) << "outside the smaller box";
    EXPECT_TRUE(pixelIs(zoomed, 35, 35, Qt::white)) << "inside the L";

    removeFocusIndicators(node);
    scene->render(image, {0, 0, 100, 100}, {0, 0, 100, 100});
    EXPECT_TRUE(pixelIs(image, 12, 16, Qt::white)) << "gone with their removal";
}
