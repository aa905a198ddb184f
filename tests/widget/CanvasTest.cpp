// A canvas through the real path: view operations seen at once by the
// getters, and a real window on the GUI thread showing the scene that the
// host thread rendered.

#include <GLCanvas>
#include <RectNode>
#include <Scene>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"
#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include <HostRuntime>
#include "widget/SceneServer.h"

#include <QAbstractScrollArea>
#include <QScrollBar>
#include <QWidget>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using namespace std::chrono_literals;

namespace {

bool pumpUntil(std::function<bool()> const &done) { return HostRuntime::loop().runUntil(done, 5000ms); }

// Shows the canvas's widget at w by h and waits until the host has drawn
// a view of that size.
void showWindow(GLCanvas &canvas, int w, int h)
{
    QWidget *widget = canvas.getWidget();
    HostRuntime::bridge().runOnGui([widget, w, h] {
        widget->resize(w, h);
        widget->show();
    }, true);
    ASSERT_TRUE(pumpUntil([&] { return canvas.getViewExtents().x > 0; }));
}
} // namespace

TEST(Canvas, GettersSeeARequestBeforeAnyRedraw)
{
    auto scene = Scene::createScene();
    scene->addNode(solidRect({0, 0, 100, 100}, Qt::red));
    GLCanvas canvas;
    canvas.setScene(scene.get());
    canvas.setInitialSceneOriginAndScale({0, 0}, 1.0);
    showWindow(canvas, 200, 100);
    canvas.setScale(3);
    EXPECT_EQ(canvas.getScale(), 3);
    canvas.setScale(0);
    canvas.setScale(-1);
    EXPECT_EQ(canvas.getScale(), 3) << "non-positive scales are dropped";
    GLCanvas::Point before = canvas.scenePointToViewPoint({50, 50});
    canvas.translate(10, 0);
    EXPECT_DOUBLE_EQ(canvas.scenePointToViewPoint({50, 50}).x, before.x + 30) << "10 scene units at scale 3";
    pumpUntil([&] { return canvas.getSceneServer().rendering().view.scale == 3; });
    EXPECT_EQ(canvas.getSceneServer().rendering().view.scale, 3);
}

TEST(Canvas, AWindowShowsTheSceneRenderedOnTheHostThread)
{
    auto scene = Scene::createScene();
    scene->addNode(solidRect({0, 0, 40, 40}, Qt::red));
    scene->addNode(solidRect({60, 0, 40, 40}, Qt::blue));
    GLCanvas canvas;
    ASSERT_NE(canvas.getWidget(), nullptr) << "the GUI thread makes the widget";
    canvas.setScene(scene.get());
    showWindow(canvas, 220, 120);
    canvas.zoomToSceneRect();
    ASSERT_TRUE(pumpUntil([&] {
        SceneServer &server = canvas.getSceneServer();
        Rendering::Locker lock(server.rendering());
        return server.rendering().view.scale > 1.5;
    }));
    QImage grabbed;
    QWidget *widget = canvas.getWidget();
    HostRuntime::bridge().runOnGui([&] { grabbed = widget->grab().toImage(); }, true);
    ASSERT_FALSE(grabbed.isNull());
    QPointF red = GLOX::toQPointF(canvas.scenePointToViewPoint({20, 20}));
    QPointF blue = GLOX::toQPointF(canvas.scenePointToViewPoint({80, 20}));
    int frame = (widget->width() - canvas.getViewExtents().x) / 2;
    EXPECT_TRUE(pixelIs(grabbed, int(red.x()) + frame, int(red.y()) + frame, Qt::red));
    EXPECT_TRUE(pixelIs(grabbed, int(blue.x()) + frame, int(blue.y()) + frame, Qt::blue));

    // All content fits: no scroll range. Zoomed in: the bars can reach it all.
    auto ranges = [&] {
        int h = 0, v = 0;
        HostRuntime::bridge().runOnGui([&] {
            auto *area = static_cast<QAbstractScrollArea *>(widget);
            h = area->horizontalScrollBar()->maximum() - area->horizontalScrollBar()->minimum();
            v = area->verticalScrollBar()->maximum() - area->verticalScrollBar()->minimum();
        }, true);
        return std::make_pair(h, v);
    };
    pumpUntil([&] { return ranges() == std::make_pair(0, 0); });
    EXPECT_EQ(ranges(), std::make_pair(0, 0));
    canvas.setScale(8);
    pumpUntil([&] { return ranges().first > 0; });
    EXPECT_GT(ranges().first, 0);
    EXPECT_GT(ranges().second, 0);
    HostRuntime::bridge().runOnGui([widget] { widget->hide(); }, true);
}

TEST(Canvas, TheMarqueeIsDrawnOverTheLayers)
{
    auto scene = Scene::createScene();
    scene->addNode(solidRect({0, 0, 100, 100}, Qt::red));
    GLCanvas canvas;
    canvas.setScene(scene.get());
    showWindow(canvas, 140, 140);
    canvas.setInitialSceneOriginAndScale({0, 0}, 1.0);
    canvas.setMarquee({20, 20, 40, 30});
    HostRuntime::loop().runUntilIdle();
    QImage grabbed;
    QWidget *widget = canvas.getWidget();
    int frame = (widget->width() - int(canvas.getViewExtents().x)) / 2;
    pumpUntil([&] {
        HostRuntime::bridge().runOnGui([&] { grabbed = widget->grab().toImage(); }, true);
        return bool(pixelIs(grabbed, 20 + frame, 35 + frame, QColor(106, 166, 255), 0));
    });
    EXPECT_TRUE(pixelIs(grabbed, 20 + frame, 35 + frame, QColor(106, 166, 255), 0)) << "the outline";
    QColor inside = grabbed.pixelColor(40 + frame, 35 + frame);
    EXPECT_GT(inside.blue(), 60) << "translucent blue over the red square";
    EXPECT_GT(inside.red(), 150);
    canvas.setMarquee({});
    HostRuntime::bridge().runOnGui([widget] { widget->hide(); }, true);
}
