// The marquee tool in a scene, driven through the tool stack on one thread:
// what a band selects while it is dragged, and what it keeps.

#include <KeyEvent>
#include <MarqueeSelectionTool>
#include <MouseEvent>
#include <SelectionTool>

#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

namespace {

using P = GLOX::GLPoint<double>;

MouseEvent mouse(EventType type, P p, Qt::KeyboardModifiers mods = {})
{
    return MouseEvent(type, nullptr, p, p, p, 0, Qt::LeftButton, Qt::LeftButton, mods);
}

// Records every selection change it is asked for.
struct WatchingSelectionTool : SelectionTool {
    using SelectionTool::SelectionTool;
    mutable std::vector<std::pair<Node, bool>> changes;
    void setNodeSelected(Node node, bool on) const override
    {
        changes.emplace_back(node, on);
        SelectionTool::setNodeSelected(node, on);
    }
};

class Marquee : public SceneTest {
protected:
    void SetUp() override
    {
        SceneTest::SetUp();
        for (int i = 0; i < 3; ++i) {
            nodes[i] = added(rect(100.0 * i, 0, 50, 50));
            nodes[i].setSelectable(true);
        }
    }
    void drag(std::vector<P> const &path, Qt::KeyboardModifiers mods = {})
    {
        MouseEvent press = mouse(EventType::MousePress, path.front(), mods);
        scene->handleMousePressEvent(press);
        for (size_t i = 1; i < path.size(); ++i) moveTo(path[i]);
    }
    void moveTo(P p)
    {
        MouseEvent e = mouse(EventType::MouseMove, p);
        scene->handleMouseMoveEvent(e);
    }
    void releaseAt(P p)
    {
        MouseEvent e = mouse(EventType::MouseRelease, p);
        scene->handleMouseReleaseEvent(e);
    }
    std::vector<bool> selected() const
    {
        return {nodes[0].isSelected(), nodes[1].isSelected(), nodes[2].isSelected()};
    }
    RectNode nodes[3];
};

} // namespace

TEST_F(Marquee, AShiftDragAddsToTheSelectionAndNeverTakesFromIt)
{
    nodes[2].setSelected(true);
    drag({{90, 60}, {110, 40}}, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (std::vector<bool>{false, true, true}));
    moveTo({260, 40});
    moveTo({95, 55});
    EXPECT_EQ(selected(), (std::vector<bool>{false, false, true})) << "the initial node stays, the picked one goes";
    releaseAt({95, 55});

    drag({{90, 60}, {110, 40}});
    EXPECT_EQ(selected(), (std::vector<bool>{false, true, false})) << "without Shift the press cleared it";
    releaseAt({110, 40});
}

TEST_F(Marquee, SwallowsKeysAndGoesThroughTheSelectionToolsChoice)
{
    scene->removeToolByRole(SelectionTool::staticGetDefaultRole());
    GLOX::Holder<WatchingSelectionTool> watcher(new WatchingSelectionTool(scene.get()));
    scene->addTool(watcher.get());
    nodes[1].setSelectable(false);
    drag({{-10, 60}, {160, 40}});
    ASSERT_EQ(watcher->changes.size(), 1u);
    EXPECT_EQ(watcher->changes[0], std::make_pair(Node(nodes[0]), true));

    KeyEvent escape(EventType::KeyPress, nullptr, Qt::Key_Escape, {}, "", false, {});
    scene->handleKeyPressEvent(escape);
    EXPECT_TRUE(escape.isConsumed());
    EXPECT_NE(scene->getToolByRole(MarqueeSelectionTool::staticGetDefaultRole()), nullptr) << "Escape means nothing";
    releaseAt({160, 40});
}
