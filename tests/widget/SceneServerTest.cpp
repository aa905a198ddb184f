// The scene server on pixels: what a change redraws, what a view change
// redraws, and how layers compose.

#include <LayerStack>
#include <RectNode>
#include <Scene>

#include "scene/ScenePrivate.h"
#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/ServerFixture.h"
#include "widget/BackgroundImage.h"
#include "widget/LayerPainter.h"
#include "GLOX/ImageCompositor.h"
#include <HostRuntime>
#include "widget/SceneServer.h"
#include "GLServices/HostRunLoop.h"

#include <QPainter>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;

using SceneServerTest = ServerFixture;

TEST_F(SceneServerTest, AViewRequestRendersTheVisibleScene)
{
    RectNode n = solidRect({10, 10, 20, 20}, Qt::red);
    scene->addNode(n);
    show(2, 0, 0);
    EXPECT_TRUE(pixelIs(layerImage(), 30, 30, Qt::red));
    EXPECT_TRUE(pixelIs(layerImage(), 70, 70, Qt::transparent));
    EXPECT_EQ(layerImage().size(), QSize(100, 100));
    EXPECT_EQ(server.getImage(0).pixel(70, 70), QColor(Qt::white).rgb()) << "the capture is over white";
}

TEST_F(SceneServerTest, OnlyTheLatestPendingRequestApplies)
{
    scene->addNode(solidRect({0, 0, 10, 10}, Qt::red));
    server.setPendingViewRequest({2, 0, 0, 100, 100});
    server.setPendingViewRequest({3, 1, 1, 100, 100});
    EXPECT_EQ(server.getViewInfo().scale, 3) << "getters see the request before any redraw";
    server.processPendingViewRequest();
    EXPECT_EQ(server.rendering().view.scale, 3);
    ViewRequest none;
    EXPECT_FALSE(server.takePendingViewRequest(none)) << "a later wake-up finds nothing";
}

TEST_F(SceneServerTest, AnEmptySceneIsShownAtTheIdentityView)
{
    show(5, 40, 40, 50, 60);
    EXPECT_EQ(server.rendering().view.scale, 1);
    EXPECT_EQ(server.rendering().view.originX, 0);
    EXPECT_EQ(server.rendering().view.viewWidth, 50);
}

TEST_F(SceneServerTest, MovingANodeRedrawsItsOldAndNewAreaOnly)
{
    RectNode moving = solidRect({10, 10, 10, 10}, Qt::red);
    scene->addNode(moving);
    scene->addNode(solidRect({70, 70, 10, 10}, Qt::blue));
    show(1, 0, 0);
    settle();
    takeDirty();
    layerImage().setPixelColor(90, 10, Qt::green); // a canary outside both areas

    moving.setPosition({30, 0});
    settle();
    EXPECT_TRUE(pixelIs(layerImage(), 15, 15, Qt::transparent)) << "the old area is erased";
    EXPECT_TRUE(pixelIs(layerImage(), 45, 15, Qt::red));
    EXPECT_TRUE(pixelIs(layerImage(), 90, 10, Qt::green)) << "nothing else is redrawn";
    QRectF dirty = takeDirty();
    EXPECT_TRUE(dirty.contains(QRectF(10, 10, 10, 10)));
    EXPECT_TRUE(dirty.contains(QRectF(40, 10, 10, 10)));
    EXPECT_FALSE(dirty.intersects(QRectF(70, 70, 10, 10)));
}

TEST_F(SceneServerTest, RemovedAndHiddenNodesLeaveNoTraceAndNothingElseIsRedrawn)
{
    RectNode gone = solidRect({10, 10, 10, 10}, Qt::red), hidden = solidRect({50, 10, 10, 10}, Qt::blue);
    scene->addNode(gone);
    scene->addNode(hidden);
    show(1, 0, 0);
    settle();
    takeDirty();
    layerImage().setPixelColor(90, 90, Qt::green); // a canary outside both areas

    gone.remove();
    hidden.setVisible(false);
    settle();
    EXPECT_TRUE(pixelIs(layerImage(), 90, 90, Qt::green)) << "nothing else is redrawn";
    QRectF dirty = takeDirty();
    EXPECT_TRUE(dirty.contains(QRectF(10, 10, 10, 10)));
    EXPECT_TRUE(dirty.contains(QRectF(50, 10, 10, 10)));
    EXPECT_FALSE(dirty.intersects(QRectF(0, 40, 100, 60)));
    EXPECT_TRUE(pixelIs(layerImage(), 15, 15, Qt::transparent));
    EXPECT_TRUE(pixelIs(layerImage(), 55, 15, Qt::transparent));
    hidden.setVisible(true);
    settle();
    EXPECT_TRUE(pixelIs(layerImage(), 55, 15, Qt::blue));
}

