// Who keeps a node alive: handles, a parent, a scene; and that nothing
// outlives its last owner.

#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

using Ownership = SceneTest;

TEST_F(Ownership, DetachedNodeDiesWithItsLastHandleOrParent)
{
    WeakRef weak, weakChild;
    {
        RectNode n = rect(0, 0);
        weak = n;
        Node copy = n;
        n = RectNode(static_cast<NodeImpl *>(nullptr));
        EXPECT_TRUE(weak.isValid());
        {
            RectNode child = rect(0, 0);
            weakChild = child;
            child.setParent(copy);
        }
        EXPECT_TRUE(weakChild.isValid()) << "held by its parent";
    }
    EXPECT_FALSE(weak.isValid());
    EXPECT_FALSE(weakChild.isValid());
    EXPECT_EQ(weak, WeakRef());
}

TEST_F(Ownership, AttachedNodeLivesWithoutHandlesUntilRemoved)
{
    WeakRef weak = added(rect(0, 0)), weakKept = added(rect(0, 0));
    ASSERT_TRUE(weak.isValid() && weakKept.isValid());
    EXPECT_EQ(scene->getAllNodes().size(), 2);

    weak.promote().remove();
    EXPECT_FALSE(weak.isValid());
    EXPECT_EQ(scene->getAllNodes().size(), 1);

    // removeNode hands back a handle that keeps the node.
    Node kept = scene->removeNode(weakKept.promote());
    EXPECT_TRUE(weakKept.isValid());
    EXPECT_EQ(kept.getScene(), nullptr);
    EXPECT_TRUE(scene->getAllNodes().isEmpty());
    kept = Node();
    EXPECT_FALSE(weakKept.isValid());
}

TEST_F(Ownership, MovingBetweenScenesNeverPassesThroughZero)
{
    auto other = Scene::createScene();
    WeakRef weak = added(rect(0, 0));
    other->addNode(weak.promote());
    EXPECT_TRUE(weak.isValid());
    EXPECT_EQ(weak.promote().getScene(), other.get());

    // Through setParent as well: out of the other scene, into a parent here.
    weak.promote().setParent(added(rect(0, 0)));
    EXPECT_TRUE(weak.isValid());
    EXPECT_EQ(weak.promote().getScene(), scene.get());
    EXPECT_EQ(scene->getAllNodes().size(), 2);
    EXPECT_TRUE(other->getAllNodes().isEmpty());
    EXPECT_EQ(weak.promote().getImpl()->refCount(), 2u) << "the attached reference and the promoted handle";
}

TEST_F(Ownership, DestroyingASceneFreesItsTreeAndSparesHeldNodes)
{
    int start = liveNodeCount();
    RectNode held = rect(0, 0);
    WeakRef heldChild, dyingChild;
    RectNode heldUnderDoomed = rect(0, 0);
    {
        auto doomed = Scene::createScene();
        doomed->addNode(held);
        for (int i = 0; i < 5; ++i) {
            RectNode top = rect(i, i);
            doomed->addNode(top);
            for (int j = 0; j < 3; ++j) rect(j, j).setParent(top);
        }
        RectNode c = rect(0, 0);
        heldChild = c;
        c.setParent(held);
        RectNode doomedParent = rect(0, 0);
        doomed->addNode(doomedParent);
        heldUnderDoomed.setParent(doomedParent);
        RectNode d = rect(0, 0);
        dyingChild = d;
        d.setParent(heldUnderDoomed);
        EXPECT_EQ(liveNodeCount(), start + 1 + 5 * 4 + 1 + 3);
    }
    EXPECT_EQ(liveNodeCount(), start + 4);
    EXPECT_EQ(held.getScene(), nullptr);
    ASSERT_TRUE(heldChild.isValid());
    EXPECT_EQ(heldChild.promote().getParent(), held);
    EXPECT_EQ(heldUnderDoomed.getScene(), nullptr) << "held under a dying parent: detached";
    EXPECT_FALSE(heldUnderDoomed.getParent().isValid());
    ASSERT_TRUE(dyingChild.isValid()) << "its own subtree stays with it";
    EXPECT_EQ(dyingChild.promote().getParent(), heldUnderDoomed);
}

TEST_F(Ownership, WeakReferencesAllNullAtDeathAndSurviveAttachment)
{
    std::vector<WeakRef> refs;
    {
        RectNode n = rect(0, 0);
        for (int i = 0; i < 200; ++i) refs.emplace_back(n);
        scene->addNode(n);
    }
    for (auto const &r : refs) ASSERT_TRUE(r.isValid());
    WeakRef copy = refs[0];
    copy = refs[1]; // same node: nothing changes
    copy = copy;
    EXPECT_EQ(copy, refs[0]);
    refs[0].promote().remove();
    for (auto const &r : refs) EXPECT_FALSE(r.isValid());
    EXPECT_FALSE(copy.isValid());
    EXPECT_FALSE(copy.promote().isValid());

    WeakRef fromEmpty;
    fromEmpty = Node();
    EXPECT_FALSE(fromEmpty.isValid());
}
