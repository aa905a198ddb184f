// The selection tool's state table, driven by synthetic events through a
// scene's tool stack on one thread: which row each press leads to, what it
// does to the selection and when, and what a move, a release and a key do
// in each row.

#include <Behavior>
#include <KeyEvent>
#include <MarqueeSelectionTool>
#include <SelectionTool>
#include <ToolConstructor>

#include "support/RecordingTool.h"
#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

namespace {

using P = GLOX::GLPoint<double>;

// Without a canvas, a widget position is also the scene position.
MouseEvent mouse(EventType type, P p, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers mods = {})
{
    return MouseEvent(type, nullptr, p, p, p, 0, button, button, mods);
}

KeyEvent key(Qt::Key k, Qt::KeyboardModifiers mods = {})
{
    return KeyEvent(EventType::KeyPress, nullptr, k, mods, "", false, {});
}

// Stands in for the pan tool, which a middle press and Space ask for.
struct PanStandIn : BaseToolConstructor {
    GLOX::StringID getRole() const override { return "PanZoomTool"; }
    GLOX::Holder<Tool> createTool() const override { return GLOX::Holder<Tool>(new RecordingTool("PanZoomTool")); }
};

// Counts the calls of the move hooks.
struct CountingSelectionTool : SelectionTool {
    using SelectionTool::SelectionTool;
    int mouseMoves = 0, keyMoves = 0;
    void invokeMoveTool(MouseEvent &) override { ++mouseMoves; }
    void invokeMoveTool(KeyEvent &) override { ++keyMoves; }
};

class SelectionToolTable : public SceneTest {
protected:
    void SetUp() override
    {
        SceneTest::SetUp();
        scene->addToolConstructor(new PanStandIn);
        tool = new CountingSelectionTool(scene.get());
        scene->addTool(tool.get());
        free = node(0, 0, true, true);
        selectOnly = node(100, 0, true, false);
        moveOnly = node(200, 0, false, true);
        other = node(300, 0, true, true);
    }
    void TearDown() override
    {
        tool.reset();
        SceneTest::TearDown();
    }

    RectNode node(double x, double y, bool selectable, bool movable)
    {
        RectNode n = added(rect(x, y, 50, 50));
        n.setSelectable(selectable);
        n.setMovable(movable);
        return n;
    }
    void press(P p, Qt::MouseButton b = Qt::LeftButton, Qt::KeyboardModifiers m = {})
    {
        MouseEvent e = mouse(EventType::MousePress, p, b, m);
        scene->handleMousePressEvent(e);
    }
    void move(P p, Qt::MouseButton b = Qt::NoButton)
    {
        MouseEvent e = mouse(EventType::MouseMove, p, b);
        scene->handleMouseMoveEvent(e);
    }
    void release(P p, Qt::MouseButton b = Qt::LeftButton, Qt::KeyboardModifiers m = {})
    {
        MouseEvent e = mouse(EventType::MouseRelease, p, b, m);
        scene->handleMouseReleaseEvent(e);
    }
    void click(P p, Qt::KeyboardModifiers m = {})
    {
        press(p, Qt::LeftButton, m);
        release(p, Qt::LeftButton, m);
    }
    int row() const { return tool->getStateRow(); }
    std::vector<bool> selected() const
    {
        return {free.isSelected(), selectOnly.isSelected(), moveOnly.isSelected(), other.isSelected()};
    }

    GLOX::Holder<CountingSelectionTool> tool;
    RectNode free, selectOnly, moveOnly, other;
};

} // namespace

TEST_F(SelectionToolTable, EachPressLeadsToTheRowOfWhatItHit)
{
    struct Case {
        P at;
        int row;
    } const cases[] = {{{10, 10}, SelectionTool::OverSelectableMovable},
                       {{110, 10}, SelectionTool::OverSelectable},
                       {{210, 10}, SelectionTool::OverMovable},
                       {{500, 500}, SelectionTool::OverOther}};
    for (Case const &c : cases) {
        press(c.at);
        EXPECT_EQ(row(), c.row) << c.at.x;
        press({10, 10}); // a second press in a gesture is not the tool's
        EXPECT_EQ(row(), c.row);
        release(c.at);
        EXPECT_EQ(row(), SelectionTool::Idle);
    }
}

TEST_F(SelectionToolTable, AMovableNodeIsSelectedAtThePressAndAnOnlySelectableOneAtTheRelease)
{
    other.setSelected(true);
    press({10, 10});
    EXPECT_EQ(selected(), (std::vector<bool>{true, false, false, false})) << "at once, the rest cleared";
    release({10, 10});

    press({110, 10});
    EXPECT_EQ(selected(), (std::vector<bool>{true, false, false, false})) << "nothing yet";
    release({110, 10});
    EXPECT_EQ(selected(), (std::vector<bool>{false, true, false, false}));
}

