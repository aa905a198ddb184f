// VOR2.Viewer and VOR2.Canvas through the gateway, without the script host:
// who ends a script's viewer, and what its values do once it has ended. No
// GUI thread runs here: the windows are headless.
#include "Error"
#include "GLCanvas"
#include "Scene"
#include "Viewer"
#include "binding/BindingRegistry.h"
#include "binding/Gateway.h"
#include "binding/ScriptError.h"

#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::script;

namespace {

Value str(char const *s) { return Value::string(s); }

Value get(char const *cls, Value const &target, char const *property)
{
    return gateway("get", {str(cls), target, str(property)});
}

void set(char const *cls, Value const &target, char const *property, Value const &v)
{
    gateway("set", {str(cls), target, str(property), v});
}

Value call(char const *cls, Value const &target, char const *method, std::vector<Value> args = {})
{
    std::vector<Value> all{str(cls), target, str(method)};
    all.insert(all.end(), args.begin(), args.end());
    Value out = gateway("call", all);
    return out.items().empty() ? Value() : out.items()[0];
}

void release(Value const &handle) { gateway("release", {Value::scalar(double(handle.id()))}); }

// The id of a handle a getter hands out, whose script object then goes at
// once, as an Octave temporary does.
std::uint64_t idOf(Value const &handle)
{
    if (handle.id() != 0) release(handle);
    return handle.id();
}

std::string errorIdOf(std::function<void()> const &f)
{
    try {
        f();
    } catch (ScriptError const &e) {
        return e.id();
    } catch (VOR2::Error const &e) {
        return e.id();
    }
    return "";
}

struct ViewerBinding : ::testing::Test {
    Value scene = gateway("new", {str("VOR2.Scene")});
    void TearDown() override
    {
        Viewer::closeOpenViewers();
        release(scene);
    }
};

} // namespace

TEST_F(ViewerBinding, AViewerShowsItsSceneAndItsCanvasIsOneObject)
{
    Value viewer = gateway("new", {str("VOR2.Viewer"), scene});
    EXPECT_EQ(viewer.className(), "VOR2.Viewer");
    EXPECT_EQ(idOf(get("VOR2.Viewer", viewer, "Scene")), scene.id()) << "the scene's own entry";
    Value canvas = get("VOR2.Viewer", viewer, "Canvas");
    EXPECT_EQ(canvas.className(), "VOR2.Canvas");
    EXPECT_EQ(idOf(get("VOR2.Viewer", viewer, "Canvas")), canvas.id());
    EXPECT_EQ(idOf(get("VOR2.Canvas", canvas, "Scene")), scene.id());

    EXPECT_EQ(errorIdOf([&] { set("VOR2.Viewer", viewer, "Canvas", canvas); }), "VOR2:ReadOnly");
    set("VOR2.Viewer", viewer, "Scene", Value::row({}));
    EXPECT_EQ(idOf(get("VOR2.Canvas", canvas, "Scene")), 0u) << "no scene: the empty value";
    EXPECT_EQ(errorIdOf([&] { set("VOR2.Viewer", viewer, "Scene", canvas); }), "VOR2:WrongType");
    release(canvas);
    release(viewer);
}

