// Composite nodes: bounds as the union of the subtree in the composite's
// coordinates, the hit test as one unit (and its two intersects forms
// handing their argument down unchanged), the subtree drawn once through
// the composite's image, and a change below dirtying that image.

#include <CompositeNode>
#include <CustomNode>
#include <CustomNodePainter>
#include <EffectStroke>
#include <Error>
#include <GlobalViewerInfo>
#include <MouseEvent>
#include <NodeEffects>

#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/SceneFixture.h"

#include <QPainter>

using namespace VOR2;
using namespace VOR2::test;

namespace {
using R = GLOX::GLRect<double>;
using P = GLOX::GLPoint<double>;
using CompositeNodes = SceneTest;

int offscreenRepaints() { return Diagnostics::intValue("Scene:Node offscreen repaint count"); }

// Fills its bounds with one colour and counts its paints.
struct CountingPainter : CustomNodePainter {
    R box;
    QColor color;
    int paints = 0;
    CountingPainter(R const &b, QColor c) : box(b), color(c) {}
    Bounds getBounds() override { return Bounds(box); }
    void paint(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *) override
    {
        ++paints;
        painter->fillRect(GLOX::toQRectF(box), color);
    }
};

void click(Scene &scene, P p)
{
    MouseEvent press(EventType::MousePress, nullptr, p, p, p, 0, Qt::LeftButton, Qt::LeftButton, {});
    scene.handleMousePressEvent(press);
    MouseEvent release(EventType::MouseRelease, nullptr, p, p, p, 0, Qt::LeftButton, Qt::LeftButton, {});
    scene.handleMouseReleaseEvent(release);
}
} // namespace

TEST_F(CompositeNodes, AnEmptyCompositeHasZeroBoundsAndContainsNothing)
{
    CompositeNode group = added(CompositeNode());
    EXPECT_EQ(group.getBounds(), Bounds());
    for (P p : {P(0, 0), P(1, 1), P(-5, 3)}) EXPECT_FALSE(group.contains(p));
    EXPECT_FALSE(group.intersects(R(-10, -10, 20, 20)));
    EXPECT_EQ(group.getCacheType(), CacheType::ChildrenTree) << "it starts caching its subtree";
    EXPECT_STREQ(group.getFullyQualifiedTcosTypeName(), "VOR2.CompositeNode");
    EXPECT_FALSE(CompositeNode(rect(0, 0).getImpl()).isValid()) << "a rectangle is not a composite";
    EXPECT_TRUE(CompositeNode(group.getImpl()).isValid());
    EXPECT_THROW(CompositeNode(static_cast<NodeImpl *>(nullptr)).getValidCompositeNodeImpl(), Error);
}

TEST_F(CompositeNodes, BoundsAreTheSubtreeInTheCompositesOwnCoordinates)
{
    CompositeNode group = added(CompositeNode());
    group.setPosition({100, 100});
    group.scale(3, 3); // its own place plays no part in its own coordinates
    RectNode child = rect(0, 0, 10, 10);
    child.setParent(group);
    child.setPosition({5, 5});
    RectNode grandchild = rect(0, 0, 4, 4);
    grandchild.setParent(child);
    grandchild.scale(2, 2);
    grandchild.setPosition({20, 0});
    EXPECT_EQ(group.getBoundingRect(), R(5, 5, 28, 10)) << "child 5..15, grandchild 25..33 across";

    grandchild.setRect({0, 0, 4, 10}); // a change below reaches the composite
    EXPECT_EQ(group.getBoundingRect(), R(5, 5, 28, 20));
    child.setPosition({0, 0});
    EXPECT_EQ(group.getBoundingRect(), R(0, 0, 28, 20));

    // Stroked outline and hit bounds unite the children's at the scale.
    child.setStroke(Stroke(GLOX::Color(), 2.0));
    GlobalViewerInfo::instance()->setCurrentView(this, 1.0);
    // The grandchild keeps its default stroke of one unit, doubled by its scale.
    EXPECT_EQ(group.getImpl()->getCachedStrokedOutline(1.0).boundingRect(), R(-1, -1, 30, 22));
    GlobalViewerInfo::instance()->clearCurrentView();
}

