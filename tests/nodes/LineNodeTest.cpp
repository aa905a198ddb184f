// The line node: hit testing with and without a scene, its outline, and the
// decorations at its ends: the turn towards a direction, the placement of the
// decoration's node and the backoff the line stops short by.

#include <ConstantLodScale>
#include <Error>
#include <LineNode>
#include <RectNode>
#include <Scene>
#include <ShapeNode>

#include "nodes/LineNodeImpl.h"
#include "support/NodeStyles.h"
#include "support/PaintNode.h"
#include "support/SceneFixture.h"

#include <QtMath>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using P = GLOX::GLPoint<double>;
using R = GLOX::GLRect<double>;

namespace {

// An arrow-head stand-in: a small square whose local origin is its centre.
RectNode head() { return RectNode(R(-1, -1, 2, 2)); }

void expectNear(P const &actual, P const &expected)
{
    EXPECT_NEAR(actual.x, expected.x, 1e-9);
    EXPECT_NEAR(actual.y, expected.y, 1e-9);
}
} // namespace

class LineNodeHitTest : public SceneTest {};

TEST_F(LineNodeHitTest, ToleranceAndTheWiderHitBandApplyOnlyOnAScene)
{
    LineNode line(P(0, 0), P(10, 0));
    auto *impl = line.getValidLineNodeImpl();
    // Off a scene: the hairline, one device pixel at scale 2.
    EXPECT_NEAR(impl->computeHitBounds(2.0).boundingRect().height, 0.25, 1e-9);
    line.setStroke(constantStroke(1.0));
    EXPECT_TRUE(line.contains(P(5, 0.9)));
    EXPECT_FALSE(line.contains(P(5, 1.0)));
    EXPECT_TRUE(line.contains(P(50, -0.5))) << "the infinite line, not the segment";
    QGraphicsItem *item = line.getImpl()->getGraphicsItem();
    EXPECT_TRUE(item->contains(QPointF(5, 0.9))) << "Qt's test is the line's own, full width";
    EXPECT_FALSE(LineNode(P(3, 3), P(3, 3)).contains(P(3, 3))) << "no length, no hit";

    scene->addNode(line);
    EXPECT_TRUE(line.contains(P(5, 4.9)));
    EXPECT_FALSE(line.contains(P(5, 5.0)));
    // On a scene the band is at least twice the tolerance, divided by the scale.
    EXPECT_NEAR(impl->computeHitBounds(2.0).boundingRect().height, 4.0, 1e-9);
    line.setStroke(Stroke(GLOX::Color(), 20.0)); // 20 units at every scale
    EXPECT_NEAR(impl->computeHitBounds(2.0).boundingRect().height, 10.0, 1e-9);
}

TEST(LineNode, OutlineFollowsCapAndWidthEvenWithoutPen)
{
    LineNode line(P(0, 0), P(10, 0));
    auto *impl = line.getValidLineNodeImpl();
    line.setStroke(constantStroke(2.0, NoStroke, SquareCap));
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
    line.setStroke(constantStroke(1.0));
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

// An outlined arrow head on a line turned through every quadrant: the line
// stops at the head's base, so none of it shows inside the head or beyond
// its tip, at scales 1 and 4. The backoff turns with the head; turned the
// other way, the line would run past the tip by the backoff.
TEST(LineEndDecoration, AnArrowHeadCapsARotatedLineWithNoLineThroughIt)
{
    double const length = 40, backoff = 8;
    QPainterPath arrow; // tip at the local origin, pointing along +x
    arrow.moveTo(0, 0);
    arrow.lineTo(-backoff, -4);
    arrow.lineTo(-backoff, 4);
    arrow.closeSubpath();
    for (double degrees : {30.0, 90.0, 200.0, -60.0}) {
        for (double scale : {1.0, 4.0}) {
            SCOPED_TRACE(testing::Message() << degrees << " degrees at scale " << scale);
            P dir(std::cos(qDegreesToRadians(degrees)), std::sin(qDegreesToRadians(degrees)));
            P start(50, 50), end = start + dir * length;
            GLOX::Holder<Scene> scene = Scene::createScene();
            LineNode line(start, end);
            line.setStroke(Stroke(GLOX::fromQColor(Qt::red), 2.0, SolidLine, FlatCap, MiterJoin,
                                  ConstantLodScale::instance()));
            ShapeNode head{GLOX::Shape(arrow)};
            head.setDrawStyle(DrawStyle(constantStroke(1.0), Fill::NoFill()));
            LineEndDecoration decoration(head);
            decoration.setLineBackoff(backoff);
            line.setEndDecoration(decoration);
            scene->addNode(line);

            QImage image = transparentImage(int(100 * scale), int(100 * scale));
            scene->render(image, GLOX::GLRect<double>(0, 0, 100, 100),
                          GLOX::GLRect<double>(0, 0, image.width(), image.height()));
            // How far along the line, in scene units, the red reaches.
            double reach = -1e9;
            int blackNearTip = 0;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x) {
                    QRgb px = image.pixel(x, y);
                    P at((x + 0.5) / scale, (y + 0.5) / scale);
                    double along = (at.x - start.x) * dir.x + (at.y - start.y) * dir.y;
                    if (qAlpha(px) > 128 && qRed(px) > 200 && qGreen(px) < 60) reach = std::max(reach, along);
                    if (qAlpha(px) > 128 && qRed(px) < 60 && std::hypot(at.x - end.x, at.y - end.y) < 2.0) ++blackNearTip;
                }
            }
            double pixel = 1.5 / scale + 0.5; // the flat end's antialiased edge and the line's half width
            EXPECT_LE(reach, length - backoff + pixel) << "the line shows inside the head or past its tip";
            EXPECT_GE(reach, length - backoff - pixel) << "the line stops short of the head";
            EXPECT_GT(blackNearTip, 0) << "the head's tip is not on the line's end";
        }
    }
}

