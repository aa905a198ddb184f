// The cursor a pointer shows: the node's own or its nearest ancestor's, the
// cursor change tool of a fresh scene keeping the canvas on it, the tools'
// override winning, and the canvas telling its widget of real changes only.

#include <CursorChangeTool>
#include <GLCanvas>
#include <RectNode>
#include <Scene>
#include <WidgetEvent>

#include "GLUV/Listener.h"
#include "support/RecordingTool.h"
#include "tools/NodeCursorLookup.h"
#include "widget/GLCanvasEmitters.h"

#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;

namespace {

GLOX::Cursor const HAND(Qt::PointingHandCursor);
GLOX::Cursor const CROSS(Qt::CrossCursor);
GLOX::Cursor const CLOSED_HAND(Qt::ClosedHandCursor);

RectNode rect(double x, double y, double w, double h) { return RectNode(GLOX::GLRect<double>(x, y, w, h)); }

// A canvas at scale 1 showing scene (0, 0) at its corner, so viewport and
// scene positions agree. The scene holds a node with a hand cursor at
// (0, 0, 100, 100), its child at (10, 10, 50, 50) without a cursor, and that
// child's child at (20, 20, 10, 10), also without one; a lone node at
// (200, 0, 50, 50) has no cursor anywhere above it.
struct CursorScene : ::testing::Test, GLUV::Listener {
    GLOX::Holder<Scene> scene = Scene::createScene();
    GLCanvas canvas;
    RectNode grandparent = rect(0, 0, 100, 100);
    RectNode parent = rect(10, 10, 50, 50);
    RectNode child = rect(20, 20, 10, 10);
    RectNode lone = rect(200, 0, 50, 50);
    std::vector<GLOX::Cursor> sentToWidget;

    void SetUp() override
    {
        canvas.setInitialSceneOriginAndScale({0, 0}, 1.0);
        scene->addNode(grandparent);
        parent.setParent(grandparent);
        child.setParent(parent);
        scene->addNode(lone);
        grandparent.setCursor(HAND);
        canvas.setScene(scene.get());
        canvas.getEmitters().toolCursorChanged.connect(this,
                                                       [this](GLOX::Cursor c) { sentToWidget.push_back(c); });
        sentToWidget.clear();
    }
    void TearDown() override { disconnectAll(); }

    void moveTo(double x, double y)
    {
        MouseEvent move(EventType::MouseMove, &canvas, {x, y}, {x, y}, {x, y}, 0, Qt::NoButton, {}, {});
        scene->handleMouseMoveEvent(move);
    }
    void leave()
    {
        WidgetEvent event(EventType::LeaveCanvas, GLOX::GLWidgetEvent2(&canvas));
        scene->handleLeaveCanvasEvent(event);
    }
};

} // namespace

TEST(NodeCursorLookup, TakesTheNodesOwnCursorElseTheNearestAncestorsElseNone)
{
    RectNode top = rect(0, 0, 10, 10), middle = rect(0, 0, 5, 5), bottom = rect(0, 0, 2, 2);
    middle.setParent(top);
    bottom.setParent(middle);
    EXPECT_FALSE(cursorShownOver(bottom)) << "no cursor anywhere";
    EXPECT_FALSE(cursorShownOver(Node())) << "an empty handle shows none";

    top.setCursor(HAND);
    EXPECT_EQ(cursorShownOver(bottom), HAND) << "the grandparent's";
    middle.setCursor(CROSS);
    EXPECT_EQ(cursorShownOver(bottom), CROSS) << "the nearest ancestor wins";
    bottom.setCursor(CLOSED_HAND);
    EXPECT_EQ(cursorShownOver(bottom), CLOSED_HAND) << "the node's own wins";
    EXPECT_EQ(cursorShownOver(top), HAND) << "never a descendant's";
}

TEST_F(CursorScene, AFreshSceneStacksTheCursorChangeTool)
{
    Tool *tool = scene->getToolByRole("CursorChangeTool");
    ASSERT_NE(tool, nullptr);
    EXPECT_NE(dynamic_cast<CursorChangeTool *>(tool), nullptr);
    EXPECT_FALSE(tool->isDone());
}

TEST_F(CursorScene, TheCanvasFollowsTheNodeUnderThePointer)
{
    moveTo(5, 5);
    EXPECT_EQ(canvas.getCursor(), HAND) << "over the node itself";
    moveTo(25, 25);
    EXPECT_EQ(canvas.getCursor(), HAND) << "over a grandchild without a cursor";
    moveTo(220, 20);
    EXPECT_FALSE(canvas.hasCursor()) << "over a node with no cursor in its line";
    moveTo(25, 25);
    child.setCursor(CROSS);
    moveTo(26, 26);
    EXPECT_EQ(canvas.getCursor(), CROSS) << "the topmost node's own cursor";
    moveTo(150, 150);
    EXPECT_FALSE(canvas.hasCursor()) << "empty space unsets it";
    EXPECT_EQ(sentToWidget, (std::vector<GLOX::Cursor>{HAND, GLOX::Cursor(), HAND, CROSS, GLOX::Cursor()}))
        << "the widget hears of changes only, not of every move";
}

TEST_F(CursorScene, MovesStillReachTheToolsBelow)
{
    GLOX::Holder<RecordingTool> below(new RecordingTool("below"));
    scene->removeToolByRole("CursorChangeTool");
    scene->addTool(below.get());
    scene->addToolByRole("CursorChangeTool");
    moveTo(5, 5);
    EXPECT_EQ(canvas.getCursor(), HAND);
    EXPECT_EQ(below->typesSeen(), std::vector<EventType>{EventType::MouseMove});
}

TEST_F(CursorScene, AToolsOverrideWinsAndTheNodesCursorReturnsAfterIt)
{
    moveTo(5, 5);
    GLOX::Holder<RecordingTool> panning(new RecordingTool("panning"));
    panning->cursor = CLOSED_HAND;
    scene->addTool(panning.get());
    moveTo(150, 150); // the override is set by this move; the next one sees it
    moveTo(160, 160);
    EXPECT_EQ(sentToWidget.back(), CLOSED_HAND) << "the widget shows the override";
    leave();
    EXPECT_EQ(sentToWidget.back(), CLOSED_HAND) << "leaving under an override keeps it";

    scene->removeTool(panning.get());
    moveTo(5, 5); // no override after this move's dispatch
    moveTo(6, 6);
    EXPECT_EQ(canvas.getCursor(), HAND);
    EXPECT_EQ(sentToWidget.back(), HAND) << "the canvas's own cursor shows again";
    leave();
    EXPECT_FALSE(canvas.hasCursor()) << "leaving without an override unsets it";
    EXPECT_EQ(sentToWidget.back(), GLOX::Cursor());
}

TEST_F(CursorScene, EventsWithoutACanvasChangeNothing)
{
    canvas.setCursor(CROSS);
    MouseEvent move(EventType::MouseMove, nullptr, {5, 5}, {5, 5}, {5, 5}, 0, Qt::NoButton, {}, {});
    scene->handleMouseMoveEvent(move);
    EXPECT_EQ(canvas.getCursor(), CROSS);
}
