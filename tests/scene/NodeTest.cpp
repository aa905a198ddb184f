// A node's own state: type names, flags, cursors, behaviour, cache types
// and the geometry it gives Qt.

#include <Behavior>
#include <GlobalViewerInfo>

#include "nodes/RectNodeImpl.h"
#include "scene/NodeUpdateHandler.h"
#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

using NodeState = SceneTest;

TEST_F(NodeState, TypeNamesOfEmptyAndTypedHandles)
{
    Node empty;
    EXPECT_TRUE(empty.isa("VOR2.Node"));
    EXPECT_FALSE(empty.isa("VOR2.RectNode"));
    EXPECT_FALSE(empty.isa(nullptr));
    EXPECT_STREQ(empty.getFullyQualifiedTcosTypeName(), "VOR2.Node");

    RectNode r = rect(0, 0);
    Node n = r;
    EXPECT_TRUE(n.isa("VOR2.RectNode"));
    EXPECT_TRUE(n.isa(std::string("VOR2.Node").c_str()));
    EXPECT_STREQ(n.getFullyQualifiedTcosTypeName(), "VOR2.RectNode");
    EXPECT_EQ(RectNode(n.getImpl()), r);
    EXPECT_FALSE(RectNode(static_cast<NodeImpl *>(nullptr)).isValid());
}

TEST_F(NodeState, QtsRectangleFollowsTheViewerScaleAndIsInvalidWhenEmpty)
{
    RectNode empty; // zero rectangle
    empty.setStroke(Stroke::NoStroke());
    EXPECT_EQ(empty.getImpl()->getGraphicsItem()->boundingRect(), QRectF(-1.0, -1.0, -1.0, -1.0));

    RectNode n = rect(0, 0, 10, 10); // hairline: one view pixel
    GlobalViewerInfo::instance()->setCurrentView(reinterpret_cast<void const *>(1), 4.0);
    EXPECT_EQ(n.getImpl()->getGraphicsItem()->boundingRect(), QRectF(-0.125, -0.125, 10.25, 10.25));
    GlobalViewerInfo::instance()->setCurrentView(reinterpret_cast<void const *>(2), 0.5);
    EXPECT_EQ(n.getImpl()->getGraphicsItem()->boundingRect(), QRectF(-1, -1, 12, 12));
    GlobalViewerInfo::instance()->clearCurrentView();
    EXPECT_EQ(n.getBounds().boundingRect(), (GLOX::GLRect<double>(0, 0, 10, 10))) << "the bounds leave the stroke out";
}

namespace {
struct RingHitTest : Node::CustomHitTestFunctor {
    bool contains(Node, GLOX::GLPoint<double> const &p, double) override
    {
        double d2 = p.x * p.x + p.y * p.y;
        return d2 >= 16 && d2 <= 25;
    }
    bool intersects(Node, GLOX::GLRect<double> const &, double) override { return false; }
    bool intersects(Node, Bounds const &, double) override { return false; }
};
} // namespace

TEST_F(NodeState, CustomHitTestReplacesTheOwn)
{
    RectNode n = added(rect(-5, -5, 10, 10));
    EXPECT_EQ(scene->getNodeAt({0, 0}), n);
    n.setCustomHitTestFunctor(new RingHitTest);
    EXPECT_FALSE(n.contains({0, 0}));
    EXPECT_TRUE(n.contains({4.5, 0}));
    EXPECT_FALSE(scene->getNodeAt({0, 0}).isValid());
    EXPECT_EQ(scene->getNodeAt({0, 4.5}), n);
    n.setCustomHitTestFunctor(nullptr);
    EXPECT_TRUE(n.contains({0, 0}));
}

TEST_F(NodeState, FlagsReachQtAndAnInvalidCursorRemovesTheEntry)
{
    RectNode n = rect(0, 0);
    EXPECT_EQ(int(n.getImpl()->getGraphicsItem()->flags()), 0);
    n.setMovable(true);
    n.setSelectable(true);
    n.setStacksBehindParent(true);
    n.setIgnoresTransformations(true);
    EXPECT_EQ(int(n.getImpl()->getGraphicsItem()->flags()), 1 | 2 | 32 | 256);

    EXPECT_FALSE(n.hasCursor());
    n.setCursor(GLOX::Cursor(Qt::PointingHandCursor));
    EXPECT_EQ(n.getCursor().shape(), int(Qt::PointingHandCursor));
    n.setCursor(GLOX::Cursor());
    EXPECT_FALSE(n.hasCursor());
}

