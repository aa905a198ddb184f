// The ready-made window: where it shows, what a second show does, the set of
// open viewers and how a close by the user leaves it.

#include <GLCanvas>
#include <HostRuntime>
#include <RectNode>
#include <Scene>
#include <Viewer>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"

#include <QPointer>
#include <QRect>
#include <QWidget>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace std::chrono_literals;

namespace {

template <typename F>
auto onGui(F const &f)
{
    decltype(f()) result{};
    HostRuntime::bridge().runOnGui([&] { result = f(); }, true);
    return result;
}

// The top-level window around the viewer's canvas, read on the GUI thread.
struct WindowState {
    QWidget *window = nullptr;
    QRect geometry;
    bool visible = false;
};

WindowState windowOf(Viewer &viewer)
{
    QPointer<QWidget> canvas = viewer.getCanvas()->getWidget();
    return onGui([canvas] {
        WindowState s;
        if (canvas.isNull()) return s;
        s.window = canvas->window();
        s.geometry = s.window->geometry();
        s.visible = s.window->isVisible();
        return s;
    });
}

bool isInOpenSet(Viewer *viewer)
{
    for (Viewer *v : Viewer::openViewers())
        if (v == viewer) return true;
    return false;
}

struct ViewerTest : ::testing::Test {
    void TearDown() override { Viewer::closeOpenViewers(); }
};

} // namespace

TEST_F(ViewerTest, ShowPlacesTheCanvasInAWindowAtTheFixedPlaceAndOpensIt)
{
    auto scene = Scene::createScene();
    Viewer viewer(scene.get());
    EXPECT_EQ(viewer.getScene(), scene.get());
    EXPECT_FALSE(viewer.isOpen());

    viewer.show();
    WindowState s = windowOf(viewer);
    ASSERT_NE(s.window, nullptr);
    EXPECT_NE(s.window, viewer.getCanvas()->getWidget()) << "the canvas sits inside a window of its own";
    EXPECT_EQ(s.geometry, QRect(200, 200, 400, 400));
    EXPECT_TRUE(s.visible);
    EXPECT_TRUE(viewer.isOpen());
    EXPECT_TRUE(HostRuntime::loop().runUntil([&] { return viewer.getCanvas()->getViewExtents().x > 300; }, 5000ms))
        << "the canvas fills the window";

    viewer.hide();
    EXPECT_FALSE(windowOf(viewer).visible);
    EXPECT_TRUE(viewer.isOpen()) << "hidden is not closed";

    viewer.close();
    EXPECT_FALSE(viewer.isOpen());
    EXPECT_FALSE(windowOf(viewer).visible);

    viewer.showAt({10.9, 20.2, 300.7, 150});
    EXPECT_EQ(windowOf(viewer).geometry, QRect(10, 20, 300, 150)) << "each side truncated";
    EXPECT_TRUE(viewer.isOpen()) << "a closed viewer opens again";
}

TEST_F(ViewerTest, ASecondShowAtOnAVisibleViewerOnlyMovesIt)
{
    Viewer viewer;
    viewer.showAt({50, 60, 200, 100});
    QWidget *first = windowOf(viewer).window;
    viewer.showAt({70, 80, 220, 120});
    WindowState s = windowOf(viewer);
    EXPECT_EQ(s.window, first);
    EXPECT_EQ(s.geometry, QRect(70, 80, 220, 120));
    EXPECT_TRUE(s.visible);
    EXPECT_EQ(Viewer::openViewers(), std::vector<Viewer *>{&viewer}) << "entered once";
}

TEST_F(ViewerTest, CloseOpenViewersClosesEachAndWithNoneOpenDoesNothing)
{
    Viewer::closeOpenViewers();
    EXPECT_TRUE(Viewer::openViewers().empty());

    Viewer a, b, hiddenOnly;
    a.show();
    b.show();
    EXPECT_EQ(Viewer::openViewers(), (std::vector<Viewer *>{&a, &b}));
    Viewer::closeOpenViewers();
    EXPECT_TRUE(Viewer::openViewers().empty());
    EXPECT_FALSE(windowOf(a).visible);
    EXPECT_FALSE(windowOf(b).visible);
    EXPECT_FALSE(a.isVisible());

    Viewer::closeOpenViewers();
    EXPECT_TRUE(Viewer::openViewers().empty());
}

TEST_F(ViewerTest, AViewerEndingWhileOpenLeavesTheSetAndTakesItsWindow)
{
    auto *viewer = new Viewer;
    viewer->show();
    QPointer<QWidget> window = windowOf(*viewer).window;
    delete viewer;
    EXPECT_TRUE(Viewer::openViewers().empty());
    EXPECT_TRUE(onGui([&] { return window.isNull(); }));
}

TEST_F(ViewerTest, AUserCloseTakesTheViewerOutOfTheSet)
{
    Viewer viewer;
    viewer.show();
    QPointer<QWidget> window = windowOf(viewer).window;
    // As the window manager asks: a QCloseEvent on the GUI thread.
    EXPECT_TRUE(onGui([&] { return window->close(); }));
    EXPECT_TRUE(HostRuntime::loop().runUntil([&] { return !isInOpenSet(&viewer); }, 5000ms));
    EXPECT_FALSE(viewer.isVisible());
    EXPECT_FALSE(windowOf(viewer).visible);

    viewer.show();
    EXPECT_TRUE(viewer.isOpen()) << "shown again after the user closed it";
    EXPECT_TRUE(windowOf(viewer).visible);
}

TEST_F(ViewerTest, AScriptsViewerLivesWhileOpenAndEndsWhenClosedWithNothingHoldingIt)
{
    auto *viewer = new Viewer;
    viewer->adoptByScript();
    viewer->scriptAttached();
    EXPECT_FALSE(viewer->isCppManagingLifespan()) << "hidden, the script decides";
    viewer->show();
    EXPECT_TRUE(viewer->isCppManagingLifespan());
    viewer->scriptDetached(); // the last script variable went
    HostRuntime::loop().runUntilIdle();
    ASSERT_TRUE(isInOpenSet(viewer)) << "an open viewer stays";

    QPointer<QWidget> window = windowOf(*viewer).window;
    onGui([&] { return window->close(); });
    EXPECT_TRUE(HostRuntime::loop().runUntil([&] { return onGui([&] { return window.isNull(); }); }, 5000ms))
        << "closed with nothing holding it, it ended with its window";
    EXPECT_TRUE(Viewer::openViewers().empty());
}
