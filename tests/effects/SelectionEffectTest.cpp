// The scene's selection outline: shared by every selected node, shown and
// hidden by selection changes, left in place when node selection is off,
// and carried by a removed node until another scene deselects it.

#include <EffectStroke>
#include <GlobalViewerInfo>
#include <NodeEffects>
#include <SelectionNonLinearLodScale>

#include "effects/NodeEffectsImpl.h"
#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

namespace {

using SelectionEffect = SceneTest;

Effect *selectionOf(Node const &node) { return node.getEffects().get("Selection"); }

RectNode selectable(double x)
{
    RectNode n = rect(x, 0);
    n.setSelectable(true);
    return n;
}

} // namespace

TEST_F(SelectionEffect, SelectedNodesShareOnePaleOutlineOutsideThem)
{
    RectNode a = added(selectable(0)), b = added(selectable(20)), c = added(rect(40, 0));
    scene->selectAll();
    EXPECT_FALSE(c.isSelected()) << "a node that is not selectable stays as it is";
    Effect *shared = selectionOf(a);
    ASSERT_NE(shared, nullptr);
    EXPECT_EQ(selectionOf(b), shared);
    EXPECT_EQ(selectionOf(c), nullptr);

    auto *stroke = dynamic_cast<EffectStroke *>(shared);
    ASSERT_NE(stroke, nullptr);
    EXPECT_EQ(stroke->getStrokeInsetType(), Outer);
    EXPECT_EQ(stroke->getStroke().scaleFunction(), SelectionNonLinearLodScale::instance());
    EXPECT_DOUBLE_EQ(stroke->getStroke().logicalWidth(), 8.0);
    EXPECT_EQ(stroke->getStroke().color(), GLOX::Color(0.835, 0.898, 0.996, 0.8));

    // One change of the shared effect shows on both.
    QRectF const before = b.getImpl()->getGraphicsItem()->boundingRect();
    stroke->setStroke(Stroke(GLOX::Color(), 2.0));
    EXPECT_EQ(b.getImpl()->getGraphicsItem()->boundingRect(), before.adjusted(6, 6, -6, -6));

    scene->setSelection(GLOX::GLPoint<double>(5, 5), false);
    EXPECT_EQ(selectionOf(a), nullptr);
    EXPECT_NE(selectionOf(b), nullptr);
    scene->deselectAll();
    EXPECT_FALSE(a.getEffects().getImpl()->hasEffects() || b.getEffects().getImpl()->hasEffects());
}

TEST_F(SelectionEffect, SwitchingNodeSelectionOffLeavesWhatIsShown)
{
    RectNode a = added(selectable(0)), b = added(selectable(20));
    a.setSelected(true);
    scene->setUseNodeSelection(false);
    b.setSelected(true);
    EXPECT_EQ(selectionOf(b), nullptr) << "selected with node selection off: no outline";
    a.setSelected(false);
    EXPECT_NE(selectionOf(a), nullptr) << "the outline stays until a change with it on";
    scene->setUseNodeSelection(true);
    a.setSelected(true);
    a.setSelected(false);
    EXPECT_EQ(selectionOf(a), nullptr);
}

TEST_F(SelectionEffect, ARemovedNodeCarriesItsOutlineUntilAnotherSceneDeselectsIt)
{
    RectNode a = added(selectable(0));
    a.setSelected(true);
    Effect *first = selectionOf(a);
    scene->removeNode(a);
    EXPECT_EQ(selectionOf(a), first) << "out of a scene the outline stays";

    GLOX::Holder<Scene> other = Scene::createScene();
    other->addNode(a);
    EXPECT_EQ(selectionOf(a), first) << "an ordinary effect in the new scene";
    a.setSelected(false);
    EXPECT_EQ(selectionOf(a), nullptr) << "looked up by id there";
    a.setSelected(true);
    EXPECT_EQ(selectionOf(a), other->getPrivate()->getSelectionEffect()) << "the new scene's own outline";
    other->removeNode(a);
}

TEST_F(SelectionEffect, BoundingRectangleQueriesFollowTheOutlineAtEachScale)
{
    RectNode a = added(selectable(0)); // (0, 0, 10, 10)
    a.setSelected(true);
    // 8 units out at scale 1; at scale 4 the outline grows less than the
    // zoom: 16 pixels, 4 units.
    for (auto [scale, reach] : {std::pair{1.0, 8.0}, std::pair{4.0, 4.0}}) {
        SCOPED_TRACE(scale);
        GlobalViewerInfo::instance()->setCurrentView(this, scale);
        auto found = [&](double x) {
            return scene->getPrivate()->itemsIn(QRectF(x, 5, 0.1, 0.1), Qt::IntersectsItemBoundingRect).size();
        };
        EXPECT_EQ(found(-reach + 0.25), 1);
        EXPECT_EQ(found(-reach - 1.0), 0); // beyond the hairline's half pixel too
        EXPECT_TRUE(scene->getNodesAtScenePos({-1, 5}).isEmpty()) << "the outline is no part of the shape";
    }
    GlobalViewerInfo::instance()->clearCurrentView();
}
