// How a scene records its nodes' changes for the views: the kind per node,
// how kinds combine, and one queued call per batch.

#include <ConstantLodScale>

#include "support/SceneFixture.h"

#include <vector>

using namespace VOR2;
using namespace VOR2::test;

namespace {
constexpr int NONE = -1;
constexpr int REPAINT = int(PendingChangeKind::Repaint);
constexpr int GEOMETRY = int(PendingChangeKind::Geometry);
constexpr int REMOVED = int(PendingChangeKind::Removed);

class ChangeRecording : public SceneTest {
protected:
    void SetUp() override
    {
        SceneTest::SetUp();
        QObject::connect(scene->getPrivate(), &QGraphicsScene::changed, [this] {
            ++changedSignals;
            deliveredSizes.push_back(scene->getPrivate()->changesBeingDelivered().size());
        });
        node = added(rect(0, 0));
        runHostLoopTurn();
        scene->getPrivate()->takePendingChanges();
        changedSignals = 0;
        deliveredSizes.clear();
    }
    void TearDown() override
    {
        node = RectNode(static_cast<NodeImpl *>(nullptr));
        SceneTest::TearDown();
    }
    int kind(Node const &n) { return pendingKind(*scene, n); }
    void clear() { scene->getPrivate()->takePendingChanges(); }
    static int queuedCalls() { return Diagnostics::intValue("Scene:Queued view updates"); }

    RectNode node{static_cast<NodeImpl *>(nullptr)};
    int changedSignals = 0;
    std::vector<int> deliveredSizes; // what each changed() handed to the views
};
} // namespace

TEST_F(ChangeRecording, EachKindOfSetterRecordsItsKind)
{
    DrawStyle style = node.getDrawStyle();
    style.setFill(Fill(GLOX::Color(1, 0, 0)));
    node.setDrawStyle(style);
    EXPECT_EQ(kind(node), REPAINT) << "a new colour keeps the outline";
    clear();

    style.setStroke(Stroke(GLOX::Color(), 2.0));
    node.setDrawStyle(style);
    EXPECT_EQ(kind(node), GEOMETRY) << "a wider stroke changes the outline";
    clear();

    Stroke sameWidthOtherFunction(GLOX::Color(), 2.0, SolidLine, FlatCap, MiterJoin, ConstantLodScale::instance());
    style.setStroke(sameWidthOtherFunction);
    node.setDrawStyle(style);
    EXPECT_EQ(kind(node), GEOMETRY) << "another scale function changes the outline";
    clear();

    node.setDrawStyle(style);
    node.setRect({0, 0, 10, 10});
    node.setVisible(true);
    EXPECT_EQ(kind(node), NONE) << "equal values report nothing";

    node.setPosition({3, 4});
    EXPECT_EQ(kind(node), GEOMETRY) << "a move is recorded as geometry";
    clear();
    node.setClipsChildren(true);
    EXPECT_EQ(kind(node), REPAINT);
    node.setRect({0, 0, 20, 20});
    node.setZValue(9);
    EXPECT_EQ(kind(node), GEOMETRY) << "a repaint never lowers geometry";
}

TEST_F(ChangeRecording, ChangesReachChildrenHandledByTheScene)
{
    RectNode child = rect(0, 0), grandchild = rect(0, 0);
    child.setParent(node);
    grandchild.setParent(child);
    clear();
    node.setFill(Fill(GLOX::Color(0, 0, 1)));
    EXPECT_EQ(kind(child), REPAINT);
    EXPECT_EQ(kind(grandchild), REPAINT);
    node.translate(5, 0);
    EXPECT_EQ(kind(grandchild), GEOMETRY);
}

TEST_F(ChangeRecording, RemovalMarksTheSubtreeAndALaterChangeMakesItGeometry)
{
    RectNode child = rect(0, 0);
    child.setParent(node);
    clear();
    Node removed = scene->removeNode(node);
    EXPECT_EQ(kind(node), REMOVED);
    EXPECT_EQ(kind(child), REMOVED);
    EXPECT_EQ(removed, node);

    // Back in the scene before the views looked: the entry must not stay
    // Removed, or the views would drop the node.
    scene->addNode(node);
    EXPECT_EQ(kind(node), GEOMETRY);

    scene->removeNode(node);
    node.getImpl()->notifyRepaint(); // no handler now: nothing recorded
    EXPECT_EQ(kind(node), REMOVED);
    // A repaint recorded by the scene upgrades Removed to Geometry.
    scene->getPrivate()->nodeRepaintRequired(node.getImpl());
    EXPECT_EQ(kind(node), GEOMETRY);
}

TEST_F(ChangeRecording, OneQueuedCallPerBatch)
{
    int before = queuedCalls();
    RectNode other = added(rect(50, 50));
    for (int i = 0; i < 10; ++i) {
        node.setPosition({double(i), 0});
        other.setRect({0, 0, 10.0 + i, 10});
    }
    EXPECT_EQ(queuedCalls(), before + 1);
    EXPECT_EQ(changedSignals, 0) << "nothing is announced before the host loop turns";

    runHostLoopTurn();
    ASSERT_GE(changedSignals, 1);
    EXPECT_EQ(deliveredSizes.front(), 2) << "every reader of the signal sees the whole batch";
    EXPECT_EQ(scene->getPrivate()->getPendingChanges().size(), 0) << "then the batch is gone";
    EXPECT_EQ(scene->getPrivate()->changesBeingDelivered().size(), 0);

    node.setPosition({100, 0});
    EXPECT_EQ(queuedCalls(), before + 2) << "a new batch queues a new call";
    runHostLoopTurn();
}
