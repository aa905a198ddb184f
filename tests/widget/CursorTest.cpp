// The cursor through the real input path: pointer moves played into a shown
// canvas reach a fresh scene's cursor change tool on the host thread, and
// the viewport the user points at shows the cursor of the node under the
// pointer, or the default over empty space.

#include <GLCanvas>
#include <HostRuntime>
#include <RectNode>
#include <Scene>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"
#include "support/InputPlayback.h"
#include "widget/SceneServer.h"

#include <QAbstractScrollArea>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using namespace std::chrono_literals;

namespace {

// Two nodes on a canvas of 200 by 200 at scale 2 looking at scene (0, 0):
// a node with a hand cursor at scene (0, 0, 40, 40), with a child of its
// own at (10, 10, 10, 10) without one, and a node with a cross cursor at
// scene (50, 0, 40, 40).
struct PointedCanvas : ::testing::Test {
    GLOX::Holder<Scene> scene = Scene::createScene();
    GLCanvas canvas;
    InputPlayback input{canvas};

    void SetUp() override
    {
        RectNode hand(GLOX::GLRect<double>(0, 0, 40, 40));
        hand.setCursor(GLOX::Cursor(Qt::PointingHandCursor));
        scene->addNode(hand);
        RectNode child(GLOX::GLRect<double>(10, 10, 10, 10));
        child.setParent(hand);
        RectNode cross(GLOX::GLRect<double>(50, 0, 40, 40));
        cross.setCursor(GLOX::Cursor(Qt::CrossCursor));
        scene->addNode(cross);
        canvas.setScene(scene.get());
        ASSERT_TRUE(input.show(200, 200));
        canvas.showScenePointAtViewPointAtScale({0, 0}, {0, 0}, 2.0);
        ASSERT_TRUE(HostRuntime::loop().runUntil([&] { return canvas.getSceneServer().rendering().view.scale == 2.0; },
                                                 5000ms));
    }
    void TearDown() override { input.hide(); }

    Qt::CursorShape shown() const { return input.viewportCursor(); }
    bool shows(Qt::CursorShape shape) { return input.waitForViewportCursor(shape); }
};

} // namespace

TEST_F(PointedCanvas, ThePointerOverANodeShowsItsCursorAndEmptySpaceTheDefault)
{
    ASSERT_EQ(shown(), Qt::ArrowCursor) << "the default before any move";
    input.move({20, 20}); // scene (10, 10)
    EXPECT_TRUE(shows(Qt::PointingHandCursor)) << "the node's cursor";
    input.move({150, 20}); // scene (75, 10)
    EXPECT_TRUE(shows(Qt::CrossCursor)) << "another node's";
    input.move({30, 30}); // scene (15, 15): the child without a cursor
    EXPECT_TRUE(shows(Qt::PointingHandCursor)) << "the parent's, over its child";
    input.move({100, 150}); // scene (50, 75): nothing there
    EXPECT_TRUE(shows(Qt::ArrowCursor)) << "the default over empty space";
    input.move({150, 20});
    EXPECT_TRUE(shows(Qt::CrossCursor));
    input.leave();
    EXPECT_TRUE(shows(Qt::ArrowCursor)) << "the default once the pointer has left";
}
