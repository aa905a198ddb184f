// The tool stack: order, consumption, roles, replacement in place, tools
// that finish, auto-repeated keys, the cursor opinion, and the factory.

#include <GLCanvas>
#include <Scene>
#include <ToolFactory>
#include <ToolStack>
#include <ToolState>

#include "GLUV/Listener.h"
#include "scene/ScenePrivate.h"
#include "support/RecordingTool.h"

#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;

namespace {

MouseEvent press(GLCanvas *canvas = nullptr)
{
    return MouseEvent(EventType::MousePress, canvas, {}, {5, 5}, {}, 0, Qt::LeftButton, Qt::LeftButton, {});
}

KeyEvent key(bool autoRepeat) { return KeyEvent(EventType::KeyPress, nullptr, Qt::Key_A, {}, "a", autoRepeat, {}); }

struct Stack {
    EventLog log = std::make_shared<std::vector<RecordedEvent>>();
    ToolStack stack;
    // Added bottom first: the last is on top.
    GLOX::Holder<RecordingTool> add(std::string const &name)
    {
        GLOX::Holder<RecordingTool> tool(new RecordingTool(name, log));
        stack.addTool(tool.get());
        return tool;
    }
    std::vector<std::string> names() const
    {
        std::vector<std::string> out;
        for (Tool *t : stack.getTools()) out.push_back(static_cast<RecordingTool *>(t)->name);
        return out;
    }
    std::vector<std::string> offered() const
    {
        std::vector<std::string> out;
        for (RecordedEvent const &r : *log) out.push_back(r.tool);
        return out;
    }
};

} // namespace

TEST(ToolStack, OffersEventsFromTheTopUntilOneConsumes)
{
    Stack s;
    auto bottom = s.add("bottom");
    auto middle = s.add("middle");
    auto top = s.add("top");
    EXPECT_EQ(s.names(), (std::vector<std::string>{"top", "middle", "bottom"}));
    MouseEvent e = press();
    s.stack.handleMousePressEvent(e);
    EXPECT_EQ(s.offered(), (std::vector<std::string>{"top", "middle", "bottom"}));

    s.log->clear();
    middle->consumes = true;
    MouseEvent again = press();
    s.stack.handleMousePressEvent(again);
    EXPECT_EQ(s.offered(), (std::vector<std::string>{"top", "middle"})) << "consumed: the bottom never sees it";
    EXPECT_EQ(top->added, 1);
    EXPECT_EQ(bottom->removed, 0);
}

TEST(ToolStack, RolesAreUniqueAndReplaceInPlace)
{
    Stack s;
    auto a = s.add("pan");
    auto b = s.add("zoom");
    EXPECT_EQ(s.stack.getUniqueToolRoleBasedOn("select"), GLOX::StringID("select"));
    EXPECT_EQ(s.stack.getUniqueToolRoleBasedOn("pan"), GLOX::StringID("pan2"));
    s.stack.addTool(new RecordingTool("other", s.log), "pan2");
    EXPECT_EQ(s.stack.getUniqueToolRoleBasedOn("pan"), GLOX::StringID("pan3"));
    EXPECT_EQ(s.stack.getToolByRole("zoom"), b.get());
    EXPECT_EQ(s.stack.getRoleByTool(a.get()), GLOX::StringID("pan"));
    EXPECT_EQ(s.stack.getToolByRole("nothing"), nullptr);
    EXPECT_FALSE(s.stack.removeToolByRole("nothing"));
    EXPECT_FALSE(s.stack.removeTool(nullptr));

    // A second tool under a used role takes the first one's place, and the
    // first goes without being told.
    GLOX::Holder<RecordingTool> replacement(new RecordingTool("replacement", s.log));
    unsigned countBefore = a->refCount();
    s.stack.addTool(replacement.get(), "pan");
    EXPECT_EQ(s.names(), (std::vector<std::string>{"other", "zoom", "replacement"}));
    EXPECT_EQ(a->removed, 0);
    EXPECT_EQ(a->refCount(), countBefore - 1) << "the stack let go of the old tool";
    EXPECT_FALSE(s.stack.hasTool(a.get()));
    EXPECT_EQ(s.stack.getToolByRole("pan"), replacement.get());

    EXPECT_TRUE(s.stack.removeToolByRole("zoom"));
    EXPECT_EQ(b->removed, 1);
    EXPECT_EQ(s.stack.getToolByRole("zoom"), nullptr);
    EXPECT_FALSE(s.stack.removeTool(b.get())) << "already gone";
}

