// The move tool on one thread: which nodes a move takes, the arrow keys'
// nudge, and the client's switch. The drag runs through a real canvas in
// tests/widget.

#include <KeyEvent>
#include <MouseEvent>
#include <MoveSelectionTool>

#include "support/RecordingTool.h"
#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

namespace {

using P = GLOX::GLPoint<double>;

MouseEvent mouse(EventType type, P p)
{
    return MouseEvent(type, nullptr, p, p, p, 0, Qt::NoButton, {}, {});
}

KeyEvent key(Qt::Key k, Qt::KeyboardModifiers mods = {}, bool repeat = false)
{
    return KeyEvent(EventType::KeyPress, nullptr, k, mods, "", repeat, {});
}

class MoveTool : public SceneTest {
protected:
    void SetUp() override
    {
        SceneTest::SetUp();
        scene->useMoveSelectionTool();
        tool = dynamic_cast<MoveSelectionTool *>(scene->getToolByRole(SelectionTool::staticGetDefaultRole()));
        a = movable(0, 0);
        b = movable(100, 0);
        c = movable(200, 0);
    }
    RectNode movable(double x, double y)
    {
        RectNode n = added(rect(0, 0, 50, 50));
        n.setPosition({x, y});
        n.setSelectable(true);
        n.setMovable(true);
        return n;
    }
    void press(Qt::Key k, Qt::KeyboardModifiers mods = {}, bool repeat = false)
    {
        KeyEvent e = key(k, mods, repeat);
        scene->handleKeyPressEvent(e);
    }

    MoveSelectionTool *tool = nullptr;
    RectNode a, b, c;
};

} // namespace

TEST(NudgeOffset, IsOneUnitOrTenWithShiftAlongTheArrow)
{
    EXPECT_EQ(nudgeOffset(Qt::Key_Left, {}), P(-1, 0));
    EXPECT_EQ(nudgeOffset(Qt::Key_Right, {}), P(1, 0));
    EXPECT_EQ(nudgeOffset(Qt::Key_Up, {}), P(0, -1));
    EXPECT_EQ(nudgeOffset(Qt::Key_Down, Qt::ShiftModifier), P(0, 10));
    EXPECT_EQ(nudgeOffset(Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier), P(-10, 0));
    EXPECT_EQ(nudgeOffset(Qt::Key_A, Qt::ShiftModifier), P(0, 0));
}

TEST_F(MoveTool, TakesTheSelectionToolsPlaceAndKeepsItsRole)
{
    GLOX::Holder<Scene> plain = Scene::createScene();
    GLOX::Holder<RecordingTool> above(new RecordingTool("above"));
    plain->addTool(above.get());
    Tool *before = plain->getToolByRole(SelectionTool::staticGetDefaultRole());
    plain->useMoveSelectionTool();
    Tool *after = plain->getToolByRole(SelectionTool::staticGetDefaultRole());
    EXPECT_NE(after, before);
    EXPECT_NE(dynamic_cast<MoveSelectionTool *>(after), nullptr);
    MouseEvent probe = mouse(EventType::MouseMove, {0, 0});
    above->consumes = true;
    plain->handleMouseMoveEvent(probe);
    EXPECT_EQ(above->typesSeen().size(), 1u) << "the tool added on top stays on top";
    EXPECT_NE(tool, nullptr);
}

TEST_F(MoveTool, MovesTheSelectedMovableNodesButNotAChildWhoseParentMoves)
{
    RectNode child = rect(0, 0, 5, 5);
    child.setPosition({10, 10});
    child.setParent(a);
    child.setSelectable(true);
    child.setMovable(true);
    RectNode fixed = added(rect(0, 0, 50, 50));
    fixed.setPosition({300, 0});
    fixed.setSelectable(true);
    for (Node n : {Node(a), Node(b), Node(child), Node(fixed)}) n.setSelected(true);
    GLOX::GList<Node> moved = tool->nodesToMove();
    EXPECT_EQ(moved.size(), 2);
    EXPECT_TRUE(moved.contains(a) && moved.contains(b));

    press(Qt::Key_Right);
    press(Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(a.getScenePosition(), P(1, 10));
    EXPECT_EQ(b.getScenePosition(), P(101, 10));
    EXPECT_EQ(child.getScenePosition(), P(11, 20)) << "carried by its parent, once";
    EXPECT_EQ(fixed.getScenePosition(), P(300, 0));
    EXPECT_EQ(c.getScenePosition(), P(200, 0)) << "not selected";
    press(Qt::Key_Right, {}, true);
    EXPECT_EQ(a.getScenePosition(), P(2, 10)) << "a held arrow repeats";
    child.unparent();
}