TEST_F(CompositeNodes, AClickAnywhereOnAChildFindsTheCompositeAsOneUnit)
{
    CompositeNode group = added(CompositeNode());
    group.setPosition({100, 0});
    group.setSelectable(true);
    RectNode left = rect(0, 0, 10, 10), right = rect(0, 0, 10, 10);
    left.setParent(group);
    right.setParent(group);
    right.setPosition({30, 0});

    EXPECT_TRUE(group.contains({5, 5}));
    EXPECT_TRUE(group.contains({35, 5}));
    EXPECT_FALSE(group.contains({20, 5})) << "between the children: the composite's own box is not tested";
    EXPECT_TRUE(scene->getNodesAtScenePos({135, 5}).contains(group));
    EXPECT_FALSE(scene->getNodesAtScenePos({120, 5}).contains(group));

    click(*scene, {135, 5});
    EXPECT_TRUE(group.isSelected()) << "the click on a child selects the composite";
    EXPECT_FALSE(right.isSelected());
    click(*scene, {120, 5});
    EXPECT_FALSE(group.isSelected()) << "the gap is nobody's";

    // Required: the intersects forms hand their argument to each child as
    // it stands, in the child's coordinates, unlike contains.
    EXPECT_FALSE(group.intersects(R(32, 2, 2, 2))) << "no child has (32, 2) in its own coordinates";
    EXPECT_TRUE(group.intersects(R(2, 2, 2, 2)));
    EXPECT_TRUE(group.intersects(Bounds(R(2, 2, 2, 2))));
    EXPECT_FALSE(group.intersects(Bounds(R(12, 2, 2, 2))));
}

TEST_F(CompositeNodes, TheSubtreeIsDrawnOnceThroughTheCompositesImage)
{
    CompositeNode group = added(CompositeNode());
    group.setPosition({10, 10});
    auto *painter = new CountingPainter(R(0, 0, 10, 10), Qt::red);
    CustomNode custom;
    custom.setPainter(painter);
    custom.setParent(group);
    RectNode green = solidRect({0, 0, 10, 10}, Qt::green);
    green.setParent(custom); // a grandchild
    green.setPosition({20, 0});

    int const before = offscreenRepaints();
    QImage image(60, 40, QImage::Format_ARGB32);
    scene->render(image, {0, 0, 60, 40}, {0, 0, 60, 40});
    EXPECT_EQ(painter->paints, 1) << "not once by the composite and again by Qt";
    EXPECT_EQ(offscreenRepaints() - before, 1) << "one image, the composite's";
    EXPECT_TRUE(pixelIs(image, 15, 15, QColor(255, 0, 0)));
    EXPECT_TRUE(pixelIs(image, 35, 15, QColor(0, 255, 0)));
    EXPECT_TRUE(pixelIs(image, 25, 15, QColor(255, 255, 255)));

    // A change two levels down dirties the composite's one image.
    green.setFill(Fill(GLOX::Color(0, 0, 1)));
    scene->render(image, {0, 0, 60, 40}, {0, 0, 60, 40});
    EXPECT_EQ(offscreenRepaints() - before, 2);
    EXPECT_TRUE(pixelIs(image, 35, 15, QColor(0, 0, 255)));

    // Without the cache the children are Qt's again, each painted once.
    group.setCacheType(CacheType::None);
    painter->paints = 0;
    scene->render(image, {0, 0, 60, 40}, {0, 0, 60, 40});
    EXPECT_EQ(painter->paints, 1);
    EXPECT_TRUE(pixelIs(image, 15, 15, QColor(255, 0, 0)));
    EXPECT_TRUE(pixelIs(image, 35, 15, QColor(0, 0, 255)));
}

TEST_F(CompositeNodes, AStrokeEffectOutlinesTheWholeSubtree)
{
    CompositeNode group = added(CompositeNode());
    RectNode a = solidRect({10, 10, 10, 10}, Qt::green), b = solidRect({30, 10, 10, 10}, Qt::green);
    a.setParent(group);
    b.setParent(group);
    GLOX::Holder<EffectStroke> stroke(new EffectStroke(Stroke(GLOX::Color(0, 0, 1), 2.0), Center));
    group.getEffects().add(stroke.get(), "outline");
    QImage image(60, 40, QImage::Format_ARGB32);
    scene->render(image, {0, 0, 60, 40}, {0, 0, 60, 40});
    // The union of two apart rectangles is both of them: each is outlined.
    EXPECT_TRUE(pixelIs(image, 10, 15, QColor(0, 0, 255), 60)) << "left edge of the first";
    EXPECT_TRUE(pixelIs(image, 19, 15, QColor(0, 0, 255), 60)) << "right edge of the first";
    EXPECT_TRUE(pixelIs(image, 30, 15, QColor(0, 0, 255), 60)) << "left edge of the second";
    EXPECT_TRUE(pixelIs(image, 39, 15, QColor(0, 0, 255), 60)) << "right edge of the second";
    EXPECT_TRUE(pixelIs(image, 25, 10, QColor(255, 255, 255))) << "nothing over the gap";
    EXPECT_TRUE(pixelIs(image, 15, 15, QColor(0, 255, 0))) << "the children inside";

    group.setSelectable(true);
    group.setSelected(true);
    QImage selected(60, 40, QImage::Format_ARGB32);
    scene->render(selected, {0, 0, 60, 40}, {0, 0, 60, 40});
    EXPECT_NE(selected, image) << "the selection outline shows on the composite";
}