TEST_F(NodeState, ABehaviourBelongsToOneNodeAtATime)
{
    RectNode a = rect(0, 0), b = rect(0, 0), c = rect(0, 0);
    GLOX::Holder<Behavior> behavior(new Behavior);
    a.setBehavior(behavior.get());
    EXPECT_EQ(behavior->getNode(), a);
    b.setBehavior(behavior.get());
    EXPECT_EQ(a.getBehavior(), nullptr);
    EXPECT_EQ(behavior->getNode(), b);
    EXPECT_EQ(behavior->refCount(), 2u);
    b.clearBehavior();
    EXPECT_FALSE(behavior->getNode().isValid());
    EXPECT_EQ(behavior->refCount(), 1u);

    // Moving with no other holder must not free it on the way.
    a.setBehavior(new Behavior);
    c.setBehavior(a.getBehavior());
    ASSERT_NE(c.getBehavior(), nullptr);
    EXPECT_EQ(c.getBehavior()->getNode(), c);
    EXPECT_EQ(c.getBehavior()->refCount(), 1u);
}

namespace {
// A node that takes its subtree's reports when it caches the whole tree.
class CachingHandlerNode : public RectNodeImpl, public NodeUpdateHandler {
public:
    NodeUpdateHandler *getOwnUpdateHandler() override { return this; }
    void nodeRepaintRequired(NodeImpl *n) override { reports.append(n); }
    void nodeGeometryChanged(NodeImpl *n) override { reports.append(n); }
    void nodeMoved(NodeImpl *n) override { reports.append(n); }
    GLOX::GList<NodeImpl *> reports;
};
} // namespace

TEST_F(NodeState, ChildrenTreeCachingRoutesTheSubtreesReports)
{
    auto *impl = new CachingHandlerNode;
    Node composite = added(Node(impl));
    RectNode child = rect(0, 0), grandchild = rect(0, 0);
    child.setParent(composite);
    grandchild.setParent(child);

    composite.setCacheType(CacheType::ChildrenTree);
    scene->getPrivate()->takePendingChanges();
    grandchild.setPosition({1, 1});
    EXPECT_EQ(impl->reports, GLOX::GList<NodeImpl *>{grandchild.getImpl()});
    EXPECT_EQ(pendingKind(*scene, grandchild), -1) << "the scene does not see it";
    EXPECT_TRUE(grandchild.getImpl()->isUpdateHandlerOverridden());

    // A node joining the cached tree takes its handler; one leaving drops it.
    RectNode late = rect(0, 0);
    late.setParent(child);
    EXPECT_EQ(late.getImpl()->getUpdateHandler(), impl);
    late.unparent();
    EXPECT_EQ(late.getImpl()->getUpdateHandler(), nullptr);

    composite.setCacheType(CacheType::None);
    int reportsBefore = impl->reports.size();
    grandchild.setPosition({2, 2});
    EXPECT_EQ(pendingKind(*scene, grandchild), int(PendingChangeKind::Geometry));
    EXPECT_EQ(impl->reports.size(), reportsBefore);
}

namespace {
// A hit test whose hit area query changes the node it measures.
struct ReshapingHitTest : Node::CustomHitTestFunctor {
    bool contains(Node, GLOX::GLPoint<double> const &, double) override { return true; }
    bool intersects(Node, GLOX::GLRect<double> const &, double) override { return true; }
    bool intersects(Node, Bounds const &, double) override { return true; }
    Bounds getHitBounds(Node node, double) override
    {
        RectNode(node.getImpl()).setRect({0, 0, 30, 30});
        return node.getBounds();
    }
};
} // namespace

TEST_F(NodeState, CachesSurviveAComputationThatReportsAChange)
{
    RectNode n = rect(0, 0, 10, 10);
    n.setCustomHitTestFunctor(new ReshapingHitTest);
    QRectF r = n.getImpl()->getGraphicsItem()->boundingRect();
    // The outline (hairline, old rectangle) was taken before the hit area
    // query reshaped the node; the union reaches the new 30 by 30 rectangle.
    EXPECT_EQ(r, QRectF(-0.5, -0.5, 30.5, 30.5));
}

TEST_F(NodeState, ReparentingLeavesTransformsExactlyAsSet)
{
    RectNode a = rect(0, 0), b = rect(0, 0), child = rect(0, 0);
    child.setTransform(QTransform().rotate(33.3).translate(0.1, 0.7));
    GLOX::Transform set = child.getTransform();
    for (int i = 0; i < 50; ++i) child.setParent(i % 2 ? a : b);
    EXPECT_EQ(child.getTransform(), set);
}