TEST_F(SceneServerTest, AnAreaQtAnnouncesOnItsOwnIsRedrawn)
{
    scene->addNode(solidRect({10, 10, 40, 40}, Qt::red));
    show(1, 0, 0);
    settle();
    takeDirty();
    layerImage().setPixelColor(25, 25, Qt::green); // inside the announced area
    layerImage().setPixelColor(45, 45, Qt::green); // outside it

    scene->getPrivate()->update(QRectF(20, 20, 10, 10));
    settle();
    EXPECT_EQ(takeDirty(), QRectF(20, 20, 10, 10));
    EXPECT_TRUE(pixelIs(layerImage(), 25, 25, Qt::red)) << "the area is drawn anew";
    EXPECT_TRUE(pixelIs(layerImage(), 45, 45, Qt::green));
}

TEST_F(SceneServerTest, AScrollRepaintsTheWholeViewportAndAResizeStartsAfresh)
{
    scene->addNode(solidRect({0, 0, 300, 300}, Qt::red));
    show(1, 0, 0);
    takeDirty();
    show(1, 20, 0);
    EXPECT_EQ(takeDirty(), QRectF(20, 0, 100, 100)) << "the viewport shifted: all of it is dirty";
    EXPECT_TRUE(pixelIs(layerImage(), 50, 50, Qt::red));
    show(1, 20, 0, 150, 120);
    EXPECT_EQ(layerImage().size(), QSize(150, 120));
    EXPECT_TRUE(pixelIs(layerImage(), 140, 110, Qt::red)) << "a larger view is drawn in full";
}

TEST_F(SceneServerTest, LayersComposeInIndexOrderOverTheirBackgrounds)
{
    scene->addNode(solidRect({0, 0, 50, 50}, Qt::red));
    auto upper = Scene::createScene();
    upper->addNode(solidRect({25, 25, 50, 50}, Qt::blue));
    stack.insertLayer(1, GLOX::Holder<Layer>(new Layer(upper.get(), "upper")));
    scene->setBackground(Background(GLOX::Color(1, 1, 0)));
    show(1, 0, 0);
    QImage view = composed();
    EXPECT_TRUE(pixelIs(view, 10, 10, Qt::red));
    EXPECT_TRUE(pixelIs(view, 40, 40, Qt::blue)) << "the upper layer is drawn over the base";
    EXPECT_TRUE(pixelIs(view, 90, 90, Qt::yellow)) << "the base layer's background";
    stack.removeLayer(1);
}

TEST_F(SceneServerTest, ALayerAddedBeforeTheViewSizeIsKnownIsOnePixel)
{
    EXPECT_EQ(layerImage().size(), QSize(1, 1));
}

TEST_F(SceneServerTest, AChangedBackgroundReachesEveryViewAtOnce)
{
    scene->addNode(solidRect({0, 0, 20, 20}, Qt::red));
    show(1, 0, 0);
    OtherView otherView(scene.get(), {1, 0, 0, 60, 60});
    SceneServer &other = otherView.server;
    takeDirty();
    {
        Rendering::Locker lock(other.rendering());
        other.rendering().dirty = QRectF();
    }

    scene->setBackground(Background(GLOX::Color(0.0, 1.0, 0.0)));
    // No loop turn: the setter itself reaches the servers.
    EXPECT_EQ(takeDirty(), QRectF(0, 0, 100, 100)) << "the whole view is repainted";
    EXPECT_TRUE(pixelIs(composed(), 50, 50, Qt::green));
    EXPECT_TRUE(pixelIs(composed(), 10, 10, Qt::red)) << "nodes stay over the background";
    {
        Rendering::Locker lock(other.rendering());
        EXPECT_EQ(other.rendering().dirty, QRectF(0, 0, 60, 60)) << "and so is the other canvas's";
        EXPECT_EQ(other.rendering().layers[0]->background, scene->getBackground());
    }
    takeDirty();
    scene->setBackground(Background(GLOX::Color(0.0, 1.0, 0.0)));
    EXPECT_TRUE(takeDirty().isEmpty()) << "an equal background repaints nothing";
}