TEST_F(SelectionToolTable, ADragPastTwoPixelsOnEmptySpaceHandsOverToTheMarquee)
{
    press({500, 500});
    move({501, 501}, Qt::LeftButton);
    EXPECT_EQ(row(), SelectionTool::OverOther) << "(1, 1) is 1.41 pixels";
    EXPECT_EQ(scene->getToolByRole(MarqueeSelectionTool::staticGetDefaultRole()), nullptr);
    move({502, 500}, Qt::LeftButton);
    EXPECT_EQ(row(), SelectionTool::Idle);
    auto *marquee =
        dynamic_cast<MarqueeSelectionTool *>(scene->getToolByRole(MarqueeSelectionTool::staticGetDefaultRole()));
    ASSERT_NE(marquee, nullptr);
    EXPECT_EQ(marquee->getInitialPosition(), P(500, 500)) << "anchored at the press";
    release({502, 500});
    EXPECT_EQ(scene->getToolByRole(MarqueeSelectionTool::staticGetDefaultRole()), nullptr) << "done at the release";
    EXPECT_EQ(row(), SelectionTool::Idle);
}

TEST_F(SelectionToolTable, ALeftDragOfAMovableNodeNeedsTheThresholdAndARightDragDoesNot)
{
    press({10, 10});
    move({11, 11}, Qt::LeftButton);
    EXPECT_EQ(tool->mouseMoves, 0);
    move({12, 12}, Qt::LeftButton);
    EXPECT_EQ(tool->mouseMoves, 1);
    EXPECT_EQ(row(), SelectionTool::Idle);
    release({12, 12});

    press({210, 10}, Qt::RightButton);
    move({210, 10}, Qt::RightButton);
    EXPECT_EQ(tool->mouseMoves, 2) << "a right press moves at the first move";
    EXPECT_EQ(row(), SelectionTool::Idle) << "so the release opens no menu";

    press({110, 10}, Qt::RightButton);
    move({130, 10}, Qt::RightButton);
    EXPECT_EQ(row(), SelectionTool::OverSelectable) << "a right drag on a node that only selects does nothing";
    EXPECT_EQ(tool->mouseMoves, 2);
    release({130, 10}, Qt::RightButton);
    EXPECT_EQ(row(), SelectionTool::Idle);
}

TEST_F(SelectionToolTable, AReleaseOfAnotherButtonLeavesTheGestureOn)
{
    press({110, 10});
    press({110, 10}, Qt::RightButton);
    release({110, 10}, Qt::RightButton);
    EXPECT_EQ(row(), SelectionTool::OverSelectable);
    EXPECT_FALSE(selectOnly.isSelected());
    release({110, 10});
    EXPECT_EQ(row(), SelectionTool::Idle);
    EXPECT_TRUE(selectOnly.isSelected());
}

TEST_F(SelectionToolTable, TheMiddleButtonAndSpaceGoToThePanToolAndTheArrowsToTheMoveHook)
{
    free.setSelected(true);
    press({10, 10}, Qt::MiddleButton);
    auto *pan = dynamic_cast<RecordingTool *>(scene->getToolByRole("PanZoomTool"));
    ASSERT_NE(pan, nullptr);
    EXPECT_EQ(pan->typesSeen(), std::vector<EventType>{EventType::MousePress});
    EXPECT_EQ(row(), SelectionTool::Idle);
    EXPECT_TRUE(free.isSelected()) << "a middle press selects nothing";
    scene->removeTool(pan);

    KeyEvent space = key(Qt::Key_Space);
    tool->handleKeyPressEvent(space);
    pan = dynamic_cast<RecordingTool *>(scene->getToolByRole("PanZoomTool"));
    ASSERT_NE(pan, nullptr);
    EXPECT_EQ(pan->typesSeen(), std::vector<EventType>{EventType::KeyPress});

    for (Qt::Key k : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_A}) {
        KeyEvent e = key(k);
        tool->handleKeyPressEvent(e);
    }
    EXPECT_EQ(tool->keyMoves, 4);

    press({500, 500});
    KeyEvent up = key(Qt::Key_Up);
    tool->handleKeyPressEvent(up);
    EXPECT_EQ(tool->keyMoves, 4) << "keys mean nothing during a gesture";
    release({500, 500});
}

TEST_F(SelectionToolTable, AContextMenuDuringAGestureEndsIt)
{
    press({10, 10});
    ContextMenuEvent menu(EventType::ContextMenu);
    tool->state().handleContextMenuEvent(menu);
    EXPECT_EQ(row(), SelectionTool::Idle);
}

TEST_F(SelectionToolTable, ABehaviourThatConsumesThePressKeepsTheToolIdle)
{
    struct Consuming : Behavior {
        int presses = 0;
        void handleMousePressEvent(MouseEvent &e) override
        {
            ++presses;
            e.consume();
        }
    };
    GLOX::Holder<Consuming> behavior(new Consuming);
    RectNode handle = node(400, 0, false, false);
    handle.setBehavior(behavior.get());
    free.setSelected(true);
    press({410, 10});
    EXPECT_EQ(behavior->presses, 1);
    EXPECT_TRUE(scene->hasTool(behavior.get()));
    EXPECT_EQ(row(), SelectionTool::Idle);
    EXPECT_TRUE(free.isSelected()) << "the press went no further";
    handle.clearBehavior();
}

TEST_F(SelectionToolTable, APressOnAChildThatHandlesNothingBelongsToItsParent)
{
    RectNode child = rect(10, 10, 10, 10);
    child.setParent(free);
    EXPECT_FALSE(child.isSelectable());
    press({15, 15});
    EXPECT_EQ(row(), SelectionTool::OverSelectableMovable);
    EXPECT_TRUE(free.isSelected());
    release({15, 15});
    child.unparent();
}
