// Tags on nodes, the tag searches of nodes and scenes, and the spatial
// queries of a scene.

#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

using TagsAndQueries = SceneTest;

TEST_F(TagsAndQueries, TagsAreASetAndDescendantSearchIsDepthFirstLeavingOutTheStart)
{
    RectNode root = rect(0, 0), a = rect(0, 0), a1 = rect(0, 0), b = rect(0, 0);
    a.addTag("t");
    a.addTag("u");
    a.addTag("t");
    EXPECT_EQ(a.getTags(), (GLOX::GList<GLOX::StringID>{"t", "u"}));
    root.addTag("t");
    a.setParent(root);
    a1.setParent(a);
    b.setParent(root);
    for (Node const &n : {Node(a1), Node(b)}) n.addTag("t");
    EXPECT_EQ(root.getDescendantsWithTag("t"), (GLOX::GList<Node>{a, a1, b}));
    EXPECT_EQ(root.getChildrenWithTag("t"), (GLOX::GList<Node>{a, b}));
    a.removeTag("t");
    EXPECT_FALSE(a.hasTag("t"));
    EXPECT_TRUE(a.hasTag("u"));
    EXPECT_EQ(root.getDescendantsWithTag("t"), (GLOX::GList<Node>{a1, b}));
    a.removeAllTags();
    EXPECT_TRUE(a.getTags().isEmpty());
}

TEST_F(TagsAndQueries, SceneTagSearchNeverAnswersTopLevelNodes)
{
    RectNode top = rect(0, 0), child = rect(0, 0);
    top.addTag("t");
    scene->addNode(top);
    EXPECT_TRUE(scene->getNodesWithTag("t").isEmpty());
    child.addTag("t");
    child.setParent(top);
    EXPECT_EQ(scene->getNodesWithTag("t"), GLOX::GList<Node>{child});
}

TEST_F(TagsAndQueries, SpatialQueriesFollowTheNodesOutlines)
{
    RectNode low = added(rect(0, 0, 100, 100)), high = added(rect(50, 50, 100, 100)), far = added(rect(500, 500));

    EXPECT_EQ(scene->getNodeAt({75, 75}), high);
    EXPECT_EQ(scene->getNodeAt({25, 25}), low);
    EXPECT_FALSE(scene->getNodeAt({300, 300}).isValid());
    EXPECT_EQ(scene->getNodesAtScenePos({75, 75}), (GLOX::GList<Node>{high, low}));
    EXPECT_EQ(scene->getNodesIntersectingRect({140, 140, 10, 10}), GLOX::GList<Node>{high});
    // Wholly inside: only the low node; the high one just overlaps.
    EXPECT_EQ(scene->getNodesWithinRect({-10, -10, 120, 120}), GLOX::GList<Node>{low});
    EXPECT_EQ(scene->getAllNodes().size(), 3);

    // Moving a node moves its hit area.
    far.setPosition({-500, -500});
    EXPECT_EQ(scene->getNodeAt({5, 5}), far);
}

TEST_F(TagsAndQueries, TransformedParentsCarryTheirChildrensHitAreas)
{
    RectNode parent = added(rect(0, 0, 10, 10)), child = rect(20, 0, 10, 10);
    child.setParent(parent);
    EXPECT_EQ(scene->getNodeAt({25, 5}), child);
    parent.rotateDegrees(90);
    EXPECT_FALSE(scene->getNodeAt({25, 5}).isValid());
    EXPECT_EQ(scene->getNodeAt({-5, 25}), child);
    parent.clearTransform();
    EXPECT_EQ(scene->getNodeAt({25, 5}), child);
}

TEST_F(TagsAndQueries, SelectionTakesOnlySelectableNodes)
{
    RectNode a = added(rect(0, 0, 10, 10)), b = added(rect(20, 0, 10, 10)), child = rect(2, 2, 2, 2);
    child.setParent(a);
    scene->selectAll();
    EXPECT_TRUE(scene->getAllSelectedNodes().isEmpty()) << "new nodes are not selectable";

    a.setSelectable(true);
    b.setSelectable(true);
    scene->setSelection(GLOX::GLRect<double>(-5, -5, 50, 50), true);
    EXPECT_EQ(scene->getAllSelectedNodes().size(), 2);
    EXPECT_TRUE(child.isAncestorSelected());
    EXPECT_FALSE(a.isAncestorSelected());
    scene->setSelection(GLOX::GLPoint<double>(25, 5), false);
    EXPECT_FALSE(b.isSelected());
    a.toggleSelected();
    EXPECT_FALSE(child.isAncestorSelected());
    b.setSelected(true);
    scene->deselectAll();
    EXPECT_TRUE(scene->getAllSelectedNodes().isEmpty());

    // Only focusable items (editable text) take focus; others leave none.
    a.setFocus();
    EXPECT_FALSE(a.hasFocus());
    scene->setFocusNode(a);
    EXPECT_FALSE(scene->getFocusNode().isValid());
    scene->setFocusNode(Node());
    a.clearFocus();
}
