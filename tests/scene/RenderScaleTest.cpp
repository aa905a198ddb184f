// Renders outside the views at scales of their own must not disturb what
// nodes keep for a view, nor be disturbed by it.

#include "support/PixelCompare.h"
#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

namespace {
using RenderScale = SceneTest;

RectNode solid(GLOX::GLRect<double> const &r, GLOX::Color color)
{
    RectNode n(r);
    n.setDrawStyle(DrawStyle(Stroke::NoStroke(), Fill(color)));
    return n;
}
} // namespace

TEST_F(RenderScale, CachedImagesAreNeverReusedAtAnotherScale)
{
    auto scene = Scene::createScene();
    RectNode parent = solid({0, 0, 10, 10}, GLOX::Color(0, 0, 1));
    RectNode child = solid({0, 0, 10, 10}, GLOX::Color(1, 0, 0));
    child.setCacheType(CacheType::Self);
    scene->addNode(parent);
    child.setParent(parent);

    scene->render(0); // builds the child's image at scale 1
    QImage big = *parent.render(CacheType::ChildrenTree, 4.0)->asQImage();
    EXPECT_TRUE(pixelIs(big, 1 + 39, 1 + 39, QColor(255, 0, 0)));
    QImage again = *scene->render(0)->asQImage();
    ASSERT_EQ(again.size(), QSize(10, 10));
    EXPECT_TRUE(pixelIs(again, 9, 9, QColor(255, 0, 0)));
}

TEST_F(RenderScale, GeometryRunningUpAndLeftRendersToo)
{
    RectNode n = solid({10, 10, -10, -10}, GLOX::Color(0, 1, 0));
    QImage image = *n.render(CacheType::Self, 2.0)->asQImage();
    ASSERT_EQ(image.size(), QSize(22, 22));
    EXPECT_TRUE(pixelIs(image, 10, 10, QColor(0, 255, 0)));
}