TEST_F(SceneServerTest, ABackgroundImageIsPlacedOverTheViewport)
{
    // A 10 by 10 image: blue with a red top-left pixel, under a key of ours.
    QImage tile(10, 10, QImage::Format_ARGB32_Premultiplied);
    tile.fill(Qt::blue);
    tile.setPixelColor(0, 0, Qt::red);
    auto registered = GLOX::ImageCompositor::Manager::instance().registerImage("customsrc-bg-tile", tile);
    scene->addNode(solidRect({90, 90, 10, 10}, Qt::green));
    Background background(GLOX::Color(1.0, 1.0, 0.0));
    background.setImage("customsrc-bg-tile");
    scene->setBackground(background);
    show(1, 0, 0);

    QImage tiled = composed();
    EXPECT_TRUE(pixelIs(tiled, 0, 0, Qt::red));
    EXPECT_TRUE(pixelIs(tiled, 30, 50, Qt::red)) << "tiles repeat from the top-left corner";
    EXPECT_TRUE(pixelIs(tiled, 35, 55, Qt::blue));
    EXPECT_TRUE(pixelIs(tiled, 95, 95, Qt::green)) << "the scene is drawn over the image";

    background.setImagePlacement(Background::Centre);
    scene->setBackground(background);
    QImage centred = composed();
    EXPECT_TRUE(pixelIs(centred, 45, 45, Qt::red)) << "centred: its corner at (45, 45)";
    EXPECT_TRUE(pixelIs(centred, 50, 50, Qt::blue));
    EXPECT_TRUE(pixelIs(centred, 30, 50, Qt::yellow)) << "the colour shows around it";

    background.setImage("customsrc-no-such-image");
    scene->setBackground(background);
    EXPECT_TRUE(pixelIs(composed(), 45, 45, Qt::yellow)) << "a name that gives no image draws none";
}

TEST(BackgroundImagePlacement, EachPlacementHasItsRectangle)
{
    QSize image(10, 20), viewport(100, 50);
    EXPECT_EQ(backgroundImageRect(Background::Tile, image, viewport), QRect(0, 0, 10, 20));
    EXPECT_EQ(backgroundImageRect(Background::TopLeft, image, viewport), QRect(0, 0, 10, 20));
    EXPECT_EQ(backgroundImageRect(Background::Centre, image, viewport), QRect(45, 15, 10, 20));
    EXPECT_EQ(backgroundImageRect(Background::Stretch, image, viewport), QRect(0, 0, 100, 50));
    EXPECT_TRUE(backgroundImageRect(77, image, viewport).isEmpty()) << "an unknown placement draws nothing";
    EXPECT_TRUE(backgroundImageRect(Background::Tile, QSize(), viewport).isEmpty());
}

TEST_F(SceneServerTest, EveryViewOfASceneSeesEveryChange)
{
    RectNode moving = solidRect({10, 10, 10, 10}, Qt::red);
    scene->addNode(moving);
    show(1, 0, 0);
    OtherView otherView(scene.get(), {2, 0, 0, 100, 100});
    SceneServer &other = otherView.server;
    settle();

    moving.setPosition({20, 0}); // now over 30 to 40
    settle();
    for (SceneServer *server : {&this->server, &other}) {
        double s = server->rendering().view.scale;
        QImage const &image = server->rendering().layers[0]->image;
        EXPECT_TRUE(pixelIs(image, int(35 * s), int(15 * s), Qt::red)) << "drawn where it went, at scale " << s;
        EXPECT_TRUE(pixelIs(image, int(15 * s), int(15 * s), Qt::transparent)) << "erased where it was, at scale " << s;
    }
}

TEST_F(SceneServerTest, ANodeBeyondUsableNumbersDirtiesTheWholeViewNotNothing)
{
    scene->addNode(solidRect({0, 0, 20, 20}, Qt::blue));
    RectNode outer = solidRect({0, 0, 1, 1}, Qt::green);
    scene->addNode(outer);
    outer.scale(1e100);
    RectNode inner = outer;
    for (int depth = 0; depth < 3; ++depth) { // 1e400 in scene units: past what a double holds
        RectNode child = solidRect({0, 0, 1, 1}, Qt::red);
        child.setParent(inner);
        child.scale(1e100);
        inner = child;
    }
    show(1, 0, 0);
    settle();
    takeDirty();

    inner.setVisible(false);
    settle();
    EXPECT_EQ(takeDirty(), QRectF(0, 0, 100, 100)) << "the whole view is redrawn";
    EXPECT_TRUE(pixelIs(layerImage(), 10, 10, Qt::blue)) << "the ordinary node is drawn again";
}
