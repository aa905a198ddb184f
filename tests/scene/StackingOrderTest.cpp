// The stacking order of found items against Qt's own: top-level nodes with
// tied and distinct z values, and the same with children among them.

#include <GlobalViewerInfo>
#include <RectNode>
#include <Scene>

#include "scene/NodeImpl.h"
#include "scene/ScenePrivate.h"
#include "scene/StackingOrder.h"

#include <QGraphicsItem>
#include <gtest/gtest.h>

using namespace VOR2;
using R = GLOX::GLRect<double>;

namespace {
class StackingOrderTest : public ::testing::Test {
protected:
    StackingOrderTest() : m_scene(Scene::createScene()) { GlobalViewerInfo::instance()->setCurrentView(this, 1.0); }
    ~StackingOrderTest() override { GlobalViewerInfo::instance()->clearCurrentView(); }

    // Overlapping rectangles, z values 0 to 2 in turn, so that most share
    // their z with others.
    std::vector<RectNode> addOverlapping(int count)
    {
        std::vector<RectNode> nodes;
        for (int i = 0; i < count; ++i) {
            RectNode n(R(i % 13, i % 7, 20, 20));
            m_scene->addNode(n); // stacks it on top
            n.setZValue(double(i % 3));
            nodes.push_back(n);
        }
        return nodes;
    }

    // Qt's answer and the index's for the whole area.
    void expectQtsOrder()
    {
        ScenePrivate *d = m_scene->getPrivate();
        QRectF const all(-5, -5, 60, 60);
        d->setLinearQueries(true);
        QList<QGraphicsItem *> const walked = d->itemsIn(all, Qt::IntersectsItemBoundingRect);
        d->setLinearQueries(false);
        QList<QGraphicsItem *> const indexed = d->itemsIn(all, Qt::IntersectsItemBoundingRect);
        ASSERT_GT(walked.size(), 100);
        EXPECT_EQ(indexed, walked);
    }

    GLOX::Holder<Scene> m_scene;
};
} // namespace

TEST_F(StackingOrderTest, TopLevelNodesComeInQtsOrder)
{
    std::vector<RectNode> nodes = addOverlapping(150);
    nodes[3].setZValue(5.0);
    nodes[40].setZValue(-1.0);
    expectQtsOrder();
}

TEST_F(StackingOrderTest, NodesWithParentsComeInQtsOrder)
{
    std::vector<RectNode> nodes = addOverlapping(150);
    for (size_t i = 1; i < nodes.size(); i += 10) nodes[i].setParent(nodes[i - 1]);
    expectQtsOrder();
}

TEST_F(StackingOrderTest, SortingAnyListOfTopLevelItemsAgreesWithThePairwiseOrder)
{
    std::vector<RectNode> nodes = addOverlapping(60);
    QList<QGraphicsItem *> items;
    for (auto it = nodes.rbegin(); it != nodes.rend(); ++it) items.append(it->getImpl()->getGraphicsItem());
    sortTopmostFirst(items);
    for (int i = 0; i + 1 < items.size(); ++i) {
        EXPECT_TRUE(isStackedAbove(items[i], items[i + 1])) << i;
        EXPECT_FALSE(isStackedAbove(items[i + 1], items[i])) << i;
    }
}
