// Layout on real nodes: a parent whose bounds change moves and stretches
// its anchored children as their flags say, measures the first layout from
// nothing, leaves unconstrained children (and their transforms) alone, and
// walks no children when none is constrained.

#include <CompositeNode>
#include <Error>
#include <GlobalViewerInfo>
#include <LayoutConstraints>
#include <LineNode>

#include "nodes/RectNodeImpl.h"
#include "support/SceneFixture.h"

#include <QGraphicsItem>
#include <cmath>

using namespace VOR2;
using namespace VOR2::test;

namespace {
using C = LayoutConstraints;
using R = GLOX::GLRect<double>;
using Layout = SceneTest;

// The child's rectangle in its parent's coordinates.
R placeOf(Node const &n) { return n.getImpl()->getLayoutBounds(); }

RectNode childOf(Node const &parent, R const &r, GLOX::GLPoint<double> pos)
{
    RectNode n(r);
    n.setParent(parent);
    n.setPosition(pos);
    return n;
}
} // namespace

TEST_F(Layout, AResizedParentMovesAndStretchesItsAnchoredChildren)
{
    RectNode frame = added(rect(0, 0, 100, 50));
    // Children join unconstrained, so the first layout only records the
    // frame; anchors set now count from its present size.
    RectNode right = childOf(frame, {0, 0, 20, 10}, {70, 5});
    RectNode stretch = childOf(frame, {0, 0, 30, 10}, {10, 20});
    RectNode centred = childOf(frame, {0, 0, 10, 10}, {45, 30});
    RectNode bottom = childOf(frame, {0, 0, 10, 10}, {0, 35});
    RectNode loose = childOf(frame, {0, 0, 10, 10}, {5, 5});
    loose.rotateDegrees(30);
    GLOX::Transform const looseTransform = loose.getTransform();
    EXPECT_EQ(frame.getImpl()->lastRect, R(0, 0, 100, 50));

    right.setLayoutConstraintFlag(C::Right, true);
    stretch.setLayoutConstraintFlag(C::Left, true);
    stretch.setLayoutConstraintFlag(C::FlexibleWidth, true);
    centred.setLayoutConstraintFlag(C::Left, true);
    centred.setLayoutConstraintFlag(C::Right, true);
    bottom.setLayoutConstraintFlag(C::Bottom, true);
    bottom.setLayoutConstraintFlag(C::FlexibleHeight, true);
    EXPECT_EQ(placeOf(right), R(70, 5, 20, 10)) << "a flag alone moves nothing";

    frame.setRect({0, 0, 110, 70});
    EXPECT_EQ(placeOf(right), R(80, 5, 20, 10));
    EXPECT_EQ(placeOf(stretch), R(10, 20, 35, 10));
    EXPECT_EQ(stretch.getRect(), R(0, 0, 30, 10)) << "stretched by its transform, not its geometry";
    EXPECT_EQ(placeOf(centred), R(50, 30, 10, 10)) << "Left and Right: half of 10";
    EXPECT_EQ(placeOf(bottom), R(0, 45, 10, 20));
    EXPECT_EQ(loose.getTransform().toQTransform(), looseTransform.toQTransform()) << "no flags: not laid out";
    EXPECT_EQ(frame.getImpl()->lastRect, R(0, 0, 110, 70));

    // Back again; and a child's scene place follows.
    frame.setRect({0, 0, 100, 50});
    EXPECT_EQ(placeOf(right), R(70, 5, 20, 10));
    EXPECT_EQ(placeOf(stretch), R(10, 20, 30, 10));
    frame.setPosition({1000, 0});
    EXPECT_EQ(right.mapLocalToScene(GLOX::GLPoint<double>(0, 0)), (GLOX::GLPoint<double>(1070, 5)));
}

TEST_F(Layout, FlagsAreBitsThatReportNothing)
{
    RectNode frame = added(rect(0, 0, 100, 50));
    RectNode child = childOf(frame, {0, 0, 10, 10}, {0, 0});
    runHostLoopTurn();
    scene->getPrivate()->takePendingChanges();
    child.setLayoutConstraintFlag(C::Top, false);
    EXPECT_EQ(child.getImpl()->constraints, 0u) << "clearing a clear flag changes nothing";
    child.setLayoutConstraintFlag(C::None, true);
    EXPECT_EQ(child.getImpl()->constraints, 1u) << "None is bit 0";
    EXPECT_TRUE(child.getLayoutConstraintFlag(C::None));
    child.setLayoutConstraintFlag(C::FlexibleHeight, true);
    EXPECT_EQ(child.getImpl()->constraints, 1u + 64u);
    child.setLayoutConstraintFlag(C(40), true);
    EXPECT_EQ(child.getImpl()->constraints, 1u + 64u) << "not a constraint: ignored";
    EXPECT_FALSE(child.getLayoutConstraintFlag(C::Left));
    EXPECT_EQ(pendingKind(*scene, child), -1) << "a flag reports no change";
    child.setLayoutConstraintFlag(C::FlexibleHeight, false);

    // None: laid out, so the transform is replaced, but nothing moves.
    child.rotateDegrees(45);
    frame.setRect({0, 0, 200, 80});
    QTransform const t = child.getTransform().toQTransform();
    EXPECT_EQ(t.m12(), 0.0);
    EXPECT_EQ(t.m21(), 0.0) << "the rotation is gone";
    EXPECT_NEAR(placeOf(child).width, 10 * std::sqrt(2.0), 1e-9) << "the rotated box's size, kept";

    EXPECT_THROW(Node().setLayoutConstraintFlag(C::Left, true), Error);
}