TEST(ToolStack, AToolOnTheStackTakesASecondRoleAndGoesToTheTop)
{
    Stack s;
    auto a = s.add("a");
    auto b = s.add("b");
    auto c = s.add("c");
    s.stack.addTool(a.get(), "alias");
    EXPECT_EQ(s.names(), (std::vector<std::string>{"a", "c", "b"})) << "on top, and only there";
    EXPECT_EQ(s.stack.getToolByRole("alias"), a.get());
    EXPECT_EQ(s.stack.getToolByRole("a"), a.get());
    EXPECT_EQ(s.stack.getRoleByTool(a.get()), GLOX::StringID("a")) << "the role it was given first";
    EXPECT_EQ(a->added, 1) << "told once that it joined";

    MouseEvent e = press();
    s.stack.handleMousePressEvent(e);
    EXPECT_EQ(s.offered(), (std::vector<std::string>{"a", "c", "b"})) << "each tool sees an event once";

    // Giving it a role it has already changes nothing.
    s.stack.addTool(a.get(), "a");
    EXPECT_EQ(s.names(), (std::vector<std::string>{"a", "c", "b"}));
    EXPECT_EQ(s.stack.getRoleByTool(a.get()), GLOX::StringID("a"));

    // Either role takes the tool off the stack, with both its roles.
    EXPECT_TRUE(s.stack.removeToolByRole("alias"));
    EXPECT_EQ(a->removed, 1);
    EXPECT_EQ(s.names(), (std::vector<std::string>{"c", "b"}));
    EXPECT_EQ(s.stack.getToolByRole("a"), nullptr);
    EXPECT_EQ(s.stack.getRoleByTool(a.get()), GLOX::StringID());
    EXPECT_FALSE(s.stack.removeToolByRole("a"));
}

TEST(ToolStack, TheFirstRoleStillHeldIsTheOneReported)
{
    // Many roles, so that the answer cannot come from the order of a hash.
    Stack s;
    auto tool = s.add("t");
    std::vector<std::string> roles;
    for (int i = 0; i < 40; ++i) roles.push_back("role" + std::to_string((i * 17) % 40));
    for (std::string const &role : roles) s.stack.addTool(tool.get(), GLOX::StringID(role));
    EXPECT_EQ(s.stack.getRoleByTool(tool.get()), GLOX::StringID("t"));
    EXPECT_TRUE(s.stack.removeTool(tool.get()));
    EXPECT_FALSE(s.stack.hasTool(tool.get()));
    for (std::string const &role : roles) EXPECT_EQ(s.stack.getToolByRole(GLOX::StringID(role)), nullptr) << role;

    s.stack.addTool(tool.get(), GLOX::StringID(roles[7]));
    for (std::string const &role : roles) s.stack.addTool(tool.get(), GLOX::StringID(role));
    EXPECT_EQ(s.stack.getRoleByTool(tool.get()), GLOX::StringID(roles[7])) << "back with new roles";
    EXPECT_EQ(tool->added, 2);
}

