// The rounded rectangle node: its radius guard and its outline.

#include <ConstantLodScale>
#include <RectNode>
#include <RoundedRectNode>

#include "nodes/RoundedRectNodeImpl.h"

#include <gtest/gtest.h>

using namespace VOR2;
using R = GLOX::GLRect<double>;

TEST(RoundedRectNode, RadiusSetterIgnoresNonPositiveValuesButConstructorDoesNot)
{
    RoundedRectNode n(R(0, 0, 10, 10), 3.0);
    n.setRadius(0.0);
    n.setRadius(-1.0);
    EXPECT_EQ(n.getRadius(), 3.0);
    EXPECT_EQ(RoundedRectNode(R(0, 0, 10, 10), -2.0).getRadius(), -2.0);
    EXPECT_FALSE(RoundedRectNode(RectNode().getImpl()).isValid());
    EXPECT_TRUE(RoundedRectNode(n.getImpl()).isValid());
}

TEST(RoundedRectNode, SettersReplaceTheCachedOutline)
{
    RoundedRectNode n(R(0, 0, 10, 10), 0.0);
    EXPECT_TRUE(n.getBounds().isOnlyRect()) << "no radius: a plain rectangle";
    n.setRadius(4.0);
    EXPECT_FALSE(n.getBounds().contains(GLOX::GLPoint<double>(0.5, 0.5))) << "corner cut away";
    n.setRect(R(20, 0, 10, 10));
    EXPECT_EQ(n.getBounds().boundingRect(), R(20, 0, 10, 10));

    auto *impl = n.getValidRoundedRectNodeImpl();
    n.setStroke(Stroke(GLOX::Color(), 2.0, SolidLine, FlatCap, MiterJoin, ConstantLodScale::instance()));
    EXPECT_NEAR(impl->computeStrokedOutline(4.0).boundingRect().x, 19.75, 1e-9);
    n.setStroke(Stroke::NoStroke());
    EXPECT_EQ(impl->computeStrokedOutline(4.0).boundingRect(), R(20, 0, 10, 10));
}
