// Resizing by handles on one thread: the drag arithmetic alone, then the
// behaviour on a scene's tool stack, fed through the scene's input. The
// handles themselves, through a real canvas, are in tests/widget.

#include <EllipseNode>
#include <MouseEvent>
#include <ResizeBehavior>
#include <ResizeControls>

#include "support/SceneFixture.h"
#include "tools/ResizeGeometry.h"

using namespace VOR2;
using namespace VOR2::test;

namespace {

using P = GLOX::GLPoint<double>;
using R = GLOX::GLRect<double>;
using H = HorizontalAlignment;
using V = VerticalAlignment;

// A 100 by 50 rectangle at (10, 20), pressed at (300, 300).
ResizeStart const START{{300, 300}, {0, 0, 100, 50}, {10, 20}};

R drag(H h, V v, P by, unsigned mode = ResizeFromEdges, ResizeStart start = START)
{
    return resizedRect(start, {h, v, {20, 20}}, {start.press.x + by.x, start.press.y + by.y}, mode);
}

MouseEvent mouse(EventType type, P p, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers mods = {})
{
    return MouseEvent(type, nullptr, p, p, p, 0, button, button, mods);
}

} // namespace

TEST(ResizeGeometry, DraggedEdgesFollowThePointerAndTheOppositeEdgesStay)
{
    EXPECT_EQ(drag(H::Right, V::Bottom, {10, 5}), R(10, 20, 110, 55));
    EXPECT_EQ(drag(H::Left, V::Top, {10, 5}), R(20, 25, 90, 45)) << "the far corner stays at (110, 70)";
    EXPECT_EQ(drag(H::Right, V::Center, {10, 30}), R(10, 20, 110, 50)) << "a side handle leaves the other axis";
    EXPECT_EQ(drag(H::Center, V::Top, {30, -10}), R(10, 10, 100, 60));
    // The minimum size stops a dragged edge; the far edge still stays.
    EXPECT_EQ(drag(H::Left, V::Top, {200, 0}), R(110 - 20.0, 20, 20, 50));
    EXPECT_EQ(drag(H::Right, V::Bottom, {-500, -500}), R(10, 20, 20, 20));
    // An axis not dragged keeps a size below the minimum as it is.
    EXPECT_EQ(drag(H::Right, V::Center, {0, 0}, ResizeFromEdges, {{0, 0}, {0, 0, 100, 5}, {0, 0}}), R(0, 0, 100, 5));
}

TEST(ResizeGeometry, AboutTheCentreBothEdgesMoveAndTheCentreStays)
{
    EXPECT_EQ(drag(H::Right, V::Center, {10, 0}, ResizeAboutCentre), R(0, 20, 120, 50));
    EXPECT_EQ(drag(H::Left, V::Center, {10, 0}, ResizeAboutCentre), R(20, 20, 80, 50));
    EXPECT_EQ(drag(H::Right, V::Bottom, {10, 5}, ResizeAboutCentre), R(0, 15, 120, 60));
}

TEST(ResizeGeometry, KeepingTheAspectFitsTheStartsShapeInsideTheRequest)
{
    // 200 by 50 asked of a 2:1 rectangle: the height limits the width.
    EXPECT_EQ(drag(H::Right, V::Bottom, {100, 0}, ResizePreserveAspect), R(10, 20, 100, 50));
    EXPECT_EQ(drag(H::Right, V::Bottom, {0, 50}, ResizePreserveAspect), R(10, 20, 100, 50));
    EXPECT_EQ(drag(H::Right, V::Bottom, {100, 50}, ResizePreserveAspect), R(10, 20, 200, 100));
    // A side handle shrinking one axis takes the other along, below the
    // minimum if need be: the minimum is not applied again.
    EXPECT_EQ(drag(H::Right, V::Center, {-80, 0}, ResizePreserveAspect), R(10, 20, 20, 10));
    // The top left handle keeps the far corner after the aspect step.
    EXPECT_EQ(drag(H::Left, V::Top, {-100, 0}, ResizePreserveAspect), R(10, 20, 100, 50));
    // A zero width has no aspect to keep.
    ResizeStart flat{{0, 0}, {0, 0, 0, 50}, {0, 0}};
    EXPECT_EQ(drag(H::Right, V::Bottom, {30, 10}, ResizePreserveAspect, flat), R(0, 0, 30, 60));
}

class ResizeBehaviorTest : public SceneTest {
protected:
    // A behaviour on the node itself: pressing the node drags its own edges.
    GLOX::Holder<ResizeBehavior> resizeItself(Node const &node, H h, V v)
    {
        GLOX::Holder<ResizeBehavior> b = ResizeBehavior::create(node, h, v);
        node.setBehavior(b.get());
        return b;
    }
    void dragBy(P from, P by, Qt::KeyboardModifiers mods = {})
    {
        MouseEvent press = mouse(EventType::MousePress, from, Qt::LeftButton, mods);
        scene->handleMousePressEvent(press);
        P to{from.x + by.x, from.y + by.y};
        MouseEvent move = mouse(EventType::MouseMove, to, Qt::NoButton, mods);
        scene->handleMouseMoveEvent(move);
        MouseEvent release = mouse(EventType::MouseRelease, to, Qt::LeftButton, mods);
        scene->handleMouseReleaseEvent(release);
    }
};

