// The effect list of a node: bindings by id and by effect, the enabled
// flag of each binding, paint order and dispatch, bounds, the costly-effect
// flag, a list that outlives its node, and the shared scratch image.

#include <Error>
#include <NodeEffects>

#include "effects/NodeEffectsImpl.h"
#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/RecordingEffect.h"
#include "support/SceneFixture.h"

#include <QImage>

using namespace VOR2;
using namespace VOR2::test;

namespace {

using EffectList = SceneTest;

// Renders the scene's square (0, 0, 40, 40) at `scale` into a fresh image.
QImage renderScene(Scene &scene, double scale = 1.0)
{
    QImage image(int(40 * scale), int(40 * scale), QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    scene.render(image, {0, 0, 40, 40}, {0, 0, 40 * scale, 40 * scale});
    return image;
}

std::vector<NodeImpl *> paintedNodes(RecordingEffect const &e)
{
    std::vector<NodeImpl *> nodes;
    for (auto const &p : e.paints) nodes.push_back(p.node);
    return nodes;
}

// The effects of `node` in paint order.
std::vector<Effect *> order(Node const &node)
{
    std::vector<Effect *> effects;
    for (auto *b : node.getEffects().getImpl()->bindings()) effects.push_back(b->effect);
    return effects;
}

} // namespace

TEST_F(EffectList, BindingsByIdReplaceAtTheEndAndKeepTheirEnabledFlag)
{
    RectNode n = added(solidRect({10, 10, 10, 10}, Qt::blue));
    GLOX::Holder<RecordingEffect> a(new RecordingEffect("A")), b(new RecordingEffect("B")), c(new RecordingEffect("C"));
    NodeEffects effects = n.getEffects();
    effects.add(a.get());
    effects.add(b.get());
    effects.add(c.get(), "A"); // a different effect under A's id: A goes, C joins at the end
    EXPECT_EQ(order(n), (std::vector<Effect *>{b.get(), c.get()}));
    EXPECT_EQ(a->refCount(), 1u) << "the replaced binding gave its count back";
    EXPECT_EQ(effects.get("A"), c.get());
    EXPECT_EQ(effects.get("Nothing"), nullptr);

    EXPECT_TRUE(effects.disable("A"));
    effects.add(c.get(), "A"); // the very same binding: nothing changes
    EXPECT_EQ(order(n), (std::vector<Effect *>{b.get(), c.get()}));
    renderScene(*scene);
    EXPECT_TRUE(c->paints.empty()) << "a disabled binding stays disabled";
    EXPECT_EQ(b->paints.size(), 1u);

    EXPECT_FALSE(effects.enable("Nothing"));
    EXPECT_TRUE(effects.remove("B"));
    EXPECT_FALSE(effects.remove("B"));
    effects.clear();
    EXPECT_TRUE(order(n).empty());
    EXPECT_EQ(c->refCount(), 1u);
}

TEST_F(EffectList, OneEffectUnderTwoIdsAndOnTwoNodesHasAFlagPerBinding)
{
    RectNode n = added(solidRect({0, 0, 10, 10}, Qt::blue));
    RectNode m = added(solidRect({20, 20, 10, 10}, Qt::blue));
    GLOX::Holder<RecordingEffect> e(new RecordingEffect);
    n.getEffects().add(e.get(), "one");
    n.getEffects().add(e.get(), "two");
    m.getEffects().add(e.get());
    renderScene(*scene);
    std::vector<NodeImpl *> painted = paintedNodes(*e);
    EXPECT_EQ(std::count(painted.begin(), painted.end(), n.getImpl()), 2);
    EXPECT_EQ(std::count(painted.begin(), painted.end(), m.getImpl()), 1);

    e->paints.clear();
    EXPECT_TRUE(m.getEffects().disable(e.get()));
    EXPECT_TRUE(e->setEnabled(false)) << "the effect's own flag does not change";
    EXPECT_TRUE(e->isEnabled());
    renderScene(*scene);
    EXPECT_EQ(paintedNodes(*e), (std::vector<NodeImpl *>{n.getImpl(), n.getImpl()}));

    EXPECT_TRUE(n.getEffects().remove(e.get())) << "every binding of the effect goes";
    EXPECT_TRUE(order(n).empty());
    EXPECT_FALSE(n.getEffects().remove(e.get()));
    EXPECT_EQ(e->refCount(), 2u); // the holder and m's binding
}

TEST_F(EffectList, EffectsPaintFromTheBoundsCornerThroughTheTypedMethodWhenItAnswers)
{
    RectNode n = added(solidRect({10, 12, 8, 8}, Qt::blue));
    n.setPosition({4, 0});
    GLOX::Holder<RecordingEffect> e(new RecordingEffect);
    n.getEffects().add(e.get());
    renderScene(*scene, 3.0);
    ASSERT_EQ(e->paints.size(), 1u);
    EXPECT_EQ(e->paints[0].origin, QPointF(3 * 14, 3 * 12)) << "origin at the bounds' top-left";
    EXPECT_DOUBLE_EQ(e->paints[0].levelOfDetail, 3.0);
    EXPECT_FALSE(e->paints[0].typed);

    e->handleRects = true;
    e->changed();
    renderScene(*scene);
    ASSERT_EQ(e->paints.size(), 2u);
    EXPECT_TRUE(e->paints[1].typed) << "a typed method that answers true is the only one called";

    e->opacity = 0.0;
    e->changed();
    renderScene(*scene);
    EXPECT_EQ(e->paints.size(), 2u) << "an effect of opacity 0 is not painted";
}

TEST_F(EffectList, BoundsCountEveryBindingAndFollowChanges)
{
    RectNode n = added(solidRect({10, 10, 10, 10}, Qt::blue));
    auto itemRect = [&] { return n.getImpl()->getGraphicsItem()->boundingRect(); };
    GLOX::Holder<RecordingEffect> small(new RecordingEffect("small", 2)), big(new RecordingEffect("big", 5));
    NodeEffects effects = n.getEffects();
    effects.add(small.get());
    EXPECT_EQ(itemRect(), QRectF(8, 8, 14, 14));
    effects.add(big.get());
    effects.disableAll();
    big->opacity = 0.0;
    EXPECT_EQ(itemRect(), QRectF(5, 5, 20, 20)) << "disabled and invisible still count";
    EXPECT_EQ(n.getBoundingRect(), (GLOX::GLRect<double>(10, 10, 10, 10))) << "the node's own bounds do not";
    EXPECT_TRUE(scene->getNodesAtScenePos({6, 6}).isEmpty()) << "nor does its hit area";

    // A render of a corner that only the big effect reaches paints it.
    effects.enableAll();
    big->opacity = 1.0;
    QImage corner(4, 4, QImage::Format_ARGB32_Premultiplied);
    scene->render(corner, {5, 5, 2, 2}, {0, 0, 4, 4});
    EXPECT_EQ(big->paints.size(), 1u) << "the index finds the node by the effect's reach";
    effects.remove(big.get());
    EXPECT_EQ(itemRect(), QRectF(8, 8, 14, 14));
    small->paints.clear();
    scene->render(corner, {5, 5, 2, 2}, {0, 0, 4, 4});
    EXPECT_EQ(small->paints.size(), 0u) << "out of reach again";
}

TEST_F(EffectList, TheCostlyFlagComesFromTheLastAddAndSendsTheNodeOffscreen)
{
    RectNode n = added(solidRect({10, 10, 10, 10}, Qt::blue));
    GLOX::Holder<RecordingEffect> costly(new RecordingEffect("costly")), cheap(new RecordingEffect("cheap"));
    costly->intensive = true;
    NodeEffects effects = n.getEffects();
    effects.add(cheap.get());
    EXPECT_FALSE(effects.isIntensiveProcess());
    effects.add(costly.get());
    EXPECT_TRUE(effects.isIntensiveProcess());
    int const before = Diagnostics::intValue("Scene:Node offscreen repaint count");
    QImage direct = renderScene(*scene);
    EXPECT_EQ(Diagnostics::intValue("Scene:Node offscreen repaint count"), before + 1);
    EXPECT_TRUE(pixelIs(direct, 15, 15, Qt::blue)) << "the image holds the node's content";
    effects.remove(costly.get());
    EXPECT_TRUE(effects.isIntensiveProcess()) << "kept until the next add, deliberately";
    effects.add(cheap.get(), "again");
    EXPECT_FALSE(effects.isIntensiveProcess());
}

TEST_F(EffectList, BadHandlesAndIdsFailAndAListThatOutlivesItsNodeFailsFirst)
{
    GLOX::Holder<RecordingEffect> e(new RecordingEffect);
    GLOX::Holder<Effect> plain(new Effect);
    auto failsWith = [](auto call, message_code_vor_msg code) {
        try {
            call();
        } catch (Error const &error) {
            return error.code() == code;
        }
        return false;
    };
    std::optional<NodeEffects> kept;
    {
        RectNode n = rect(0, 0);
        NodeEffects effects = n.getEffects();
        EXPECT_TRUE(failsWith([&] { effects.add(nullptr); }, VOR2_InvalidEffectHandle));
        EXPECT_TRUE(failsWith([&] { effects.add(plain.get()); }, VOR2_InvalidEffectID));
        EXPECT_TRUE(failsWith([&] { effects.add(nullptr, ""); }, VOR2_InvalidEffectID)) << "the id is checked first";
        EXPECT_TRUE(failsWith([&] { effects.remove(GLOX::StringID()); }, VOR2_InvalidEffectID));
        EXPECT_TRUE(failsWith([&] { effects.enable(static_cast<Effect const *>(nullptr)); }, VOR2_InvalidEffectHandle));
        EXPECT_TRUE(effects.get("x") == nullptr);
        effects.add(e.get());
        kept = effects;
    }
    EXPECT_EQ(e->refCount(), 1u) << "the dead node's bindings were released";
    EXPECT_TRUE(failsWith([&] { kept->add(e.get()); }, VOR2_EffectReferencesInvalidNode));
    EXPECT_TRUE(failsWith([&] { kept->add(nullptr); }, VOR2_EffectReferencesInvalidNode)) << "the node comes first";
    EXPECT_TRUE(failsWith([&] { kept->get("x"); }, VOR2_EffectReferencesInvalidNode));
    EXPECT_TRUE(failsWith([&] { kept->clear(); }, VOR2_EffectReferencesInvalidNode));
    EXPECT_FALSE(kept->isIntensiveProcess());
}

TEST(ScratchBuffer, GrowsToTheSizeAskedOnlyWhenTooSmallAndClearsOnlyANewImage)
{
    QImage &first = RecordingEffect::getScratchBuffer({100, 100}, true);
    ASSERT_GE(first.width(), 100);
    first.fill(qRgba(1, 2, 3, 4));
    QImage &again = RecordingEffect::getScratchBuffer({50, 50}, true);
    EXPECT_EQ(&again, &first);
    EXPECT_EQ(again.pixel(0, 0), qRgba(1, 2, 3, 4)) << "an image that fits keeps its contents";
    int const oldWidth = again.width(), oldHeight = again.height();
    QImage &wide = RecordingEffect::getScratchBuffer({oldWidth + 100, 50}, true);
    EXPECT_EQ(wide.size(), QSize(oldWidth + 100, 50)) << "replaced by exactly the size asked";
    EXPECT_EQ(wide.pixel(0, 0), 0u);
    EXPECT_EQ(wide.format(), QImage::Format_ARGB32_Premultiplied);
    QImage &tall = RecordingEffect::getScratchBuffer({10, oldHeight}, false);
    EXPECT_EQ(tall.size(), QSize(10, oldHeight));
}

TEST_F(EffectList, ARemovedEffectStillRepaintsItsNodeAndMayDieBeforeIt)
{
    RectNode n = added(solidRect({10, 10, 10, 10}, Qt::blue));
    RectNode m = added(solidRect({30, 10, 10, 10}, Qt::blue));
    GLOX::Holder<RecordingEffect> removed(new RecordingEffect("gone")), kept(new RecordingEffect("kept"));
    n.getEffects().add(removed.get());
    n.getEffects().add(kept.get());
    m.getEffects().add(kept.get());
    n.getEffects().remove(removed.get());
    runHostLoopTurn();
    removed->changed();
    EXPECT_EQ(pendingKind(*scene, n), int(PendingChangeKind::Geometry)) << "still heard, deliberately";
    EXPECT_EQ(pendingKind(*scene, m), -1);

    removed.reset(); // dies while the list that heard it lives
    runHostLoopTurn();
    kept->changed();
    EXPECT_EQ(pendingKind(*scene, n), int(PendingChangeKind::Geometry));
    EXPECT_EQ(pendingKind(*scene, m), int(PendingChangeKind::Geometry));
    scene->removeNode(n);
    n = RectNode();
    kept->changed(); // n's list is gone; m still hears
    EXPECT_EQ(kept->refCount(), 2u);
}