TEST_F(Layout, TheFirstLayoutMeasuresFromNothing)
{
    // Deliberate: an anchored child that joins a parent which never laid
    // out moves by the parent's whole size.
    RectNode frame = added(rect(0, 0, 100, 50));
    RectNode child(R(0, 0, 10, 10));
    child.setPosition({5, 5});
    child.setLayoutConstraintFlag(C::Right, true);
    child.setLayoutConstraintFlag(C::Bottom, true);
    child.setParent(frame);
    EXPECT_EQ(placeOf(child), R(105, 55, 10, 10));
    EXPECT_EQ(frame.getImpl()->lastRect, R(0, 0, 100, 50));

    // A parent of zero size does not lay out, and remembers nothing.
    RectNode empty = added(rect(0, 0, 0, 0));
    RectNode second(R(0, 0, 10, 10));
    second.setLayoutConstraintFlag(C::Right, true);
    second.setParent(empty);
    EXPECT_EQ(placeOf(second), R(0, 0, 10, 10));
    EXPECT_EQ(empty.getImpl()->lastRect, R());
}

TEST_F(Layout, AChildWithoutWidthStretchedKeepsUsableNumbers)
{
    RectNode frame = added(rect(0, 0, 100, 50));
    LineNode line({0, 0}, {0, 40});
    line.setParent(frame);
    line.setPosition({50, 0});
    line.setLayoutConstraintFlag(C::FlexibleWidth, true);
    line.setLayoutConstraintFlag(C::FlexibleHeight, true);
    frame.setRect({0, 0, 120, 60});
    QTransform const t = line.getTransform().toQTransform();
    EXPECT_EQ(t.m11(), 1.0) << "no width to scale";
    EXPECT_DOUBLE_EQ(t.m22(), 1.25) << "50 high from 40";
    QRectF const sceneRect = line.getImpl()->getGraphicsItem()->sceneBoundingRect();
    EXPECT_TRUE(std::isfinite(sceneRect.width()) && std::isfinite(sceneRect.x()));
    GlobalViewerInfo::instance()->setCurrentView(this, 1.0);
    EXPECT_TRUE(scene->getNodesAtScenePos({50, 30}).contains(line)) << "the index still finds it";
    GlobalViewerInfo::instance()->clearCurrentView();
    EXPECT_EQ(scene->getBounds(), R(0, 0, 120, 60));
}

namespace {
// A frame that counts how often its layout asks for its children, and
// children that count how often they are measured.
struct CountingFrameImpl : RectNodeImpl {
    using RectNodeImpl::RectNodeImpl;
    int walks = 0, childQueries = 0;
    QList<LayoutItem *> getLayoutItems() override
    {
        ++walks;
        return RectNodeImpl::getLayoutItems();
    }
    bool hasLayoutItems() override
    {
        ++childQueries;
        return RectNodeImpl::hasLayoutItems();
    }
};
struct CountingChildImpl : RectNodeImpl {
    using RectNodeImpl::RectNodeImpl;
    int measured = 0;
    GLOX::GLRect<double> getLayoutBounds() override
    {
        ++measured;
        return RectNodeImpl::getLayoutBounds();
    }
};
} // namespace

TEST_F(Layout, OnlyConstrainedChildrenAreLaidOutAndNoneCostsNoWalk)
{
    auto *frameImpl = new CountingFrameImpl(QRectF(0, 0, 100, 100));
    Node frame = added(Node(frameImpl));
    std::vector<CountingChildImpl *> children;
    for (int i = 0; i < 200; ++i) {
        children.push_back(new CountingChildImpl(QRectF(0, 0, 1, 1)));
        Node(children.back()).setParent(frame);
    }
    EXPECT_EQ(frameImpl->childQueries, 0) << "a child joining is a child: Qt is not asked (it would sort them)";
    RectNode(frameImpl).setRect({0, 0, 110, 100});
    EXPECT_EQ(frameImpl->walks, 0) << "200 children joined and the frame changed: no walk";

    Node anchored(children[7]);
    anchored.setLayoutConstraintFlag(C::Right, true);
    RectNode(frameImpl).setRect({0, 0, 120, 100});
    EXPECT_EQ(frameImpl->walks, 1);
    for (size_t i = 0; i < children.size(); ++i)
        EXPECT_EQ(children[i]->measured > 0, i == 7) << "child " << i;
    EXPECT_EQ(placeOf(anchored).x, 10.0);

    // Once the constrained child lets go, one more walk finds none; the
    // next change walks nothing.
    anchored.setLayoutConstraintFlag(C::Right, false);
    RectNode(frameImpl).setRect({0, 0, 130, 100});
    RectNode(frameImpl).setRect({0, 0, 140, 100});
    EXPECT_EQ(frameImpl->walks, 2);
    EXPECT_EQ(frameImpl->lastRect, R(0, 0, 140, 100));
}

TEST_F(Layout, AChildThatGrowsItsCompositeParentIsLaidOutOnce)
{
    // A composite's bounds are its children's: laying a child out changes
    // the rectangle the layout is measured against. That must end, and the
    // next layout must not move the child again for its own move.
    CompositeNode group = added(CompositeNode());
    RectNode anchored = childOf(group, {0, 0, 10, 10}, {20, 0});
    RectNode other = childOf(group, {0, 0, 10, 10}, {0, 0});
    anchored.setLayoutConstraintFlag(C::Right, true);
    other.setPosition({-10, 0}); // the group grows by 10 to the left
    EXPECT_EQ(placeOf(anchored).x, 30.0);
    EXPECT_EQ(group.getImpl()->lastRect, R(-10, 0, 50, 10));
    other.setStroke(Stroke(GLOX::Color(), 0.0)); // a report with no change of size
    EXPECT_EQ(placeOf(anchored).x, 30.0);
}