TEST_F(ViewerBinding, CanvasViewAndLayersAnswerAndABadValueChangesNothing)
{
    Value viewer = gateway("new", {str("VOR2.Viewer"), scene});
    Value canvas = get("VOR2.Viewer", viewer, "Canvas");
    // Headless, the canvas has no view to zoom (the Octave tests zoom a shown one).
    EXPECT_EQ(get("VOR2.Canvas", canvas, "Scale").numbers(), std::vector<double>{1});
    EXPECT_EQ(errorIdOf([&] { set("VOR2.Canvas", canvas, "Scale", str("big")); }), "VOR2:WrongType");

    set("VOR2.Canvas", canvas, "Margins", Value::row({1, 2, 3, 4}));
    EXPECT_EQ(get("VOR2.Canvas", canvas, "Margins").numbers(), (std::vector<double>{1, 2, 3, 4}));
    EXPECT_EQ(errorIdOf([&] { set("VOR2.Canvas", canvas, "Margins", Value::row({1, 2})); }), "DRect:InvalidValue");

    Value node = gateway("new", {str("VOR2.RectNode"), Value::row({0, 0, 1000, 1000})});
    idOf(call("VOR2.Scene", scene, "addNode", {node}));
    Value p0 = call("VOR2.Canvas", canvas, "scenePointToViewPoint", {Value::row({10, 0})});
    call("VOR2.Canvas", canvas, "translate", {Value::scalar(10), Value::scalar(0)});
    Value p1 = call("VOR2.Canvas", canvas, "scenePointToViewPoint", {Value::row({10, 0})});
    EXPECT_NE(p1.numbers()[0], p0.numbers()[0]) << "scrolled";
    EXPECT_EQ(p1.numbers()[1], p0.numbers()[1]);
    call("VOR2.Canvas", canvas, "translate", {Value::row({-10, 0})});
    EXPECT_EQ(call("VOR2.Canvas", canvas, "scenePointToViewPoint", {Value::row({10, 0})}).numbers(), p0.numbers())
        << "the one-vector overload scrolls back";
    Value back = call("VOR2.Canvas", canvas, "viewPointToScenePoint", {p0});
    EXPECT_NEAR(back.numbers()[0], 10, 1e-9);
    release(node);

    Value other = gateway("new", {str("VOR2.Scene")});
    EXPECT_EQ(call("VOR2.Canvas", canvas, "appendScene", {other}).numbers(), std::vector<double>{1});
    call("VOR2.Canvas", canvas, "insertScene", {Value::scalar(1), other});
    EXPECT_EQ(call("VOR2.Canvas", canvas, "sceneCount").numbers(), std::vector<double>{3});
    EXPECT_EQ(errorIdOf([&] { call("VOR2.Canvas", canvas, "insertScene", {Value::scalar(9), other}); }),
              "VOR2:WrongType");
    call("VOR2.Canvas", canvas, "removeScene", {Value::scalar(2)});
    call("VOR2.Canvas", canvas, "removeScene", {other});
    EXPECT_EQ(call("VOR2.Canvas", canvas, "sceneCount").numbers(), std::vector<double>{1});
    EXPECT_EQ(idOf(get("VOR2.Canvas", canvas, "Scene")), scene.id()) << "the base layer stays";
    call("VOR2.Canvas", canvas, "removeAllScenes");
    EXPECT_EQ(call("VOR2.Canvas", canvas, "sceneCount").numbers(), std::vector<double>{0});
    release(other);
    release(canvas);
    release(viewer);
}

TEST_F(ViewerBinding, AHiddenViewerEndsWithItsLastValueAndItsCanvasValueFailsCleanly)
{
    Value viewer = gateway("new", {str("VOR2.Viewer"), scene});
    Value canvas = get("VOR2.Viewer", viewer, "Canvas");
    release(viewer);
    EXPECT_EQ(errorIdOf([&] { get("VOR2.Canvas", canvas, "Scale"); }), "VOR2:InvalidObject");
    release(canvas);
}

TEST_F(ViewerBinding, AnOpenViewerOutlivesItsValuesUntilItCloses)
{
    Value viewer = gateway("new", {str("VOR2.Viewer")});
    call("VOR2.Viewer", viewer, "showAt", {Value::row({0, 0, 100, 80})});
    Value canvas = get("VOR2.Viewer", viewer, "Canvas");
    release(viewer);
    ASSERT_EQ(Viewer::openViewers().size(), 1u);
    EXPECT_EQ(get("VOR2.Canvas", canvas, "Scale").numbers(), std::vector<double>{1}) << "still alive";

    Viewer::closeOpenViewers();
    EXPECT_TRUE(Viewer::openViewers().empty());
    EXPECT_EQ(errorIdOf([&] { get("VOR2.Canvas", canvas, "Scale"); }), "VOR2:InvalidObject") << "closed, it ended";
    release(canvas);
}

TEST_F(ViewerBinding, AViewerEndedByItsOwnerLeavesValuesThatFailCleanly)
{
    auto *viewer = new Viewer;
    Value v = BindingRegistry::instance().announceOwned(viewer, "VOR2.Viewer");
    Value canvas = get("VOR2.Viewer", v, "Canvas");
    std::size_t entries = BindingRegistry::instance().size();
    delete viewer;
    EXPECT_EQ(BindingRegistry::instance().size(), entries) << "the entries stay for their script objects";
    EXPECT_EQ(errorIdOf([&] { call("VOR2.Viewer", v, "show"); }), "VOR2:InvalidObject");
    EXPECT_EQ(errorIdOf([&] { get("VOR2.Canvas", canvas, "Scene"); }), "VOR2:InvalidObject");
    release(v);
    release(canvas);
    EXPECT_EQ(BindingRegistry::instance().size(), entries - 2);
}