TEST(LineEndDecoration, DirectionGivesSignedAngleFromANonZeroReference)
{
    LineEndDecoration d;
    d.setLineBackoff(5.0);
    EXPECT_FALSE(d.isValid());
    EXPECT_EQ(d.getBackoffVector(), P(0, 0)) << "no node, no backoff";
    d.setDirection(P(0, 1));
    EXPECT_DOUBLE_EQ(d.getRotation(), M_PI / 2);
    d.setDirection(P(0, -1));
    EXPECT_DOUBLE_EQ(d.getRotation(), -M_PI / 2);
    d.setDirection(P(0, 0));
    EXPECT_EQ(d.getRotation(), 0.0);
    // Parallel vectors whose cosine rounds just past 1 give about 0, not NaN.
    d.setReferenceDirection(P(0.7, 0.1));
    d.setDirection(P(0.7 * 3, 0.1 * 3));
    EXPECT_NEAR(d.getRotation(), 0.0, 1e-7);
    // A zero reference direction fails and keeps the old one.
    d.setReferenceDirection(P(0, 2));
    EXPECT_THROW(d.setReferenceDirection(P(1e-9, 0)), Error);
    EXPECT_EQ(d.getReferenceDirection(), P(0, 2));
}

TEST(LineEndDecoration, PlacesOriginOnPositionTurnedAndShifted)
{
    RectNode head(GLOX::GLRect<double>(-4, -2, 4, 4));
    LineEndDecoration d(head);
    d.setOrigin(P(1, 0));
    d.setRelativePosition(2.0);
    d.setPosition(P(10, 20));
    d.setDirection(P(0, 3)); // a quarter turn: local x runs along scene y
    GLOX::Transform t = head.getTransform();
    // local p -> position + R * (p + 2 * (1, 0) - (1, 0))
    expectNear(t.map(P(-1, 0)), P(10, 20));
    expectNear(t.map(P(-1, 1)), P(9, 20));
    d.setLineBackoff(3.0);
    expectNear(d.getBackoffVector(), P(0, 3)); // along where the head points
}

TEST(LineEndDecoration, NewNodeTakesThePlaceUnderTheLine)
{
    RectNode line, first, second;
    LineEndDecoration d(first);
    d.setPosition(P(5, 0));
    d.setParent(line);
    EXPECT_EQ(first.getParent(), line);
    d.setNode(second);
    EXPECT_EQ(second.getParent(), line);
    EXPECT_EQ(second.getTransform().map(P(0, 0)), P(5, 0));
}

// The heads a line holds die with the line when the scene dies; they are not
// kept alive, nor detached one by one, for the line's own handles on them.
TEST(LineEndDecoration, ASceneTakesItsDecoratedLinesHeadsAlongWhenItDies)
{
    int const before = liveNodeCount();
    {
        GLOX::Holder<Scene> scene = Scene::createScene();
        for (int i = 0; i < 3; ++i) {
            LineNode line(P(0, i), P(10, i));
            line.setStartDecoration(LineEndDecoration(head()));
            line.setEndDecoration(LineEndDecoration(head()));
            scene->addNode(line);
        }
        RectNode kept = head(); // a head the client holds outlives the scene, detached
        LineNode holder(P(0, 9), P(10, 9));
        holder.setEndDecoration(LineEndDecoration(kept));
        scene->addNode(holder);
        holder = LineNode();
        scene.reset();
        EXPECT_TRUE(kept.isValid());
        EXPECT_FALSE(kept.getParent().isValid());
        EXPECT_EQ(kept.getScene(), nullptr);
    }
    EXPECT_EQ(liveNodeCount(), before);
}
