// The stack of layers of a canvas: indices, tags, the scene lookup shared
// by all stacks, and the announcements listeners rely on.

#include <LayerStack>
#include <Scene>

#include "GLUV/Listener.h"
#include "scene/ScenePrivate.h"

#include <gtest/gtest.h>
#include <vector>

using namespace VOR2;

namespace {
GLOX::Holder<Layer> layerOf(Scene *scene, char const *tag) { return GLOX::Holder<Layer>(new Layer(scene, tag)); }
} // namespace

TEST(LayerStack, IndicesFollowInsertionAndRemoval)
{
    auto a = Scene::createScene(), b = Scene::createScene(), c = Scene::createScene();
    LayerStack stack;
    GLUV::Listener listener;
    std::vector<std::string> said;
    stack.layerAdded.connect(&listener, [&](int i) { said.push_back("added " + std::to_string(i)); });
    stack.layerRemoved.connect(&listener, [&](int i) {
        said.push_back("removed " + std::to_string(i) + " " + stack.getLayer(i)->getTag().str());
    });

    stack.insertLayer(0, layerOf(a.get(), "a"));
    stack.insertLayer(0, layerOf(b.get(), "b"));
    EXPECT_EQ(stack.getLayer(1)->getTag(), GLOX::StringID("a"));
    EXPECT_EQ(stack.getLayer(1)->getZValue(), 1);
    stack.insertLayer(2, layerOf(c.get(), "c"));
    EXPECT_EQ(stack.getLayer(a->getPrivate())->getZValue(), 1);
    EXPECT_EQ(stack.getLayer(GLOX::StringID("c")), stack.getLayer(2));
    EXPECT_EQ(stack.getLayer(GLOX::StringID("nothing")), nullptr);
    EXPECT_EQ(stack.getLayer(3), nullptr);

    stack.removeLayer(7);
    stack.removeLayer(0);
    EXPECT_EQ(stack.getLayer(0)->getTag(), GLOX::StringID("a"));
    EXPECT_EQ(stack.getLayer(0)->getZValue(), 0);
    EXPECT_EQ(stack.getLayer(b->getPrivate()), nullptr);
    EXPECT_EQ(said, (std::vector<std::string>{"added 0", "added 0", "added 2", "removed 0 b"}));
}

TEST(LayerStack, ALayerKeepsItsSceneAlive)
{
    LayerStack stack;
    Scene *raw;
    {
        auto scene = Scene::createScene();
        raw = scene.get();
        stack.insertLayer(0, layerOf(raw, "base"));
    }
    EXPECT_EQ(raw->refCount(), 1u);
    EXPECT_EQ(stack.getLayer(0)->getScene(), raw);
    stack.removeAllLayers();
    EXPECT_EQ(stack.getNumLayers(), 0);
}
