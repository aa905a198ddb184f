// Resize handles through the real input path: a rectangle with corner and
// side handles on a canvas at scale 2; dragging a handle resizes it by the
// dragged distance in scene units, the handles follow the new size, and
// the viewport shows each handle's resize cursor.

#include <GLCanvas>
#include <HostRuntime>
#include <RectNode>
#include <ResizeControls>
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

using P = GLOX::GLPoint<double>;
using R = GLOX::GLRect<double>;

// A 100 by 50 rectangle at scene (20, 30) with all eight handles, on a
// canvas of 400 by 300 at scale 2 looking at scene (0, 0): scene (x, y) is
// viewport (2x, 2y).
struct HandledRect : ::testing::Test {
    GLOX::Holder<Scene> scene = Scene::createScene();
    GLCanvas canvas;
    InputPlayback input{canvas};
    RectNode box{R(0, 0, 100, 50)};

    void SetUp() override
    {
        box.setPosition({20, 30});
        scene->addNode(box);
        ASSERT_TRUE(installResizeControls(box, true));
        canvas.setScene(scene.get());
        ASSERT_TRUE(input.show(400, 300));
        canvas.showScenePointAtViewPointAtScale({0, 0}, {0, 0}, 2.0);
        ASSERT_TRUE(HostRuntime::loop().runUntil([&] { return canvas.getSceneServer().rendering().view.scale == 2.0; },
                                                 5000ms));
    }
    void TearDown() override { input.hide(); }

    static QPointF view(P scene) { return QPointF(2 * scene.x, 2 * scene.y); }
    void dragBy(P from, P by)
    {
        P to{from.x + by.x, from.y + by.y};
        input.move(view(from));
        input.press(view(from));
        input.move(view({from.x + by.x / 2, from.y + by.y / 2}), Qt::LeftButton);
        input.move(view(to), Qt::LeftButton);
        input.release(view(to));
    }
    Qt::CursorShape shown() const { return input.viewportCursor(); }
    bool shows(Qt::CursorShape shape) { return input.waitForViewportCursor(shape); }
    // The scene position of the handle node with `tag` nearest `at`.
    P handleNear(char const *tag, P at) const
    {
        P best{1e9, 1e9};
        for (Node const &h : box.getChildrenWithTag(tag)) {
            P p = h.getScenePosition();
            if (std::hypot(p.x - at.x, p.y - at.y) < std::hypot(best.x - at.x, best.y - at.y)) best = p;
        }
        return best;
    }
};

} // namespace

TEST_F(HandledRect, DraggingACornerAndASideResizesByTheDraggedDistanceAndTheHandlesFollow)
{
    ASSERT_EQ(box.getChildrenWithTag("CornerResizeHandle").size(), 4);
    ASSERT_EQ(box.getChildrenWithTag("SideResizeHandle").size(), 4);
    dragBy({120, 80}, {15, 10}); // the bottom right corner
    EXPECT_EQ(box.getRect(), R(0, 0, 115, 60));
    EXPECT_EQ(box.getPosition(), P(20, 30));
    EXPECT_EQ(handleNear("CornerResizeHandle", {135, 90}), P(135, 90)) << "the corner handle moved with the corner";
    EXPECT_EQ(handleNear("SideResizeHandle", {135, 60}), P(135, 60)) << "the right side's handle stays centred";

    dragBy({20, 60}, {-10, 0}); // the left side, now at half of 60
    EXPECT_EQ(box.getRect(), R(0, 0, 125, 60));
    EXPECT_EQ(box.getPosition(), P(10, 30)) << "the right edge stays at 135";
}

TEST_F(HandledRect, EachHandleShowsItsResizeCursor)
{
    struct {
        P at;
        Qt::CursorShape cursor;
    } const handles[] = {
        {{20, 30}, Qt::SizeFDiagCursor},  {{120, 30}, Qt::SizeBDiagCursor}, {{120, 80}, Qt::SizeFDiagCursor},
        {{20, 80}, Qt::SizeBDiagCursor},  {{20, 55}, Qt::SizeHorCursor},    {{120, 55}, Qt::SizeHorCursor},
        {{70, 30}, Qt::SizeVerCursor},    {{70, 80}, Qt::SizeVerCursor},
    };
    for (auto const &h : handles) {
        input.move(view(h.at));
        EXPECT_TRUE(shows(h.cursor)) << "over the handle at " << h.at.x << ", " << h.at.y;
        input.move(view({70, 55}));
        EXPECT_TRUE(shows(Qt::ArrowCursor)) << "over the rectangle itself";
    }
}
