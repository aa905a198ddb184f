// Tags on nodes, the tag searches of nodes and scenes, and the spatial
// queries of a scene.

#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

using TagsAndQueries = SceneTest;

TEST_F(TagsAndQueries, TagsAreASetInInsertionOrder)
{
    RectNode n = rect(0, 0);
    n.addTag("a");
    n.addTag("b");
    n.addTag("a");
    EXPECT_EQ(n.getTags(), (GLOX::GList<GLOX::StringID>{"a", "b"}));
    EXPECT_TRUE(n.hasTag("b"));
    n.removeTag("a");
    EXPECT_FALSE(n.hasTag("a"));
    n.removeAllTags();
    EXPECT_TRUE(n.getTags().isEmpty());
}

TEST_F(TagsAndQueries, DescendantSearchIsDepthFirstAndLeavesOutTheStart)
{
    RectNode root = rect(0, 0), a = rect(0, 0), a1 = rect(0, 0), b = rect(0, 0);
    root.addTag("t");
    a.setParent(root);
    a1.setParent(a);
    b.setParent(root);
    for (Node const &n : {Node(a), Node(a1), Node(b)}) n.addTag("t");
    EXPECT_EQ(root.getDescendantsWithTag("t"), (GLOX::GList<Node>{a, a1, b}));
    EXPECT_EQ(root.getChildrenWithTag("t"), (GLOX::GList<Node>{a, b}));
    a.removeTag("t");
    EXPECT_EQ(root.getDescendantsWithTag("t"), (GLOX::GList<Node>{a1, b}));
}

TEST_F(TagsAndQueries, SceneTagSearchNeverAnswersTopLevelNodes)
{
    auto scene = Scene::createScene();
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
    auto scene = Scene::createScene();
    RectNode low = rect(0, 0, 100, 100), high = rect(50, 50, 100, 100), far = rect(500, 500);
    for (Node const &n : {Node(low), Node(high), Node(far)}) scene->addNode(n);

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
    auto scene = Scene::createScene();
    RectNode parent = rect(0, 0, 10, 10), child = rect(20, 0, 10, 10);
    scene->addNode(parent);
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
    auto scene = Scene::createScene();
    RectNode a = rect(0, 0, 10, 10), b = rect(20, 0, 10, 10), child = rect(2, 2, 2, 2);
    scene->addNode(a);
    scene->addNode(b);
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
