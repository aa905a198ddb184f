// How a scene records its nodes' changes for the views: the kind per node,
// how kinds combine, one queued call per batch, and Qt kept from
// processing item updates of its own.

#include <ConstantLodScale>

#include "support/SceneFixture.h"

#include <QEvent>
#include <algorithm>
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
        QObject::connect(scene->getPrivate(), &QGraphicsScene::changed, [this](QList<QRectF> const &rects) {
            ++changedSignals;
            ScenePrivate *p = scene->getPrivate();
            deliveredSizes.push_back(p->changesBeingDelivered().size());
            if (!p->isDeliveringChanges()) qtAnnouncements.push_back({rects, p->announcesHeldQtUpdates()});
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
    // The emissions of changed() Qt made on its own, outside deliveries.
    struct Announcement {
        QList<QRectF> rects;
        bool held;
    };
    std::vector<Announcement> qtAnnouncements;
};

// Counts the queued calls an object receives: Qt's pass over dirty items
// and its announcement of changes arrive as such calls on the scene.
class QueuedCallCounter : public QObject {
public:
    explicit QueuedCallCounter(QObject *watched) { watched->installEventFilter(this); }
    bool eventFilter(QObject *, QEvent *event) override
    {
        count += event->type() == QEvent::MetaCall ? 1 : 0;
        return false;
    }
    int count = 0;
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
    EXPECT_EQ(std::count(deliveredSizes.begin(), deliveredSizes.end(), 2), 1)
        << "one signal hands every reader the whole batch";
    EXPECT_EQ(std::count(deliveredSizes.begin(), deliveredSizes.end(), 0), changedSignals - 1) << "the others none";
    EXPECT_EQ(scene->getPrivate()->getPendingChanges().size(), 0) << "then the batch is gone";
    EXPECT_EQ(scene->getPrivate()->changesBeingDelivered().size(), 0);

    node.setPosition({100, 0});
    EXPECT_EQ(queuedCalls(), before + 2) << "a new batch queues a new call";
    runHostLoopTurn();
}

TEST_F(ChangeRecording, QtLeavesTheItemsAloneAndAnnouncesOnlyWhatTheSceneDoesNotKnow)
{
    // Every call queued by one turn runs in the next, at the latest.
    auto settle = [] {
        for (int i = 0; i < 3; ++i) runHostLoopTurn();
    };
    // What Qt announced on its own that the delivered changes do not say.
    auto newsFromQt = [this] {
        QList<QRectF> news;
        for (Announcement const &a : qtAnnouncements)
            if (!a.held) news += a.rects;
        qtAnnouncements.clear();
        return news;
    };
    for (int i = 0; i < 50; ++i) added(rect(20.0 * i, 100));
    settle();
    newsFromQt();
    QueuedCallCounter calls(scene->getPrivate());

    node.setPosition({5, 5});
    node.setRect({0, 0, 20, 20});
    node.rotateDegrees(30);
    node.setOpacity(0.5);
    node.setVisible(false);
    settle();
    // Qt's own pass over its dirty items would be a third call, visiting
    // every item of the scene.
    EXPECT_EQ(calls.count, 2) << "Qt's announcement and the scene's delivery only";
    EXPECT_EQ(newsFromQt(), QList<QRectF>());

    scene->getPrivate()->update(QRectF(1, 2, 3, 4));
    settle();
    EXPECT_EQ(newsFromQt(), QList<QRectF>{QRectF(1, 2, 3, 4)}) << "an area no node reported is announced as it is";

    node.remove();
    settle();
    EXPECT_EQ(newsFromQt(), QList<QRectF>()) << "a removal is the scene's to report too";
}
