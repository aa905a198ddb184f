// Line end decorations: the turn towards a direction, the placement of the
// decoration's node and the backoff the line stops short by.

#include <Error>
#include <LineEndDecoration>
#include <RectNode>

#include <QtMath>
#include <gtest/gtest.h>

using namespace VOR2;
using P = GLOX::GLPoint<double>;

namespace {
void expectNear(P const &actual, P const &expected)
{
    EXPECT_NEAR(actual.x, expected.x, 1e-9);
    EXPECT_NEAR(actual.y, expected.y, 1e-9);
}
} // namespace

TEST(LineEndDecoration, DirectionGivesSignedAngleFromReference)
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
}

TEST(LineEndDecoration, ZeroReferenceDirectionFailsAndKeepsTheOldOne)
{
    LineEndDecoration d;
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
