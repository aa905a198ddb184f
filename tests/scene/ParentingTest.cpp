// The parent tree: the checks that refuse a parent, what setParent keeps and
// changes, and how reparenting moves nodes between scenes.

#include <Error>

#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

using Parenting = SceneTest;

TEST_F(Parenting, RefusalsRaiseTheirErrorAndChangeNothing)
{
    auto scene = Scene::createScene();
    RectNode root = rect(0, 0), child = rect(1, 1), grandchild = rect(2, 2);
    scene->addNode(root);
    child.setParent(root);
    grandchild.setParent(child);
    double zChild = child.getZValue();

    try {
        child.setParent(child);
        FAIL() << "parenting to self was accepted";
    } catch (Error const &e) {
        EXPECT_EQ(e.code(), VOR2_CannotParentToSelf);
        EXPECT_EQ(e.text(), "Cannot set parent to self");
    }
    try {
        root.setParent(grandchild);
        FAIL() << "a cycle was accepted";
    } catch (Error const &e) {
        EXPECT_EQ(e.code(), VOR2_CyclicalHierarchy);
        EXPECT_EQ(e.text(), "Cannot set parent to an item's descendant");
    }
    EXPECT_FALSE(root.getParent().isValid());
    EXPECT_EQ(child.getParent(), root);
    EXPECT_EQ(grandchild.getParent(), child);
    EXPECT_EQ(child.getZValue(), zChild);
    EXPECT_EQ(scene->getTopLevelNodes(), GLOX::GList<Node>{root});

    EXPECT_THROW(Node().setParent(root), Error);
    try {
        Node().getChildren();
    } catch (Error const &e) {
        EXPECT_EQ(e.code(), VOR2_InvalidNode);
        EXPECT_EQ(e.text(), "Invalid node");
    }
}

TEST_F(Parenting, SettingThePresentParentChangesNothingNotEvenZ)
{
    auto scene = Scene::createScene();
    RectNode parent = rect(0, 0), a = rect(0, 0), b = rect(0, 0);
    scene->addNode(parent);
    a.setParent(parent);
    b.setParent(parent);
    double za = a.getZValue();
    ASSERT_LT(za, b.getZValue());
    a.setParent(parent);
    EXPECT_EQ(a.getZValue(), za);
}

TEST_F(Parenting, UnparentingKeepsTheSceneAndRaisesAboveNewSiblings)
{
    auto scene = Scene::createScene();
    RectNode parent = rect(0, 0), child = rect(0, 0), other = rect(0, 0);
    scene->addNode(parent);
    scene->addNode(other);
    child.setParent(parent);
    child.unparent();
    EXPECT_EQ(child.getScene(), scene.get());
    EXPECT_FALSE(child.getParent().isValid());
    EXPECT_GT(child.getZValue(), parent.getZValue());
    EXPECT_GT(child.getZValue(), other.getZValue());
    EXPECT_EQ(scene->getTopLevelNodes().size(), 3);
}

TEST_F(Parenting, ChildrenFollowTheirParentIntoAndOutOfScenes)
{
    auto scene = Scene::createScene();
    RectNode parent = rect(0, 0), child = rect(0, 0);
    child.setParent(parent);
    EXPECT_EQ(child.getScene(), nullptr);
    scene->addNode(parent);
    EXPECT_EQ(child.getScene(), scene.get());
    EXPECT_EQ(parent.getChildren(), GLOX::GList<Node>{child});

    // A parent in a scene pulls a free node into that scene.
    RectNode late = rect(0, 0);
    late.setParent(parent);
    EXPECT_EQ(late.getScene(), scene.get());

    parent.remove();
    EXPECT_EQ(child.getScene(), nullptr);
    EXPECT_EQ(child.getParent(), parent);
}

TEST_F(Parenting, ReparentingAcrossScenesMovesTheNode)
{
    auto a = Scene::createScene(), b = Scene::createScene();
    RectNode inA = rect(0, 0), parentInB = rect(0, 0);
    a->addNode(inA);
    b->addNode(parentInB);
    inA.setParent(parentInB);
    EXPECT_EQ(inA.getScene(), b.get());
    EXPECT_TRUE(a->getAllNodes().isEmpty());
    EXPECT_EQ(b->getAllNodes().size(), 2);
}

TEST_F(Parenting, ScenePositionGoesThroughTheParent)
{
    auto scene = Scene::createScene();
    RectNode parent = rect(0, 0), child = rect(0, 0);
    scene->addNode(parent);
    child.setParent(parent);
    parent.setPosition({100, 50});
    parent.scale(2, 2);
    child.setPosition({5, 5});
    EXPECT_EQ(child.getScenePosition(), (GLOX::GLPoint<double>(110, 60)));
    child.setScenePosition({120, 70});
    EXPECT_EQ(child.getPosition(), (GLOX::GLPoint<double>(10, 10)));
    EXPECT_EQ(child.mapLocalToScene(GLOX::GLPoint<double>(1, 0)), (GLOX::GLPoint<double>(122, 70)));
    Bounds mapped = child.mapLocalToScene(Bounds(GLOX::GLRect<double>(0, 0, 1, 1)));
    EXPECT_EQ(mapped.boundingRect(), (GLOX::GLRect<double>(120, 70, 2, 2)));
}
