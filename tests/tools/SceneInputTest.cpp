// A scene's input: hover on nodes, the pass* operations tools use, and
// behaviours that leave the stack with their nodes.

#include <Behavior>

#include "GLUV/Listener.h"
#include "scene/NodeEmitterTable.h"
#include "support/RecordingTool.h"
#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

namespace {

MouseEvent mouseAt(EventType type, GLOX::GLPoint<double> p)
{
    return MouseEvent(type, nullptr, p, p, {}, 0, Qt::NoButton, {}, {});
}

// Records the node's mouse watcher as "name:signal".
struct NodeSignals : GLUV::Listener {
    std::vector<std::string> seen;
    // Adds the node to the scene, then watches it.
    void watchAdded(Scene &scene, Node const &node, std::string const &name)
    {
        scene.addNode(node);
        watch(node, name);
    }
    void watch(Node const &node, std::string const &name)
    {
        auto &table = NodeEmitterTable::instance();
        std::pair<NodeEmitterTable::MouseSignal, char const *> const signalNames[] = {
            {NodeEmitterTable::HoverEnter, "enter"}, {NodeEmitterTable::HoverMove, "move"},
            {NodeEmitterTable::HoverExit, "exit"},   {NodeEmitterTable::MousePress, "press"},
            {NodeEmitterTable::MouseMove, "drag"},   {NodeEmitterTable::MouseRelease, "release"}};
        for (auto [which, label] : signalNames) {
            std::string entry = name + ":" + label;
            table.mouse(which, node.getImpl(), true)->connect(this, [this, entry](MouseEvent &) {
                seen.push_back(entry);
            });
        }
    }
};

} // namespace

using SceneInput = SceneTest;

TEST_F(SceneInput, MovesHoverTheTopmostNodeAndLeavingTheCanvasEndsIt)
{
    RectNode a = rect(0, 0, 50, 50), b = rect(100, 0, 50, 50);
    NodeSignals watcher;
    watcher.watchAdded(*scene, a, "a");
    watcher.watchAdded(*scene, b, "b");
    // The scene alone: the default selection tool would pass moves on.
    scene->clearToolStack();
    GLOX::Holder<RecordingTool> tool(new RecordingTool("t"));
    scene->addTool(tool.get());

    for (GLOX::GLPoint<double> p : {GLOX::GLPoint<double>(10, 10), {20, 20}, {110, 10}, {300, 300}, {20, 20}}) {
        MouseEvent move = mouseAt(EventType::MouseMove, p);
        scene->handleMouseMoveEvent(move);
    }
    WidgetEvent leave(EventType::LeaveCanvas);
    scene->handleLeaveCanvasEvent(leave);
    EXPECT_EQ(watcher.seen, (std::vector<std::string>{"a:enter", "a:move", "a:exit", "b:enter", "b:exit", "a:enter",
                                                      "a:exit"}));
    EXPECT_FALSE(scene->getPrivate()->getHoveredNode().isValid());
    EXPECT_EQ(tool->typesSeen().size(), 6u) << "the tools get every event; nodes get none of them";

    WidgetEvent leaveAgain(EventType::LeaveCanvas);
    scene->handleLeaveCanvasEvent(leaveAgain);
    EXPECT_EQ(watcher.seen.size(), 7u) << "no hovered node: no exit";
    a.remove();
    b.remove();
}

TEST_F(SceneInput, ToolsPassMouseEventsToTheNodeUnderThePointer)
{
    RectNode below = rect(0, 0, 50, 50), above = rect(10, 10, 20, 20);
    NodeSignals watcher;
    watcher.watchAdded(*scene, below, "below");
    watcher.watchAdded(*scene, above, "above");
    MouseEvent press = mouseAt(EventType::MousePress, {15, 15});
    MouseEvent drag = mouseAt(EventType::MouseMove, {40, 40});
    MouseEvent release = mouseAt(EventType::MouseRelease, {400, 400});
    scene->passMousePressEventToNode(press);
    scene->passMouseMoveEventToNode(drag);
    scene->passMouseReleaseEventToNode(release);
    EXPECT_EQ(watcher.seen, (std::vector<std::string>{"above:press", "below:drag"}));

    // Keys go to a focused text node only; a rectangle never takes them.
    scene->setFocusNode(above);
    KeyEvent key(EventType::KeyPress, nullptr, Qt::Key_A, {}, "a", false, {});
    int keys = 0;
    GLUV::Listener listener;
    NodeEmitterTable::instance().key(NodeEmitterTable::KeyPress, above.getImpl(), true)->connect(&listener, [&](KeyEvent &) { ++keys; });
    scene->passKeyPressEventToNode(key);
    EXPECT_EQ(keys, 0);
    below.remove();
    above.remove();
}

TEST_F(SceneInput, ABehaviourLeavesTheStackWithItsNode)
{
    RectNode node = rect(0, 0, 10, 10);
    scene->addNode(node);
    GLOX::Holder<Behavior> behavior(new Behavior);
    node.setBehavior(behavior.get());
    scene->addTool(behavior.get(), scene->getUniqueToolRoleBasedOn(behavior->getDefaultRole()));
    ASSERT_TRUE(scene->hasTool(behavior.get()));
    EXPECT_EQ(scene->getRoleByTool(behavior.get()), GLOX::StringID("Behavior"));
    scene->removeNode(node);
    EXPECT_FALSE(scene->hasTool(behavior.get()));
    node.clearBehavior();
}
