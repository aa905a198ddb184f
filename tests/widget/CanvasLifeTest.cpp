// A canvas's place among widgets and threads: its parent's widget, the end
// of either side first, the events it keeps from the scroll area, and the
// one view key its renders and its input share.

#include <GLCanvas>
#include <HostRuntime>
#include <RectNode>
#include <Scene>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"
#include "scene/NodeImpl.h"
#include "scene/ScenePrivate.h"
#include "support/InputPlayback.h"
#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/RecordingTool.h"
#include "widget/SceneServer.h"

#include <QAbstractScrollArea>
#include <QPointer>
#include <QScrollBar>
#include <QWidget>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using namespace std::chrono_literals;

namespace {

template <typename F>
auto onGui(F const &f)
{
    decltype(f()) result{};
    HostRuntime::bridge().runOnGui([&] { result = f(); }, true);
    return result;
}

// A host object standing for a window made on the GUI thread.
struct Window : GLOX::GLWidget2 {
    QPointer<QWidget> widget;
    Window() : GLOX::GLWidget2("window")
    {
        widget = onGui([] { return new QWidget; });
        GLOX::registerGui(this, widget.data());
    }
    ~Window() override
    {
        QPointer<QWidget> w = widget;
        HostRuntime::bridge().runOnGui([w] { delete w.data(); }, true);
    }
};

} // namespace

TEST(CanvasLife, ItsWidgetIsMadeInsideItsParentsAndMayGoFirst)
{
    auto scene = Scene::createScene();
    scene->addNode(solidRect({0, 0, 50, 50}, Qt::red));
    Window window;
    auto *canvas = new GLCanvas("canvas", &window);
    EXPECT_EQ(canvas->getId(), GLOX::StringID("canvas"));
    EXPECT_EQ(canvas->getParent(), &window);
    QWidget *widget = canvas->getWidget();
    ASSERT_NE(widget, nullptr);
    EXPECT_EQ(onGui([&] { return widget->parentWidget(); }), window.widget.data());
    EXPECT_EQ(GLOX::lookup(canvas), widget);

    // The window takes the canvas's widget with it.
    QPointer<QWidget> w = window.widget;
    HostRuntime::bridge().runOnGui([w] { delete w.data(); }, true);
    EXPECT_EQ(canvas->getWidget(), nullptr);
    canvas->setScene(scene.get());
    canvas->setInitialSceneOriginAndScale({0, 0}, 1.0);
    EXPECT_TRUE(pixelIs(canvas->getSceneServer().getImage(0), 0, 0, Qt::red)) << "it still renders";

    int destroyedSeen = 0;
    GLUV::Listener listener;
    canvas->getDestroyedEmitter().connect(&listener, [&](GLCanvas *c) {
        destroyedSeen += c == canvas;
        EXPECT_EQ(c->getScene(), scene.get()) << "the canvas still works when it says it goes";
    });
    canvas->destroy(); // and nothing of the widget is touched
    EXPECT_EQ(destroyedSeen, 1);
}

TEST(CanvasLife, DestroyEndsTheWidgetOnItsThread)
{
    auto *canvas = new GLCanvas;
    QPointer<QWidget> widget = canvas->getWidget();
    ASSERT_FALSE(widget.isNull());
    canvas->destroy();
    EXPECT_TRUE(onGui([&] { return widget.isNull(); }));
}

namespace {
// A canvas of 200 by 200 on a scene of 1000 by 1000 units at scale 1, with
// a recording tool: both scroll bars have room to move.
struct ScrollingCanvas : ::testing::Test {
    GLOX::Holder<Scene> scene = Scene::createScene();
    RectNode node = solidRect({0, 0, 1000, 1000}, Qt::blue);
    GLCanvas canvas;
    InputPlayback input{canvas};
    GLOX::Holder<RecordingTool> tool{new RecordingTool("recorder")};

    void SetUp() override
    {
        scene->addNode(node);
        canvas.setScene(scene.get());
        ASSERT_TRUE(input.show(200, 200));
        canvas.showScenePointAtViewPointAtScale({400, 400}, {0, 0}, 1.0);
        ASSERT_TRUE(HostRuntime::loop().runUntil(
            [&] { return canvas.getSceneServer().rendering().view.originX == 400; }, 5000ms));
        scene->clearToolStack(); // the default tools would zoom on the wheel
        scene->addTool(tool.get());
    }
    void TearDown() override { input.hide(); }
    int vertical() { return onGui([&] { return input.widget()->verticalScrollBar()->value(); }); }
};
} // namespace

TEST_F(ScrollingCanvas, ConsumedEventsSkipTheScrollAreasOwnHandling)
{
    int before = vertical();
    input.wheel({50, 50}, -15);
    input.keyPress(Qt::Key_Down);
    EXPECT_EQ(vertical(), before) << "the wheel and the keys belong to the tools";
    EXPECT_EQ(tool->typesSeen(), (std::vector<EventType>{EventType::Wheel, EventType::KeyPress}));

    canvas.setEventConsumed(GLOX::WidgetEventCode::Wheel, false);
    input.wheel({50, 50}, -15);
    EXPECT_GT(vertical(), before) << "given back, the wheel scrolls";
    EXPECT_EQ(tool->typesSeen().back(), EventType::Wheel) << "after the tools saw it";

    canvas.disableEventBroadcasting(GLOX::WidgetEventCode::KeyPress);
    input.keyPress(Qt::Key_A, "a");
    EXPECT_EQ(tool->typesSeen().back(), EventType::Wheel) << "a key that is not broadcast never reaches the tools";
}

TEST_F(ScrollingCanvas, RendersAndInputShareTheCanvasViewKey)
{
    EXPECT_EQ(canvas.getSceneServer().getViewKey(), canvas.getKey());
    int const afterRendering = node.getImpl()->viewCacheCount();
    input.move({50, 50});
    input.press({50, 50});
    input.release({50, 50});
    ASSERT_EQ(scene->getPrivate()->getHoveredNode(), node) << "input asked the node where it is";
    EXPECT_EQ(node.getImpl()->viewCacheCount(), afterRendering) << "no second set of caches for the one view";
}

TEST_F(ScrollingCanvas, ADeepZoomSaturatesTheScrollBarsInsteadOfWrappingRound)
{
    // 1000 units at scale 1e7 are 1e10 pixels: more than an int holds.
    canvas.setScaleAroundScenePoint(1e7, {500, 500});
    ASSERT_TRUE(HostRuntime::loop().runUntil(
        [&] { return canvas.getSceneServer().rendering().view.scale == 1e7; }, 5000ms));
    HostRuntime::loop().runUntilIdle();
    auto check = [&](QScrollBar *bar) {
        int const limit = 1 << 29;
        EXPECT_GE(bar->minimum(), -limit);
        EXPECT_LE(bar->maximum(), limit);
        EXPECT_LE(bar->minimum(), bar->value());
        EXPECT_LE(bar->value(), bar->maximum());
        EXPECT_LT(bar->minimum(), bar->maximum()) << "there is still somewhere to scroll";
    };
    HostRuntime::bridge().runOnGui([&] {
        check(input.widget()->horizontalScrollBar());
        check(input.widget()->verticalScrollBar());
        input.widget()->repaint(); // Qt's own slider arithmetic runs on these ranges
    }, true);
}