TEST(ToolStack, ASecondRoleHeldByAnotherToolTakesThatToolsPlace)
{
    Stack s;
    auto bottom = s.add("bottom");
    auto middle = s.add("middle");
    auto top = s.add("top");
    s.stack.addTool(middle.get(), "extra");
    ASSERT_EQ(s.names(), (std::vector<std::string>{"middle", "top", "bottom"}));

    // From below: the tool moves up into the place of the role's tool,
    // which leaves the stack and is not told.
    s.stack.addTool(bottom.get(), "top");
    EXPECT_EQ(s.names(), (std::vector<std::string>{"middle", "bottom"}));
    EXPECT_FALSE(s.stack.hasTool(top.get()));
    EXPECT_EQ(top->removed, 0);
    EXPECT_EQ(top->refCount(), 1u) << "the stack let go of it";
    EXPECT_EQ(s.stack.getToolByRole("top"), bottom.get());
    EXPECT_EQ(s.stack.getRoleByTool(bottom.get()), GLOX::StringID("bottom"));

    // From above: the tool stays where it is, and the other one is gone
    // with all of its roles.
    s.stack.addTool(middle.get(), "top");
    EXPECT_EQ(s.names(), std::vector<std::string>{"middle"});
    EXPECT_EQ(s.stack.getToolByRole("bottom"), nullptr) << "no role points at a tool off the stack";
    EXPECT_EQ(s.stack.getToolByRole("top"), middle.get());
    EXPECT_EQ(s.stack.getToolByRole("extra"), middle.get());
    EXPECT_EQ(s.stack.getRoleByTool(middle.get()), GLOX::StringID("middle"));
    EXPECT_EQ(bottom->refCount(), 1u);
    EXPECT_EQ(middle->added, 1);
    EXPECT_EQ(bottom->removed, 0);
}

namespace {
// A tool whose state table row names a different member for each event,
// so that a row read in the wrong order shows.
struct Machine : RecordingTool {
    using State = CallbackToolState<Machine>;
    Machine()
        : RecordingTool("machine"),
          full(*this, State::Row{&Machine::pressed, &Machine::moved, &Machine::released, &Machine::keyPressed,
                                 &Machine::keyReleased, &Machine::menu}),
          pressOnly(*this, State::Row{&Machine::pressed})
    {
    }
    void pressed(MouseEvent &) { calls.push_back("press"); }
    void moved(MouseEvent &) { calls.push_back("move"); }
    void released(MouseEvent &) { calls.push_back("release"); }
    void keyPressed(KeyEvent &) { calls.push_back("keyPress"); }
    void keyReleased(KeyEvent &) { calls.push_back("keyRelease"); }
    void menu(ContextMenuEvent &) { calls.push_back("menu"); }

    // Feeds one event of each kind through a state.
    void runAll(ToolState const &state)
    {
        MouseEvent p = press();
        MouseEvent m(EventType::MouseMove, nullptr, {}, {6, 6}, {}, 0, Qt::NoButton, Qt::LeftButton, {});
        MouseEvent r(EventType::MouseRelease, nullptr, {}, {6, 6}, {}, 0, Qt::LeftButton, Qt::NoButton, {});
        KeyEvent kp = key(false);
        KeyEvent kr(EventType::KeyRelease, nullptr, Qt::Key_A, {}, "a", false, {});
        ContextMenuEvent c(EventType::ContextMenu);
        state.handleMousePressEvent(p);
        state.handleMouseMoveEvent(m);
        state.handleMouseReleaseEvent(r);
        state.handleKeyPressEvent(kp);
        state.handleKeyReleaseEvent(kr);
        state.handleContextMenuEvent(c);
    }

    State full;
    State pressOnly;
    std::vector<std::string> calls;
};
} // namespace

TEST(ToolState, ARowIsPressMoveReleaseThenKeysAndMenu)
{
    GLOX::Holder<Machine> machine(new Machine);
    machine->runAll(machine->full);
    EXPECT_EQ(machine->calls,
              (std::vector<std::string>{"press", "move", "release", "keyPress", "keyRelease", "menu"}));
    EXPECT_EQ(&machine->full.tool(), machine.get());

    machine->calls.clear();
    machine->runAll(machine->pressOnly);
    EXPECT_EQ(machine->calls, std::vector<std::string>{"press"}) << "empty entries ignore their events";

    ToolState plain(*machine);
    machine->calls.clear();
    machine->runAll(plain);
    EXPECT_TRUE(machine->calls.empty());
}

