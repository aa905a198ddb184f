// The pan tool's course through its gestures, played as synthetic events on
// a host loop of the test's own under a manual clock: when it wakes, glides,
// and finishes. The tools of a fresh scene.

#include <GLCanvas>
#include <KeyEvent>
#include <MouseEvent>
#include <PanZoomTool>
#include <RectNode>
#include <Scene>
#include <ZoomWheelTool>

#include "GLServices/HostRunLoop.h"
#include "GLServices/ManualClock.h"

#include <gtest/gtest.h>

using namespace VOR2;

namespace {

struct PanGestures : ::testing::Test {
    GLServices::HostRunLoop loop;
    GLServices::ManualClock clock{loop};
    GLOX::Holder<Scene> scene = Scene::createScene();
    GLCanvas canvas;
    GLOX::Holder<PanZoomTool> tool{new PanZoomTool(scene.get())};

    void SetUp() override
    {
        scene->addNode(RectNode(GLOX::GLRect<double>(0, 0, 500, 500)));
        canvas.setScene(scene.get());
        canvas.setInitialSceneOriginAndScale({100, 100}, 2.0);
        clock.advance(1000);
    }

    // Offers a mouse event at widget pixel (x, y); answers whether the tool
    // consumed it.
    bool mouse(EventType type, double x, double y, Qt::MouseButton button = Qt::NoButton)
    {
        MouseEvent e(type, &canvas, {x, y}, {x, y}, {x, y}, 0, button, button, {});
        e.accept(*tool);
        return e.isConsumed();
    }
    bool press(double x, double y, Qt::MouseButton b) { return mouse(EventType::MousePress, x, y, b); }
    bool release(double x, double y, Qt::MouseButton b) { return mouse(EventType::MouseRelease, x, y, b); }
    // A drag of 100 pixels right in moves 10 ms apart, from (x, y).
    void dragRight(double x, double y)
    {
        for (int i = 1; i <= 10; ++i) {
            clock.advance(10);
            mouse(EventType::MouseMove, x + 10 * i, y);
        }
    }
    bool key(EventType type, Qt::KeyboardModifiers modifiers = {})
    {
        KeyEvent e(type, &canvas, Qt::Key_Space, modifiers, " ", false, {});
        e.accept(*tool);
        return e.isConsumed();
    }
};

} // namespace

TEST_F(PanGestures, AMiddleClickWithoutAMoveWakesTheToolUntilTheRelease)
{
    EXPECT_TRUE(tool->isDone()) << "a new tool sleeps";
    EXPECT_TRUE(press(50, 50, Qt::MiddleButton));
    EXPECT_FALSE(tool->isDone());
    EXPECT_TRUE(tool->isPanning());
    EXPECT_EQ(tool->overrideCursor(), GLOX::Cursor(Qt::ClosedHandCursor));
    EXPECT_TRUE(release(50, 50, Qt::MiddleButton));
    EXPECT_TRUE(tool->isDone());
    EXPECT_FALSE(tool->momentum().isNotifying());
    EXPECT_EQ(tool->overrideCursor(), GLOX::Cursor(Qt::OpenHandCursor));
}

TEST_F(PanGestures, AClickDuringTheGlideStopsItAndEndsTheTool)
{
    press(50, 50, Qt::MiddleButton);
    dragRight(50, 50);
    release(150, 50, Qt::MiddleButton);
    EXPECT_TRUE(tool->willFinishAfterMomentum());
    clock.advance(30);
    EXPECT_FALSE(press(150, 50, Qt::LeftButton)) << "the click goes on to the tools below";
    EXPECT_FALSE(tool->momentum().isNotifying());
    EXPECT_TRUE(tool->isDone());
    double const stopped = canvas.getSceneRectInView().x;
    clock.advance(300);
    EXPECT_EQ(canvas.getSceneRectInView().x, stopped);
}

TEST_F(PanGestures, ALeftPressPansOnlyWhileSpaceIsHeld)
{
    EXPECT_FALSE(press(50, 50, Qt::LeftButton));
    EXPECT_TRUE(tool->isDone());
    EXPECT_FALSE(tool->isPanning());

    EXPECT_TRUE(key(EventType::KeyPress));
    EXPECT_FALSE(tool->isDone());
    EXPECT_TRUE(press(50, 50, Qt::LeftButton));
    dragRight(50, 50);
    release(150, 50, Qt::LeftButton);
    EXPECT_FALSE(tool->isDone()) << "Space still held";
    EXPECT_TRUE(tool->momentum().isNotifying());
    clock.advance(1000);
    EXPECT_FALSE(tool->isDone()) << "the glide's end does not end a Space pan";

    double const scale = canvas.getScale();
    EXPECT_TRUE(key(EventType::KeyRelease));
    EXPECT_TRUE(tool->isDone());
    EXPECT_EQ(canvas.getScale(), scale) << "Space up after a drag does not zoom";
}

TEST_F(PanGestures, SpaceUpDuringAGlideStopsIt)
{
    key(EventType::KeyPress);
    press(50, 50, Qt::MiddleButton);
    dragRight(50, 50);
    release(150, 50, Qt::MiddleButton);
    EXPECT_TRUE(tool->momentum().isNotifying());
    key(EventType::KeyRelease);
    EXPECT_FALSE(tool->momentum().isNotifying());
    EXPECT_TRUE(tool->isDone());
}

TEST(SceneTools, AFreshSceneZoomsOnTheWheelAndMakesPanToolsByRole)
{
    GLOX::Holder<Scene> scene = Scene::createScene();
    Tool *wheel = scene->getToolByRole("ZoomWheelTool");
    ASSERT_NE(wheel, nullptr);
    EXPECT_NE(dynamic_cast<ZoomWheelTool *>(wheel), nullptr);
    EXPECT_FALSE(wheel->isDone());
    EXPECT_EQ(scene->getToolByRole("PanZoomTool"), nullptr) << "added on demand only";
    Tool *pan = scene->addToolByRole("PanZoomTool");
    EXPECT_NE(dynamic_cast<PanZoomTool *>(pan), nullptr);
}
