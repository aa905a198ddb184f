// The pan's margin: the bounds around the scene, how a pan is cut at them,
// and which axes a cut step hit.

#include "tools/PanGeometry.h"

#include <gtest/gtest.h>

using namespace VOR2::PanGeometry;

TEST(PanGeometry, BoundsGrowTheSceneByNineTenthsOfTheViewOnEachSide)
{
    EXPECT_EQ(panBounds(Rect(0, 0, 400, 300), Rect(50, 50, 100, 200)), Rect(-90, -180, 580, 660));
}

TEST(PanGeometry, AFreeStepPassesAndOneAcrossAnEdgeStopsAtIt)
{
    // View [100, 200] in bounds [0, 500].
    EXPECT_EQ(limitDelta(30, 100, 200, 0, 500), 30);
    EXPECT_EQ(limitDelta(-30, 100, 200, 0, 500), -30);
    EXPECT_EQ(limitDelta(100, 100, 200, 0, 500), 100) << "exactly to the low edge";
    // A step across an edge stops at it.
    EXPECT_EQ(limitDelta(150, 100, 200, 0, 500), 100) << "low edge";
    EXPECT_EQ(limitDelta(-400, 100, 200, 0, 500), -300) << "high edge";
    EXPECT_EQ(limitDelta(10, 0, 100, 0, 500), 0) << "already at the edge";
}

TEST(PanGeometry, AViewOutsideMovesBackInFreelyButNotFurtherOut)
{
    // View [-50, 50] beyond the low edge 0 (after a zoom out).
    EXPECT_EQ(limitDelta(20, -50, 50, 0, 500), 0.0);
    EXPECT_EQ(limitDelta(-20, -50, 50, 0, 500), -20);
    // View [480, 560] beyond the high edge 500.
    EXPECT_EQ(limitDelta(-20, 480, 560, 0, 500), 0.0);
    EXPECT_EQ(limitDelta(30, 480, 560, 0, 500), 30);
}

TEST(PanGeometry, APanReportsTheAxesItCut)
{
    Rect const bounds(0, 0, 500, 500);
    PanStep free = limitPan({10, -10}, Rect(100, 100, 100, 100), bounds);
    EXPECT_EQ(free.delta, Point(10, -10));
    EXPECT_FALSE(free.hitX);
    EXPECT_FALSE(free.hitY);

    PanStep both = limitPan({150, -400}, Rect(100, 100, 100, 100), bounds);
    EXPECT_EQ(both.delta, Point(100, -300));
    EXPECT_TRUE(both.hitX);
    EXPECT_TRUE(both.hitY);

    PanStep one = limitPan({10, 150}, Rect(100, 100, 100, 100), bounds);
    EXPECT_FALSE(one.hitX);
    EXPECT_TRUE(one.hitY);
}