TEST_F(ResizeBehaviorTest, ComesFromTheScenesFactoryOnlyForANodeInAScene)
{
    RectNode loose = rect(0, 0);
    EXPECT_FALSE(ResizeBehavior::create(loose, H::Right, V::Bottom));
    RectNode placed = added(rect(0, 0));
    GLOX::Holder<ResizeBehavior> b = ResizeBehavior::create(placed, H::Right, V::Top);
    ASSERT_TRUE(b);
    EXPECT_EQ(b->getTargetNode(), placed);
    EXPECT_EQ(b->getHorizontalAlignment(), H::Right);
    EXPECT_EQ(b->getVerticalAlignment(), V::Top);
    EXPECT_EQ(b->getDefaultRole(), GLOX::StringID("ResizeBehavior"));
}

TEST_F(ResizeBehaviorTest, ADragResizesARectangleAndTheStackDropsTheBehaviourAfterIt)
{
    RectNode box = added(rect(0, 0, 100, 50));
    box.setPosition({10, 20});
    GLOX::Holder<ResizeBehavior> b = resizeItself(box, H::Right, V::Bottom);
    dragBy({60, 40}, {10, 5});
    EXPECT_EQ(box.getRect(), R(0, 0, 110, 55));
    EXPECT_EQ(box.getPosition(), P(10, 20));
    EXPECT_FALSE(scene->hasTool(b.get())) << "done after the release";
    // The node keeps it: a second drag, with Alt, about the centre.
    dragBy({60, 40}, {10, 0}, Qt::AltModifier);
    EXPECT_EQ(box.getRect(), R(0, 0, 130, 55));
    EXPECT_EQ(box.getPosition(), P(0, 20));
}

TEST_F(ResizeBehaviorTest, OnlyARectangleChangesAndAGoneTargetIsLeftAlone)
{
    EllipseNode round = added(EllipseNode(Ellipse(R(0, 0, 40, 40))));
    resizeItself(round, H::Right, V::Bottom);
    dragBy({20, 20}, {30, 30});
    EXPECT_EQ(round.getBoundingRect(), R(0, 0, 40, 40));

    // The handle outlives its target: the drag runs and changes nothing.
    RectNode handle = added(rect(200, 0, 10, 10));
    RectNode target = added(rect(0, 100, 50, 50));
    GLOX::Holder<ResizeBehavior> b = ResizeBehavior::create(target, H::Right, V::Bottom);
    handle.setBehavior(b.get());
    MouseEvent press = mouse(EventType::MousePress, {205, 5});
    scene->handleMousePressEvent(press);
    EXPECT_TRUE(press.isConsumed());
    target.remove();
    target = RectNode();
    MouseEvent move = mouse(EventType::MouseMove, {255, 55}, Qt::NoButton);
    scene->handleMouseMoveEvent(move);
    EXPECT_TRUE(move.isConsumed());
    EXPECT_EQ(handle.getRect(), R(200, 0, 10, 10));
}

TEST_F(ResizeBehaviorTest, HandlesAreInstalledWholeOnlyInASceneAndRemovedWithTheirBehaviours)
{
    RectNode loose = rect(0, 0, 100, 50);
    EXPECT_FALSE(installResizeControls(loose, true));
    EXPECT_TRUE(loose.getChildren().isEmpty()) << "no handle is left behind";

    RectNode box = added(rect(0, 0, 100, 50));
    ASSERT_TRUE(installCornerResizeControls(box, true));
    GLOX::GList<Node> corners = box.getChildrenWithTag("CornerResizeHandle");
    ASSERT_EQ(corners.size(), 4);
    for (Node const &h : corners) EXPECT_NE(h.getBehavior(), nullptr);
    // Two of four: the set is rebuilt; four: nothing changes.
    corners[1].remove();
    corners[3].remove();
    ASSERT_TRUE(installCornerResizeControls(box, false));
    GLOX::GList<Node> rebuilt = box.getChildrenWithTag("CornerResizeHandle");
    EXPECT_EQ(rebuilt.size(), 4);
    EXPECT_FALSE(rebuilt.contains(corners[0])) << "the survivors were replaced";
    EXPECT_TRUE(installCornerResizeControls(box, true));
    EXPECT_EQ(box.getChildrenWithTag("CornerResizeHandle"), rebuilt);

    ASSERT_TRUE(installSideResizeControls(box, true));
    EXPECT_EQ(box.getChildren().size(), 8);
    removeResizeControls(box);
    EXPECT_TRUE(box.getChildren().isEmpty());
    for (Node const &h : rebuilt) EXPECT_EQ(h.getScene(), nullptr);
}
