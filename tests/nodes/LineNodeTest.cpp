// The line node: hit testing with and without a scene, its outline, and the
// decorations at its ends.

#include <ConstantLodScale>
#include <LineNode>
#include <RectNode>
#include <Scene>

#include "nodes/LineNodeImpl.h"
#include "support/PaintNode.h"
#include "support/SceneFixture.h"

#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using P = GLOX::GLPoint<double>;
using R = GLOX::GLRect<double>;

namespace {
Stroke widthStroke(double w, StrokeStyle style = SolidLine, StrokeCapStyle cap = FlatCap)
{
    return Stroke(GLOX::Color(), w, style, cap, MiterJoin, ConstantLodScale::instance());
}

// An arrow-head stand-in: a small square whose local origin is its centre.
RectNode head() { return RectNode(R(-1, -1, 2, 2)); }
} // namespace

class LineNodeHitTest : public SceneTest {};

TEST_F(LineNodeHitTest, ToleranceAppliesOnlyOnAScene)
{
    LineNode line(P(0, 0), P(10, 0));
    line.setStroke(widthStroke(1.0));
    EXPECT_TRUE(line.contains(P(5, 0.9)));
    EXPECT_FALSE(line.contains(P(5, 1.0)));
    EXPECT_TRUE(line.contains(P(50, -0.5))) << "the infinite line, not the segment";
    QGraphicsItem *item = line.getImpl()->getGraphicsItem();
    EXPECT_TRUE(item->contains(QPointF(5, 0.9))) << "Qt's test is the line's own, full width";
    EXPECT_FALSE(LineNode(P(3, 3), P(3, 3)).contains(P(3, 3))) << "no length, no hit";

    auto scene = Scene::createScene();
    scene->addNode(line);
    EXPECT_TRUE(line.contains(P(5, 4.9)));
    EXPECT_FALSE(line.contains(P(5, 5.0)));
    scene->removeNode(line);
}

TEST_F(LineNodeHitTest, HitBandIsAtLeastTheToleranceWideOnScreen)
{
    LineNode line(P(0, 0), P(10, 0));
    auto *impl = line.getValidLineNodeImpl();
    // Off a scene: the hairline, one device pixel at scale 2.
    EXPECT_NEAR(impl->computeHitBounds(2.0).boundingRect().height, 0.25, 1e-9);
    auto scene = Scene::createScene();
    scene->addNode(line);
    // On a scene: twice the tolerance, divided by the scale.
    EXPECT_NEAR(impl->computeHitBounds(2.0).boundingRect().height, 4.0, 1e-9);
    line.setStroke(Stroke(GLOX::Color(), 20.0)); // 20 units at every scale
    EXPECT_NEAR(impl->computeHitBounds(2.0).boundingRect().height, 10.0, 1e-9);
    scene->removeNode(line);
}

TEST(LineNode, OutlineFollowsCapAndWidthEvenWithoutPen)
{
    LineNode line(P(0, 0), P(10, 0));
    auto *impl = line.getValidLineNodeImpl();
    line.setStroke(widthStroke(2.0, NoStroke, SquareCap));
    R r = impl->computeStrokedOutline(1.0).boundingRect();
    EXPECT_NEAR(r.x, -1.0, 1e-9);
    EXPECT_NEAR(r.right(), 11.0, 1e-9);
    EXPECT_NEAR(r.height, 2.0, 1e-9);
}

TEST(LineNode, DecorationsFollowTheEndsPointingOutward)
{
    LineNode line(P(0, 0), P(10, 0));
    RectNode startHead = head(), endHead = head();
    line.setStartDecoration(LineEndDecoration(startHead));
    line.setEndDecoration(LineEndDecoration(endHead));
    EXPECT_EQ(endHead.getParent(), line);
    line.setEnd(P(0, 10));
    GLOX::Transform t = endHead.getTransform();
    P tip = t.map(P(0, 0)), ahead = t.map(P(1, 0));
    EXPECT_EQ(tip, P(0, 10));
    EXPECT_NEAR(ahead.y - tip.y, 1, 1e-9) << "local x points away from the start";
    P back = startHead.getTransform().map(P(1, 0));
    EXPECT_NEAR(back.y, -1, 1e-9) << "the start head points away from the end";

    RectNode replacement = head();
    line.setStartDecoration(LineEndDecoration(replacement));
    EXPECT_FALSE(startHead.getParent().isValid()) << "the old head left the tree";
    EXPECT_EQ(line.getChildren().size(), 2);
}

TEST(LineNode, BackoffShortensTheDrawnLine)
{
    LineNode line(P(4.5, 2), P(4.5, 20));
    line.setStroke(widthStroke(1.0));
    auto drawnLength = [&] { return paintedAlong(paintNodeAtScale(line, 1.0, 8, 24), {4, 0}, {0, 1}); };
    int full = drawnLength();
    auto backingOff = [](double backoff) {
        LineEndDecoration d(head());
        d.setLineBackoff(backoff);
        return d;
    };
    line.setEndDecoration(backingOff(5.0));
    EXPECT_EQ(drawnLength(), full - 5);
    line.setStartDecoration(backingOff(3.0));
    EXPECT_EQ(drawnLength(), full - 8);
}
