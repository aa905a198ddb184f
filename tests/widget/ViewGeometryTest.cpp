// The arithmetic of views: placement, fitting, zooming and translating.

#include "widget/ViewGeometry.h"

#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::view;

namespace {
ViewInfo viewOf(double scale, double originX, double originY, double w = 200, double h = 100)
{
    ViewInfo v;
    v.scale = scale;
    v.originX = originX;
    v.originY = originY;
    v.viewWidth = w;
    v.viewHeight = h;
    return v;
}
} // namespace

TEST(ViewGeometry, ConversionsAreInverseAndHonourTheOffset)
{
    ViewInfo v = viewOf(2, 10, 20);
    v.offsetX = 4;
    EXPECT_EQ(viewToScene(v, Point(0, 0)), Point(12, 20));
    EXPECT_EQ(sceneToView(v, viewToScene(v, Point(33, 7))), Point(33, 7));
    EXPECT_EQ(viewToScene(v, Rect(0, 0, 200, 100)), Rect(12, 20, 100, 50));
    EXPECT_EQ(sceneToView(v, Rect(12, 20, 100, 50)), Rect(0, 0, 200, 100));
}

TEST(ViewGeometry, FittingCentresAlongTheAxisWithRoomToSpare)
{
    ViewRequest r = fitRect(Rect(0, 0, 400, 100), 200, 200);
    EXPECT_EQ(r.scale, 0.5);
    EXPECT_EQ(r.originX, 0);
    EXPECT_EQ(r.originY, -150) << "centred vertically";
    EXPECT_EQ(fitRect(Rect(5, 6, 0, 10), 200, 200), (ViewRequest{1, 5, 6, 200, 200}));
    EXPECT_EQ(fitRect(Rect(5, 6, 10, 10), 0, 200), (ViewRequest{1, 5, 6, -1, -1}));
    EXPECT_FALSE(showSceneRect(viewOf(1, 0, 0), Rect(0, 0, -1, 5)));
}

TEST(ViewGeometry, ZoomKeepsItsPivotAndRejectsOnlyNonPositiveScales)
{
    ViewInfo v = viewOf(1, 0, 0);
    auto centred = setScale(v, 3);
    ASSERT_TRUE(centred);
    EXPECT_EQ(centred->scale, 3);
    EXPECT_EQ(viewToScene(overlaid(v, *centred), Point(100, 50)), Point(100, 50));
    EXPECT_FALSE(setScale(v, 0));
    EXPECT_FALSE(setScale(v, -1));
    EXPECT_TRUE(setScale(v, 1e-300));

    auto around = setScaleAroundScenePoint(v, 4, Point(20, 30));
    ASSERT_TRUE(around);
    Point q = sceneToView(overlaid(v, *around), Point(20, 30));
    EXPECT_NEAR(q.x, 20, 1e-9);
    EXPECT_NEAR(q.y, 30, 1e-9);
    EXPECT_FALSE(setScale(viewOf(1, 0, 0, -1, -1), 2)) << "a view of unknown size cannot zoom";
}

TEST(ViewGeometry, TranslationIsInSceneUnitsWhateverTheScale)
{
    ViewRequest r = translate(viewOf(2, 50, 50), 10, 0).value();
    EXPECT_EQ(r, (ViewRequest{2, 40, 50, 200, 100}));
    EXPECT_EQ(sceneToView(overlaid(viewOf(2, 50, 50), r), Point(50, 50)).x, 20) << "20 view pixels";
}

TEST(ViewGeometry, ZoomToSceneRectFitsContentWithMargins)
{
    ViewInfo v = viewOf(1, 0, 0, 240, 140);
    v.margins = Rect(20, 20, 20, 20);
    EXPECT_FALSE(zoomToSceneRect(v)) << "an empty scene";
    v.sceneRect = Rect(0, 0, 100, 50);
    auto r = zoomToSceneRect(v);
    ASSERT_TRUE(r);
    EXPECT_EQ(r->scale, 2);
    ViewInfo shown = overlaid(v, *r);
    EXPECT_EQ(sceneToView(shown, Point(0, 0)), Point(20, 20));
    v.viewWidth = 40;
    v.viewHeight = 40;
    EXPECT_FALSE(zoomToSceneRect(v)) << "no room left inside the margins";
}

TEST(ViewGeometry, ActualSizeCentresASmallSceneAndFindsALostOne)
{
    ViewInfo v = viewOf(0.5, 0, 0, 200, 100);
    v.sceneRect = Rect(0, 0, 50, 50);
    auto r = zoomToActualSize(v);
    ASSERT_TRUE(r);
    EXPECT_EQ(*r, (ViewRequest{1, -75, -25, 200, 100}));

    ViewInfo lost = viewOf(1, 1000, 1000, 200, 100);
    lost.sceneRect = Rect(0, 0, 500, 500);
    auto back = zoomToActualSize(lost);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->originX, 0);
    EXPECT_EQ(back->originY, 0);
}
