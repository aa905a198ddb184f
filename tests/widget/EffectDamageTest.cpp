// Effects through the scene server: what adding, removing and selecting
// repaint, at more than one scale, on the layer image's pixels.

#include <EffectStroke>
#include <NodeEffects>
#include <RectNode>

#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/ServerFixture.h"

using namespace VOR2;
using namespace VOR2::test;

namespace {

using EffectDamage = ServerFixture;

// The smallest rectangle holding every pixel that differs between a and b.
QRect differingPixels(QImage const &a, QImage const &b)
{
    QRect r;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            if (a.pixel(x, y) != b.pixel(x, y)) r |= QRect(x, y, 1, 1);
    return r;
}

} // namespace

TEST_F(EffectDamage, AddingAndRemovingAnEffectRepaintsExactlyItsArea)
{
    RectNode n = solidRect({40, 40, 10, 10}, Qt::blue);
    scene->addNode(n);
    show(1, 0, 0);
    settle();
    takeDirty();
    QImage const plain = layerImage().copy();

    GLOX::Holder<EffectStroke> stroke(new EffectStroke(Stroke(GLOX::Color(1, 0, 0), 5.0), Outer));
    n.getEffects().add(stroke.get());
    settle();
    EXPECT_EQ(takeDirty(), QRectF(35, 35, 20, 20));
    EXPECT_EQ(differingPixels(plain, layerImage()), QRect(35, 35, 20, 20));
    EXPECT_TRUE(pixelIs(layerImage(), 37, 45, Qt::red));

    n.getEffects().remove(stroke.get());
    settle();
    EXPECT_EQ(takeDirty(), QRectF(35, 35, 20, 20)) << "the old effect's area, nothing more";
    EXPECT_EQ(differingPixels(plain, layerImage()), QRect()) << "the pixels are back";
}

TEST_F(EffectDamage, SelectingShowsTheSelectionOutlineOnlyAndClearingRestoresThePixels)
{
    RectNode n = solidRect({40, 40, 10, 10}, Qt::blue);
    n.setSelectable(true);
    RectNode other = solidRect({70, 70, 10, 10}, Qt::green);
    other.setSelectable(true);
    scene->addNode(n);
    scene->addNode(other);
    for (double scale : {1.0, 4.0}) {
        SCOPED_TRACE(scale);
        // The outline is 8 wide at scale 1 and half that, in scene units,
        // at scale 4: 16 pixels.
        double const reach = scale == 1.0 ? 8 : 4;
        show(scale, 0, 0, 400, 400);
        settle();
        takeDirty();
        QImage const plain = layerImage().copy();
        n.setSelected(true);
        settle();
        QRectF const ring(40 - reach, 40 - reach, 10 + 2 * reach, 10 + 2 * reach);
        EXPECT_EQ(takeDirty(), ring) << "in scene units, at the view's level of detail";
        QRect const changed = differingPixels(plain, layerImage());
        EXPECT_FALSE(changed.isEmpty());
        EXPECT_EQ(changed, QRectF(ring.topLeft() * scale, ring.size() * scale).toAlignedRect());
        EXPECT_TRUE(pixelIs(layerImage(), int(45 * scale), int(45 * scale), Qt::blue)) << "the node itself unchanged";
        EXPECT_EQ(scene->getNodesAtScenePos({40 - reach / 2, 45}).size(), 0) << "the outline is not hit area";

        scene->deselectAll();
        settle();
        EXPECT_EQ(takeDirty(), ring);
        EXPECT_EQ(differingPixels(plain, layerImage()), QRect()) << "clearing the selection restores every pixel";
    }
}

TEST_F(EffectDamage, WithoutNodeSelectionASelectedNodeLooksTheSame)
{
    RectNode n = solidRect({40, 40, 10, 10}, Qt::blue);
    n.setSelectable(true);
    scene->addNode(n);
    scene->setUseNodeSelection(false);
    show(1, 0, 0);
    settle();
    QImage const plain = layerImage().copy();
    n.setSelected(true);
    settle();
    EXPECT_TRUE(n.isSelected());
    EXPECT_EQ(differingPixels(plain, layerImage()), QRect());
}
