// Custom and container nodes: a painter's drawing lands where its bounds
// say at every scale; no painter, no bounds and no pixels; the painter's
// default mask; effects on a custom node outline its bounds, and effects
// on a container never draw.

#include <ContainerNode>
#include <CustomNode>
#include <CustomNodePainter>
#include <EffectStroke>
#include <NodeEffects>

#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/SceneFixture.h"

#include <QPainter>

using namespace VOR2;
using namespace VOR2::test;

namespace {
using R = GLOX::GLRect<double>;
using CustomNodes = SceneTest;

// Paints a half-transparent red disc in a box; its bounds are the box.
struct DiscPainter : CustomNodePainter {
    R box;
    explicit DiscPainter(R const &b) : box(b) {}
    Bounds getBounds() override { return Bounds(box); }
    void paint(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *) override
    {
        painter->setPen(Qt::NoPen);
        painter->setBrush(QColor(255, 0, 0, 128));
        painter->drawEllipse(GLOX::toQRectF(box));
    }
};

QImage renderScene(Scene &scene, double scale, R const &source = R(0, 0, 40, 40))
{
    QImage image(int(source.width * scale), int(source.height * scale), QImage::Format_ARGB32);
    scene.render(image, source, R(0, 0, source.width * scale, source.height * scale));
    return image;
}
} // namespace

TEST_F(CustomNodes, ThePaintersDrawingLandsWhereItsBoundsSayAtEveryScale)
{
    CustomNode node = added(CustomNode());
    node.setPainter(new DiscPainter(R(2, 4, 16, 8)));
    node.setPosition({10, 10});
    EXPECT_EQ(node.getBoundingRect(), R(2, 4, 16, 8));
    for (double scale : {1.0, 4.0}) {
        QImage const image = renderScene(*scene, scale);
        auto at = [&](double x, double y) { return QPoint(int(x * scale), int(y * scale)); };
        QPoint const centre = at(10 + 10, 10 + 8);
        EXPECT_TRUE(pixelIs(image, centre.x(), centre.y(), QColor(255, 127, 127))) << "scale " << scale;
        for (QPoint outside : {at(10 + 1, 10 + 8), at(10 + 10, 10 + 3), at(10 + 19, 10 + 8), at(10 + 10, 10 + 13)})
            EXPECT_TRUE(pixelIs(image, outside.x(), outside.y(), Qt::white)) << "scale " << scale;
    }
}

TEST_F(CustomNodes, WithoutAPainterANodeHasNoBoundsAndDrawsNothing)
{
    CustomNode node = added(CustomNode());
    node.setPosition({10, 10});
    EXPECT_EQ(node.getBounds(), Bounds());
    EXPECT_EQ(renderScene(*scene, 1.0, R(0, 0, 20, 20)), renderScene(*scene, 1.0, R(100, 100, 20, 20)));

    // A painter let go forgets the node, and the node its bounds.
    GLOX::Holder<CustomNodePainter> painter(new DiscPainter(R(0, 0, 10, 10)));
    node.setPainter(painter.get());
    EXPECT_EQ(painter->getNode(), node);
    EXPECT_EQ(painter->refCount(), 2u);
    node.setPainter(nullptr);
    EXPECT_FALSE(painter->getNode().isValid());
    EXPECT_EQ(painter->refCount(), 1u);
    EXPECT_EQ(node.getBounds(), Bounds());
    QImage mask = transparentImage(10, 10);
    QPainter p(&mask);
    node.getImpl()->paintMask(&p, 1.0, R(0, 0, 10, 10));
    p.end();
    EXPECT_EQ(mask, transparentImage(10, 10)) << "no painter, no mask";
}

TEST_F(CustomNodes, TheDefaultMaskKeepsTheShapeAndLosesTheColour)
{
    CustomNode node;
    node.setPainter(new DiscPainter(R(0, 0, 20, 20)));
    QImage mask = transparentImage(40, 40);
    QPainter painter(&mask);
    painter.translate(10, 10); // the mask fills the device whatever the transform
    node.getImpl()->paintMask(&painter, 1.0, R(0, 0, 20, 20));
    painter.end();
    QRgb const centre = mask.pixel(20, 20);
    EXPECT_EQ(qRed(centre) + qGreen(centre) + qBlue(centre), 0) << "black";
    EXPECT_NEAR(qAlpha(centre), 128, 2) << "with the painter's coverage";
    EXPECT_EQ(qAlpha(mask.pixel(11, 11)), 0) << "outside the disc, in its box";
    EXPECT_EQ(qAlpha(mask.pixel(2, 20)), 0);
}

TEST_F(CustomNodes, AStrokeOutlinesACustomNodeAndNeverAContainer)
{
    CustomNode custom = added(CustomNode());
    custom.setPainter(new DiscPainter(R(10, 10, 20, 20)));
    GLOX::Holder<EffectStroke> stroke(new EffectStroke(Stroke(GLOX::Color(0, 0, 1), 2.0), Center));
    custom.getEffects().add(stroke.get(), "outline");
    QImage const image = renderScene(*scene, 1.0);
    EXPECT_TRUE(pixelIs(image, 20, 10, QColor(0, 0, 255), 60)) << "along the top of the bounds";
    EXPECT_TRUE(pixelIs(image, 10, 12, QColor(0, 0, 255), 60)) << "and the left";
    EXPECT_TRUE(pixelIs(image, 11, 11, QColor(255, 255, 255), 60)) << "a disc leaves the box's corner clear";
    custom.getEffects().clear();
    QImage const bare = renderScene(*scene, 1.0);
    custom.setSelectable(true);
    custom.setSelected(true);
    EXPECT_NE(renderScene(*scene, 1.0), bare) << "the selection outline shows on a custom node";
    scene->removeNode(custom);

    ContainerNode group = added(ContainerNode());
    RectNode inside = solidRect({10, 10, 20, 20}, Qt::green);
    inside.setParent(group);
    EXPECT_EQ(group.getBounds(), Bounds());
    QImage const plain = renderScene(*scene, 1.0);
    group.getEffects().add(stroke.get(), "outline");
    group.setSelectable(true);
    group.setSelected(true);
    EXPECT_EQ(renderScene(*scene, 1.0), plain) << "neither the stroke nor the selection shows on a container";
    EXPECT_TRUE(pixelIs(plain, 20, 20, QColor(0, 255, 0))) << "its child does";
    EXPECT_FALSE(ContainerNode(inside.getImpl()).isValid());
    EXPECT_STREQ(ContainerNode::staticGetFullyQualifiedTcosTypeName(), "VOR2.ContainerNode");
}
