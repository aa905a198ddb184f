// Renders outside the views at scales of their own must not disturb what
// nodes keep for a view, nor be disturbed by it.

#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

using RenderScale = SceneTest;

TEST_F(RenderScale, CachedImagesAreNeverReusedAtAnotherScale)
{
    auto scene = Scene::createScene();
    RectNode parent = solidRect({0, 0, 10, 10}, Qt::blue);
    RectNode child = solidRect({0, 0, 10, 10}, Qt::red);
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
    RectNode n = solidRect({10, 10, -10, -10}, Qt::green);
    QImage image = *n.render(CacheType::Self, 2.0)->asQImage();
    ASSERT_EQ(image.size(), QSize(22, 22));
    EXPECT_TRUE(pixelIs(image, 10, 10, QColor(0, 255, 0)));
}