TEST(ToolStack, AToolThatFinishesLeavesAfterTheEvent)
{
    Stack s;
    auto stays = s.add("stays");
    auto finishes = s.add("finishes");
    finishes->doneAfter = 1;
    GLUV::Listener listener;
    int removedSignals = 0;
    finishes->toolRemoved.connect(&listener, [&] { ++removedSignals; });
    MouseEvent e = press();
    s.stack.handleMousePressEvent(e);
    EXPECT_EQ(s.names(), std::vector<std::string>{"stays"});
    EXPECT_EQ(finishes->removed, 1);
    EXPECT_EQ(removedSignals, 1);
    EXPECT_EQ(s.stack.getToolByRole("finishes"), nullptr);
}

TEST(ToolStack, AutoRepeatedKeysPassToolsThatDoNotWantThem)
{
    Stack s;
    auto wants = s.add("wants");
    auto finished = s.add("finished");
    auto plain = s.add("plain");
    wants->wantsAutoRepeat = true;
    finished->doneAfter = 0; // done already: it still leaves after this event
    KeyEvent repeated = key(true);
    s.stack.handleKeyPressEvent(repeated);
    EXPECT_EQ(s.offered(), std::vector<std::string>{"wants"}) << "the loop ran to the end";
    EXPECT_EQ(s.names(), (std::vector<std::string>{"plain", "wants"}));
    KeyEvent fresh = key(false);
    s.stack.handleKeyPressEvent(fresh);
    EXPECT_EQ(plain->typesSeen().size(), 1u);
}

TEST(ToolStack, TheTopmostLiveToolWithACursorNamesTheScenesCursor)
{
    auto scene = Scene::createScene();
    GLCanvas canvas;
    canvas.setScene(scene.get());
    GLUV::Listener listener;
    int changes = 0;
    scene->getPrivate()->toolOverrideCursorChanged.connect(&listener, [&] { ++changes; });

    GLOX::Holder<RecordingTool> lower(new RecordingTool("lower")), upper(new RecordingTool("upper"));
    scene->addTool(lower.get());
    scene->addTool(upper.get());
    lower->cursor = GLOX::Cursor(Qt::CrossCursor);
    upper->cursor = GLOX::Cursor(Qt::OpenHandCursor);
    upper->doneAfter = 5; // alive: its opinion wins
    MouseEvent e = press(&canvas);
    ASSERT_EQ(e.scene(), scene.get());
    scene->handleMousePressEvent(e);
    EXPECT_TRUE(scene->hasToolOverrideCursor());
    EXPECT_EQ(scene->getToolOverrideCursor(), GLOX::Cursor(Qt::OpenHandCursor));
    EXPECT_EQ(changes, 1);

    upper->doneAfter = 1; // done by the end of this event: no say
    MouseEvent second = press(&canvas);
    scene->handleMousePressEvent(second);
    EXPECT_EQ(scene->getToolOverrideCursor(), GLOX::Cursor(Qt::CrossCursor));

    lower->cursor.reset();
    MouseEvent third = press(&canvas);
    scene->handleMousePressEvent(third);
    EXPECT_FALSE(scene->hasToolOverrideCursor()) << "nobody has an opinion";
    EXPECT_EQ(changes, 3);

    // A tool that hands the event to a sub-tool gives it a say over the cursor.
    struct Delegating : RecordingTool {
        Delegating(Scene *s, Tool *t) : RecordingTool("delegating"), scene(s), sub(t) {}
        void handleMousePressEvent(MouseEvent &e) override { scene->delegateToTool(sub, e); }
        Scene *scene;
        Tool *sub;
    };
    GLOX::Holder<RecordingTool> sub(new RecordingTool("sub"));
    sub->cursor = GLOX::Cursor(Qt::SizeAllCursor);
    scene->addTool(new Delegating(scene.get(), sub.get()));
    MouseEvent fourth = press(&canvas);
    scene->handleMousePressEvent(fourth);
    EXPECT_EQ(sub->typesSeen(), std::vector<EventType>{EventType::MousePress});
    EXPECT_EQ(scene->getToolOverrideCursor(), GLOX::Cursor(Qt::SizeAllCursor));
}

