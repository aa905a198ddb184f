// Who keeps a node alive: handles, a parent, a scene; and that nothing
// outlives its last owner.

#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

using Ownership = SceneTest;

TEST_F(Ownership, DetachedNodeDiesWithItsLastHandle)
{
    WeakRef weak;
    {
        RectNode n = rect(0, 0);
        weak = n;
        Node copy = n;
        n = RectNode(static_cast<NodeImpl *>(nullptr));
        EXPECT_TRUE(weak.isValid());
    }
    EXPECT_FALSE(weak.isValid());
    EXPECT_EQ(weak, WeakRef());
}

TEST_F(Ownership, AttachedNodeLivesWithoutHandlesUntilRemoved)
{
    auto scene = Scene::createScene();
    WeakRef weak;
    {
        RectNode n = rect(0, 0);
        weak = n;
        scene->addNode(n);
    }
    ASSERT_TRUE(weak.isValid());
    EXPECT_EQ(scene->getAllNodes().size(), 1);

    weak.promote().remove();
    EXPECT_FALSE(weak.isValid());
    EXPECT_TRUE(scene->getAllNodes().isEmpty());
}

TEST_F(Ownership, RemoveNodeReturnsAHandleThatKeepsTheNode)
{
    auto scene = Scene::createScene();
    WeakRef weak;
    {
        RectNode n = rect(0, 0);
        weak = n;
        scene->addNode(n);
    }
    Node kept = scene->removeNode(weak.promote());
    EXPECT_TRUE(weak.isValid());
    EXPECT_EQ(kept.getScene(), nullptr);
    kept = Node();
    EXPECT_FALSE(weak.isValid());
}

TEST_F(Ownership, ChildOfADetachedParentLivesWhileTheParentDoes)
{
    WeakRef weakChild;
    {
        RectNode parent = rect(0, 0);
        {
            RectNode child = rect(0, 0);
            weakChild = child;
            child.setParent(parent);
        }
        EXPECT_TRUE(weakChild.isValid());
    }
    EXPECT_FALSE(weakChild.isValid());
}

TEST_F(Ownership, MovingBetweenScenesNeverPassesThroughZero)
{
    auto a = Scene::createScene(), b = Scene::createScene();
    WeakRef weak;
    {
        RectNode n = rect(0, 0);
        weak = n;
        a->addNode(n);
    }
    b->addNode(weak.promote());
    EXPECT_TRUE(weak.isValid());
    EXPECT_EQ(weak.promote().getScene(), b.get());

    // Through setParent as well: out of b, into a parent in a.
    RectNode parentInA = rect(0, 0);
    a->addNode(parentInA);
    weak.promote().setParent(parentInA);
    EXPECT_TRUE(weak.isValid());
    EXPECT_EQ(weak.promote().getScene(), a.get());
    EXPECT_EQ(weak.promote().getImpl()->refCount(), 2u) << "the attached reference and the promoted handle";
}

TEST_F(Ownership, DestroyingASceneFreesItsTreeAndSparesHeldNodes)
{
    int start = liveNodeCount();
    RectNode held = rect(0, 0);
    WeakRef heldChild;
    {
        auto scene = Scene::createScene();
        scene->addNode(held);
        for (int i = 0; i < 5; ++i) {
            RectNode top = rect(i, i);
            scene->addNode(top);
            for (int j = 0; j < 3; ++j) rect(j, j).setParent(top);
        }
        RectNode c = rect(0, 0);
        heldChild = c;
        c.setParent(held);
        EXPECT_EQ(liveNodeCount(), start + 1 + 5 * 4 + 1);
    }
    EXPECT_EQ(liveNodeCount(), start + 2);
    EXPECT_EQ(held.getScene(), nullptr);
    ASSERT_TRUE(heldChild.isValid());
    EXPECT_EQ(heldChild.promote().getParent(), held);
}

TEST_F(Ownership, WeakReferencesAllNullAtDeathAndSurviveAttachment)
{
    std::vector<WeakRef> refs;
    auto scene = Scene::createScene();
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
