// The binding registry through the gateway: one entry and one reference per
// library object, however often the script fetches it, and the reference
// goes with the script's last object.
#include "RectNode"
#include "Scene"
#include "WeakRef"
#include "binding/BindingRegistry.h"
#include "binding/Gateway.h"
#include "tests/binding/BorderError.h"

#include "binding/GatewayCalls.h"

#include <gtest/gtest.h>

using namespace VOR2::script;
using namespace gatewaycalls;

namespace {

std::size_t entries() { return std::size_t(gateway("count", {}).numbers()[0]); }

void release(Value const &handle) { gateway("release", {Value::scalar(double(handle.id()))}); }

class Registry : public ::testing::Test {
protected:
    void TearDown() override { BindingRegistry::instance().clear(); }
};

} // namespace

TEST_F(Registry, FetchingOneSceneTwiceGivesOneEntryAndOneReference)
{
    GLOX::Holder<VOR2::Scene> scene = VOR2::Scene::createScene();
    VOR2::RectNode node;
    scene->addNode(node);
    unsigned const before = scene->refCount();

    Value handle = BindingRegistry::instance().announceNode(node);
    Value first = gateway("get", {str("VOR2.RectNode"), handle, str("Scene")});
    Value second = gateway("get", {str("VOR2.Node"), handle, str("Scene")});
    EXPECT_EQ(first.className(), "VOR2.Scene");
    EXPECT_EQ(first.id(), second.id());
    EXPECT_EQ(entries(), 2u);
    EXPECT_EQ(scene->refCount(), before + 1);

    // Each fetch made a script object; the reference goes with the last.
    release(first);
    EXPECT_EQ(scene->refCount(), before + 1);
    release(second);
    EXPECT_EQ(scene->refCount(), before);
    EXPECT_EQ(entries(), 1u);
    // A scene the script fetches again is a new entry with a new reference.
    Value again = gateway("get", {str("VOR2.Node"), handle, str("Scene")});
    EXPECT_NE(again.id(), first.id());
    EXPECT_EQ(scene->refCount(), before + 1);
}

TEST_F(Registry, ASceneMadeByTheScriptLivesWhileTheScriptHoldsIt)
{
    Value scene = gateway("new", {str("VOR2.Scene")});
    Value node = gateway("new", {str("VOR2.RectNode"), Value::row({0, 0, 5, 5})});
    Value added = gateway("call", {str("VOR2.Scene"), scene, str("addNode"), node}).items()[0];
    EXPECT_EQ(added.id(), node.id());
    VOR2::Node kept = BindingRegistry::instance().find(node.id()).node;
    ASSERT_TRUE(kept.isValid());

    // A node in its scene lives on when the script lets go of it.
    release(node);
    release(added);
    EXPECT_TRUE(kept.isValid());
    EXPECT_EQ(entries(), 1u);
    Value nodes = gateway("call", {str("VOR2.Scene"), scene, str("nodes")});
    Value refetched = nodes.items()[0].items()[0];
    EXPECT_EQ(gateway("get", {str("VOR2.RectNode"), refetched, str("Rect")}).numbers(),
              (std::vector<double>{0, 0, 5, 5}));
    EXPECT_NE(refetched.id(), node.id());

    // The scene goes with its last script object, and its nodes with it.
    VOR2::WeakRef weak(kept);
    kept = VOR2::Node();
    release(refetched);
    release(scene);
    EXPECT_EQ(entries(), 0u);
    EXPECT_FALSE(weak.isValid());
    // A script value that outlives its entry fails instead of reaching a dead object.
    EXPECT_EQ(errorOf([&] { gateway("call", {str("VOR2.Scene"), scene, str("nodes")}); }).first,
              "VOR2:InvalidObject");
    EXPECT_EQ(errorOf([&] { gateway("get", {str("VOR2.Node"), Value::handle("VOR2.Node", 0), str("Scene")}); }),
              std::make_pair(std::string("TARVO:tcos_factory:null_self"),
                             std::string("Attempt to call a method on an empty value")));
}

TEST_F(Registry, AWrongArgumentOfOneOverloadMovesOnAndAWrongCountListsThemAll)
{
    Value node = gateway("new", {str("VOR2.RectNode")});
    auto shift = [&] {
        QTransform t = BindingRegistry::instance().find(node.id()).node.getTransform().toQTransform();
        return std::vector<double>{t.dx(), t.dy()};
    };
    // translate(delta) and translate(dx, dy): the count picks the list.
    gateway("call", {str("VOR2.RectNode"), node, str("translate"), Value::row({1, 2})});
    gateway("call", {str("VOR2.RectNode"), node, str("translate"), Value::scalar(3), Value::scalar(4)});
    EXPECT_EQ(shift(), (std::vector<double>{4, 6}));
    EXPECT_EQ(errorOf([&] { gateway("call", {str("VOR2.Node"), node, str("translate")}); }),
              std::make_pair(std::string("VOR2:WrongArgumentCount"),
                             std::string("translate takes translate(delta) or translate(dx, dy), not 0 argument(s)")));
    // A bad argument changes nothing, even where a second one was good.
    EXPECT_EQ(errorOf([&] {
                  gateway("call", {str("VOR2.Node"), node, str("translate"), Value::scalar(1), str("x")});
              }).first,
              "VOR2:WrongType");
    EXPECT_EQ(shift(), (std::vector<double>{4, 6}));
}
