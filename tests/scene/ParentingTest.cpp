// The parent tree: the checks that refuse a parent, what setParent keeps and
// changes, and how reparenting moves nodes between scenes.

#include <Error>

#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

using Parenting = SceneTest;

namespace {
// The code of the Error that `f` throws, or 0 when it throws none.
template <typename F>
int errorCode(F f)
{
    try {
        f();
    } catch (Error const &e) {
        return e.code();
    }
    return 0;
}
} // namespace

TEST_F(Parenting, RefusalsRaiseTheirErrorAndThePresentParentChangesNothing)
{
    RectNode root = added(rect(0, 0)), child = rect(1, 1), sibling = rect(0, 0), grandchild = rect(2, 2);
    child.setParent(root);
    sibling.setParent(root);
    grandchild.setParent(child);
    double zChild = child.getZValue();
    ASSERT_LT(zChild, sibling.getZValue());

    EXPECT_EQ(errorCode([&] { child.setParent(child); }), VOR2_CannotParentToSelf);
    EXPECT_EQ(errorCode([&] { root.setParent(grandchild); }), VOR2_CyclicalHierarchy);
    EXPECT_EQ(errorCode([&] { Node().setParent(root); }), VOR2_InvalidNode);
    EXPECT_EQ(errorCode([] { Node().getChildren(); }), VOR2_InvalidNode);
    child.setParent(root); // the present parent: not even z changes
    EXPECT_FALSE(root.getParent().isValid());
    EXPECT_EQ(child.getParent(), root);
    EXPECT_EQ(grandchild.getParent(), child);
    EXPECT_EQ(child.getZValue(), zChild);
    EXPECT_EQ(scene->getTopLevelNodes(), GLOX::GList<Node>{root});
}

TEST_F(Parenting, UnparentingKeepsTheSceneAndRaisesAboveNewSiblings)
{
    RectNode parent = added(rect(0, 0)), other = added(rect(0, 0)), child = rect(0, 0);
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

TEST_F(Parenting, ScenePositionGoesThroughTheParent)
{
    RectNode parent = added(rect(0, 0)), child = rect(0, 0);
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
