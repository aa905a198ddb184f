// Z-order among siblings and top-level nodes: every single and list form,
// the range that only grows, and nodes that have nowhere to be stacked.

#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

namespace {
class ZOrder : public SceneTest {
protected:
    void SetUp() override
    {
        SceneTest::SetUp();
        for (int i = 0; i < 4; ++i) nodes.append(added(rect(0, 0)));
    }
    void TearDown() override
    {
        nodes.clear();
        SceneTest::TearDown();
    }
    std::vector<double> zs() const
    {
        std::vector<double> out;
        for (Node const &n : nodes) out.push_back(n.getZValue());
        return out;
    }
    ZRange range() const { return scene->getPrivate()->zRange(); }
    // Records the nodes that reported since the last call.
    GLOX::GList<NodeImpl *> reported()
    {
        GLOX::GList<NodeImpl *> keys;
        scene->getPrivate()->takePendingChanges().forEach([&](NodeImpl *node, PendingChangeKind) { keys.append(node); });
        return keys;
    }

    GLOX::GList<Node> nodes;
};
} // namespace

TEST_F(ZOrder, AddingStacksOnTopAndNodesWithNowhereToBeStackedStay)
{
    EXPECT_EQ(zs(), (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(range().highest, 4);
    EXPECT_EQ(scene->getNodeAt({5, 5}), nodes[3]);

    RectNode loose = rect(0, 0); // unattached: no order
    EXPECT_EQ(loose.getZValue(), 0);
    loose.setZValue(7);
    loose.toTop();
    loose.placeAbove(nodes[0]);
    EXPECT_EQ(loose.getZValue(), 0);
    // List forms ignore a missing first entry.
    Node::toTop(GLOX::GList<Node>{Node(), nodes[0]});
    Node::toTop(GLOX::GList<Node>{});
    EXPECT_EQ(zs(), (std::vector<double>{1, 2, 3, 4}));
}

TEST_F(ZOrder, SetZValueWidensTheRange)
{
    reported();
    nodes[0].setZValue(10);
    nodes[1].setZValue(-5);
    EXPECT_EQ(range().highest, 10);
    EXPECT_EQ(range().lowest, -5);
    EXPECT_EQ(reported().size(), 2);
    nodes[0].setZValue(10);
    EXPECT_TRUE(reported().isEmpty()) << "an equal z reports nothing";
}

TEST_F(ZOrder, ToTopAndToBottomStepPastTheRange)
{
    nodes[0].toTop();
    EXPECT_EQ(nodes[0].getZValue(), 5);
    nodes[3].toBottom();
    EXPECT_EQ(nodes[3].getZValue(), -1);
    EXPECT_EQ(range().lowest, -1);
    reported();
    // Already at the top of the range: no change, even with a tie.
    nodes[1].setZValue(5);
    reported();
    nodes[0].toTop();
    EXPECT_EQ(nodes[0].getZValue(), 5);
    EXPECT_TRUE(reported().isEmpty());
}

TEST_F(ZOrder, PlaceBelowAndAboveShiftTheOthers)
{
    nodes[3].placeBelow(nodes[1]); // z 1 2 3 4 -> n3 takes 2, n1..n2 shift up
    EXPECT_EQ(zs(), (std::vector<double>{1, 3, 4, 2}));
    EXPECT_EQ(range().highest, 5);

    nodes[0].placeAbove(nodes[2]); // above 4: nothing is above, n0 takes 5
    EXPECT_EQ(zs(), (std::vector<double>{5, 3, 4, 2}));
    nodes[3].placeAbove(nodes[1]); // above 3: n2 (4) and n0 (5) shift
    EXPECT_EQ(zs(), (std::vector<double>{6, 3, 5, 4}));
}

TEST_F(ZOrder, PlaceBelowItselfKeepsZAndRaisesTheRange)
{
    nodes[1].placeBelow(nodes[1]);
    EXPECT_EQ(zs(), (std::vector<double>{1, 2, 4, 5}));
    EXPECT_EQ(range().highest, 5);
}

TEST_F(ZOrder, EnsureFormsActOnlyWhenNeeded)
{
    nodes[3].ensureAbove(nodes[0]);
    EXPECT_EQ(zs(), (std::vector<double>{1, 2, 3, 4}));
    nodes[0].ensureBelow(nodes[3]);
    EXPECT_EQ(zs(), (std::vector<double>{1, 2, 3, 4}));
    nodes[0].ensureAbove(nodes[2]);
    EXPECT_EQ(zs(), (std::vector<double>{4, 2, 3, 5}));
    nodes[3].ensureBelow(nodes[1]);
    EXPECT_EQ(zs(), (std::vector<double>{5, 3, 4, 2}));
}

TEST_F(ZOrder, ListFormsKeepTheMembersRelativeOrder)
{
    Node::toTop(GLOX::GList<Node>{nodes[1], nodes[0]});
    EXPECT_EQ(zs(), (std::vector<double>{5, 6, 3, 4}));
    Node::toBottom(GLOX::GList<Node>{nodes[2], nodes[3]});
    EXPECT_EQ(zs(), (std::vector<double>{5, 6, -2, -1}));

    Node::placeAbove(GLOX::GList<Node>{nodes[1], nodes[0]}, nodes[2]);
    // Above -2: every node above gets +2, then n0, n1 take -1, 0 in z order.
    EXPECT_EQ(zs(), (std::vector<double>{-1, 0, -2, 1}));
    Node::placeBelow(GLOX::GList<Node>{nodes[3], nodes[0]}, nodes[2]);
    // At or above -2 gets +2; n0 (z 1 then) and n3 (3) take -2 and -1.
    EXPECT_EQ(zs(), (std::vector<double>{-2, 2, 0, -1}));
}

TEST_F(ZOrder, ListEnsureFormsMoveOnlyTheMembersOnTheWrongSide)
{
    Node::ensureAbove(GLOX::GList<Node>{nodes[0], nodes[3]}, nodes[1]);
    // Only n0 is at or below 2: it goes just above n1, the rest shift by 1.
    EXPECT_EQ(zs(), (std::vector<double>{3, 2, 4, 5}));
    Node::ensureBelow(GLOX::GList<Node>{nodes[1], nodes[2]}, nodes[0]);
    // Only n2 is at or above 3: it takes 3, everything from 3 up shifts.
    EXPECT_EQ(zs(), (std::vector<double>{4, 2, 3, 6}));
    double highest = range().highest;
    Node::ensureAbove(GLOX::GList<Node>{nodes[3]}, nodes[0]);
    EXPECT_EQ(range().highest, highest) << "nothing to move, nothing changes";
}

TEST_F(ZOrder, ChildrenStackInTheirParentsRange)
{
    RectNode a = rect(0, 0), b = rect(0, 0);
    a.setParent(nodes[0]);
    b.setParent(nodes[0]);
    EXPECT_EQ(a.getZValue(), 1);
    EXPECT_EQ(b.getZValue(), 2);
    a.toTop();
    EXPECT_EQ(a.getZValue(), 3);
    EXPECT_EQ(nodes[0].getImpl()->zRange().highest, 3);
    a.remove();
    b.remove();
}