TEST(ToolStack, ClearingTellsEveryToolTopDown)
{
    Stack s;
    auto a = s.add("a");
    auto b = s.add("b");
    std::vector<std::string> order;
    GLUV::Listener listener;
    a->toolRemoved.connect(&listener, [&] { order.push_back("a"); });
    b->toolRemoved.connect(&listener, [&] { order.push_back("b"); });
    s.stack.clearToolStack();
    EXPECT_EQ(order, (std::vector<std::string>{"b", "a"}));
    EXPECT_EQ(a->removed + b->removed, 2);
    EXPECT_TRUE(s.stack.getTools().isEmpty());
    EXPECT_EQ(s.stack.getToolByRole("a"), nullptr);
}

namespace {
struct SceneTool : RecordingTool {
    explicit SceneTool(Scene *s) : RecordingTool("SceneTool"), scene(s) {}
    static GLOX::StringID staticGetDefaultRole() { return "SceneTool"; }
    Scene *scene;
};
struct NewerSceneTool : SceneTool {
    using SceneTool::SceneTool;
};
} // namespace

TEST(ToolFactory, MakesToolsByRoleAndTheNewestConstructorWins)
{
    auto scene = Scene::createScene();
    EXPECT_FALSE(scene->getToolFactory().createTool("SceneTool"));
    EXPECT_EQ(scene->addToolByRole("SceneTool"), nullptr) << "unknown role";

    scene->addToolConstructor(new ToolConstructor<SceneTool, Scene *>(scene.get()));
    GLOX::Holder<Tool> made = scene->getToolFactory().createTool("SceneTool");
    ASSERT_TRUE(made);
    EXPECT_EQ(static_cast<SceneTool *>(made.get())->scene, scene.get()) << "the argument reaches the tool";
    EXPECT_EQ(made->refCount(), 1u);

    scene->addToolConstructor(new ToolConstructor<NewerSceneTool, Scene *>(scene.get()));
    Tool *added = scene->addToolByRole("SceneTool");
    ASSERT_NE(added, nullptr);
    EXPECT_NE(dynamic_cast<NewerSceneTool *>(added), nullptr);
    EXPECT_EQ(scene->getToolByRole("SceneTool"), added);
}

TEST(ToolStack, ChangesMadeWhileToolsWorkAreSafe)
{
    Stack s;
    auto twice = s.add("twice");
    s.stack.addTool(twice.get(), "alias");
    EXPECT_EQ(s.names(), std::vector<std::string>{"twice"}) << "a tool is on the stack once";
    EXPECT_EQ(twice->added, 1);

    // A finishing tool that takes another finished one with it: each told once.
    struct TakesAlong : RecordingTool {
        using RecordingTool::RecordingTool;
        ToolStack *stack = nullptr;
        Tool *other = nullptr;
        void onRemoveFromStack() override
        {
            RecordingTool::onRemoveFromStack();
            stack->removeTool(other);
        }
    };
    auto other = s.add("other");
    GLOX::Holder<TakesAlong> leader(new TakesAlong("leader", s.log));
    leader->stack = &s.stack;
    leader->other = other.get();
    s.stack.addTool(leader.get());
    leader->doneAfter = other->doneAfter = 1;
    MouseEvent e = press();
    s.stack.handleMousePressEvent(e);
    EXPECT_EQ(leader->removed, 1);
    EXPECT_EQ(other->removed, 1);
    EXPECT_EQ(s.names(), std::vector<std::string>{"twice"});
}
