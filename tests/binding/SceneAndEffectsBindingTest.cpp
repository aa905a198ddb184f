// The scene, effect and image classes at the border, through the gateway,
// without the script host.
#include "EffectGlow"
#include "Error"
#include "NodeEffects"
#include "RectNode"
#include "Scene"
#include "binding/BindingRegistry.h"
#include "binding/Gateway.h"
#include "binding/ImageConvert.h"
#include "binding/ObjectConvert.h"
#include "binding/ScriptError.h"

#include <QImage>

#include "binding/GatewayCalls.h"

#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::script;
using namespace gatewaycalls;

namespace {

class SceneAndEffectsBinding : public ::testing::Test {
protected:
    void SetUp() override { BindingRegistry::instance().clear(); }
    void TearDown() override { BindingRegistry::instance().clear(); }
    BindingRegistry &registry() { return BindingRegistry::instance(); }
};

TEST_F(SceneAndEffectsBinding, ASceneFetchedTwiceIsOneEntryHoldingOneReference)
{
    GLOX::Holder<Scene> scene = Scene::createScene();
    RectNode node(GLOX::GLRect<double>(0, 0, 10, 10));
    scene->addNode(node);
    Value n = fromNode(node);
    ASSERT_EQ(scene->refCount(), 1u);

    Value first = gateway("get", {str("VOR2.Node"), n, str("Scene")});
    Value second = gateway("get", {str("VOR2.Node"), n, str("Scene")});
    EXPECT_EQ(first.className(), "VOR2.Scene");
    EXPECT_EQ(first.id(), second.id());
    EXPECT_EQ(scene->refCount(), 2u);

    // Each fetch made a script object; the reference goes with the last.
    registry().release(first.id());
    EXPECT_EQ(scene->refCount(), 2u);
    registry().release(second.id());
    EXPECT_EQ(scene->refCount(), 1u);
    EXPECT_FALSE(registry().contains(scene.get()));
}

TEST_F(SceneAndEffectsBinding, AnEffectMadeByTheScriptLivesOnInItsNodeAndComesBackAsItsOwnClass)
{
    RectNode node(GLOX::GLRect<double>(0, 0, 10, 10));
    Value n = fromNode(node);
    Value glow = gateway("new", {str("VOR2.EffectGlow")});
    ASSERT_EQ(glow.className(), "VOR2.EffectGlow");
    Value effects = gateway("get", {str("VOR2.Node"), n, str("Effects")});
    gateway("call", {str("VOR2.NodeEffects"), effects, str("add"), glow});

    Effect *bound = node.getEffects().get("Glow");
    ASSERT_NE(bound, nullptr);
    EXPECT_EQ(bound->refCount(), 2u);
    registry().release(glow.id());
    EXPECT_EQ(bound->refCount(), 1u);

    // Fetched again, it is announced under its most derived class.
    Value again = gateway("call", {str("VOR2.NodeEffects"), effects, str("get"), str("Glow")});
    ASSERT_EQ(again.items().size(), 1u);
    EXPECT_EQ(again.items()[0].className(), "VOR2.EffectGlow");
    EXPECT_EQ(bound->refCount(), 2u);
}

TEST_F(SceneAndEffectsBinding, AVariableOnTheEffectListDoesNotKeepItsNodeAlive)
{
    Value effects;
    {
        RectNode node(GLOX::GLRect<double>(0, 0, 10, 10));
        Value n = fromNode(node);
        effects = gateway("get", {str("VOR2.Node"), n, str("Effects")});
        // The list is one entry however often it is fetched.
        EXPECT_EQ(gateway("get", {str("VOR2.Node"), n, str("Effects")}).id(), effects.id());
        registry().release(n.id());
    }
    Value glow = gateway("new", {str("VOR2.EffectGlow")});
    try {
        gateway("call", {str("VOR2.NodeEffects"), effects, str("add"), glow});
        FAIL() << "a list whose node died took an effect";
    } catch (Error const &e) {
        EXPECT_EQ(e.id(), "VOR2:EffectReferencesInvalidNode");
    }
    // A list is not a node, and a node is not an effect.
    EXPECT_THROW(toNode(effects), ScriptError);
    RectNode other;
    Value o = fromNode(other);
    Value otherEffects = gateway("get", {str("VOR2.Node"), o, str("Effects")});
    EXPECT_THROW(gateway("call", {str("VOR2.NodeEffects"), otherEffects, str("add"), o}), ScriptError);
}

TEST_F(SceneAndEffectsBinding, AnImageIsHeightByWidthByFourBytesColumnMajorWithStraightAlpha)
{
    QImage image(3, 2, QImage::Format_ARGB32);
    for (int y = 0; y < 2; ++y)
        for (int x = 0; x < 3; ++x) image.setPixel(x, y, qRgba(10 * x + y, 100 + x, 200 + y, 255));
    image.setPixel(0, 0, qRgba(40, 60, 80, 128));
    Value v = fromImage(Image::fromQImage(image));
    ASSERT_EQ(v.type(), Value::Type::UInt8);
    ASSERT_EQ(v.rows(), 2u);
    ASSERT_EQ(v.cols(), 3u);
    ASSERT_EQ(v.pages(), 4u);
    auto at = [&](std::size_t row, std::size_t col, std::size_t page) {
        return int(v.bytes()[(page * 3 + col) * 2 + row]);
    };
    EXPECT_EQ(at(1, 2, 0), 21);
    EXPECT_EQ(at(0, 1, 1), 101);
    EXPECT_EQ(at(1, 0, 2), 201);
    EXPECT_EQ(at(1, 0, 3), 255);
    EXPECT_EQ(at(0, 0, 0), 40);
    EXPECT_EQ(at(0, 0, 3), 128);

    Value empty = fromImage(GLOX::Holder<Image>());
    EXPECT_EQ(empty.numel(), 0u);
    EXPECT_EQ(empty.pages(), 4u);
}

TEST_F(SceneAndEffectsBinding, ARenderedSceneHasTheBackgroundAndTheNodes)
{
    Value scene = gateway("new", {str("VOR2.Scene")});
    Value node = gateway("new", {str("VOR2.RectNode"), Value::row({0, 0, 10, 10})});
    gateway("call", {str("VOR2.Scene"), scene, str("addNode"), node});
    Value out = gateway("call", {str("VOR2.Scene"), scene, str("render"), Value::scalar(5)});
    ASSERT_EQ(out.items().size(), 1u);
    Value image = out.items()[0];
    // The node's outline reaches one pixel past 10 units.
    ASSERT_GE(image.rows(), 20u);
    EXPECT_EQ(image.rows(), image.cols());
    EXPECT_EQ(image.bytes()[0], 255);
    // A margin that is not a whole number is refused.
    EXPECT_THROW(gateway("call", {str("VOR2.Scene"), scene, str("render"), Value::scalar(2.5)}), ScriptError);
}

} // namespace
