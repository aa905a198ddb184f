// The editing tool: what it hands to the edited node, the press outside
// that ends it and goes on to the tools below, Escape that ends it and
// reaches nobody, held keys, and a target that dies while it is edited.

#include <KeyEvent>
#include <MouseEvent>
#include <RectNode>
#include <Scene>
#include <TextSelectionTool>

#include "nodes/RectNodeImpl.h"
#include "support/RecordingTool.h"

#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;

namespace {

// A node that writes down the input handed to it, by event type.
class RecordingNodeImpl : public RectNodeImpl {
public:
    explicit RecordingNodeImpl(QRectF const &rect, std::vector<std::string> *log) : RectNodeImpl(rect), m_log(log) {}
    void emitMousePressEvent(MouseEvent &) override { m_log->push_back("press"); }
    void emitMouseMoveEvent(MouseEvent &) override { m_log->push_back("move"); }
    void emitMouseReleaseEvent(MouseEvent &) override { m_log->push_back("release"); }
    void emitKeyPressEvent(KeyEvent &e) override { m_log->push_back("key " + e.text()); }
    void emitKeyReleaseEvent(KeyEvent &e) override { m_log->push_back("key up " + e.text()); }

private:
    std::vector<std::string> *m_log;
};

MouseEvent mouse(EventType type, double x, double y)
{
    return MouseEvent(type, nullptr, {x, y}, {x, y}, {x, y}, 0, Qt::LeftButton, Qt::LeftButton, {});
}
KeyEvent key(EventType type, Qt::Key k, std::string const &text, bool autoRepeat = false)
{
    return KeyEvent(type, nullptr, k, {}, text, autoRepeat, {});
}

// The edited node at (0, 0, 50, 50), another node at (100, 0, 50, 50), a
// recording tool under the editing tool, which is on top.
struct Editing : ::testing::Test {
    GLOX::Holder<Scene> scene = Scene::createScene();
    std::vector<std::string> handed;
    RectNode edited{new RecordingNodeImpl(QRectF(0, 0, 50, 50), &handed)};
    RectNode other{GLOX::GLRect<double>(100, 0, 50, 50)};
    GLOX::Holder<RecordingTool> below{new RecordingTool("below")};
    TextSelectionTool *tool = nullptr;

    void SetUp() override
    {
        scene->addNode(edited);
        scene->addNode(other);
        scene->clearToolStack(); // the editing tool over a recorder only
        scene->addTool(below.get());
        tool = dynamic_cast<TextSelectionTool *>(scene->addToolByRole("TextSelectionTool"));
        ASSERT_NE(tool, nullptr) << "a fresh scene's factory makes the editing tool";
        tool->setTarget(edited);
    }
    bool onStack() const { return scene->getToolByRole("TextSelectionTool") != nullptr; }
};

} // namespace

TEST_F(Editing, HandsPointerAndKeysToTheEditedNode)
{
    EXPECT_TRUE(tool->requiresKeyAutoRepeat());
    EXPECT_EQ(tool->getTarget(), edited);
    MouseEvent press = mouse(EventType::MousePress, 10, 10);
    scene->handleMousePressEvent(press);
    MouseEvent move = mouse(EventType::MouseMove, 200, 10); // a drag may leave the node
    scene->handleMouseMoveEvent(move);
    MouseEvent release = mouse(EventType::MouseRelease, 200, 10);
    scene->handleMouseReleaseEvent(release);
    KeyEvent a = key(EventType::KeyPress, Qt::Key_A, "a");
    scene->handleKeyPressEvent(a);
    KeyEvent held = key(EventType::KeyPress, Qt::Key_A, "a", true);
    scene->handleKeyPressEvent(held);
    KeyEvent up = key(EventType::KeyRelease, Qt::Key_A, "a");
    scene->handleKeyReleaseEvent(up);
    EXPECT_EQ(handed, (std::vector<std::string>{"press", "move", "release", "key a", "key a", "key up a"}));
    EXPECT_TRUE(onStack());
}

TEST_F(Editing, APressElsewhereEndsEditingAndGoesOnToTheToolsBelow)
{
    MouseEvent press = mouse(EventType::MousePress, 120, 10);
    scene->handleMousePressEvent(press);
    EXPECT_TRUE(handed.empty()) << "the edited node does not see a press on another";
    EXPECT_EQ(below->typesSeen(), std::vector<EventType>{EventType::MousePress});
    EXPECT_FALSE(onStack());

    // Empty space ends it the same way.
    tool = static_cast<TextSelectionTool *>(scene->addToolByRole("TextSelectionTool"));
    tool->setTarget(edited);
    MouseEvent nowhere = mouse(EventType::MousePress, 70, 200);
    scene->handleMousePressEvent(nowhere);
    EXPECT_FALSE(onStack());
    EXPECT_TRUE(handed.empty());
}

TEST_F(Editing, EscapeEndsEditingAndReachesNobody)
{
    KeyEvent escape = key(EventType::KeyPress, Qt::Key_Escape, "");
    scene->handleKeyPressEvent(escape);
    EXPECT_TRUE(escape.isConsumed());
    EXPECT_TRUE(handed.empty());
    EXPECT_TRUE(below->typesSeen().empty());
    EXPECT_FALSE(onStack());

    KeyEvent up = key(EventType::KeyRelease, Qt::Key_Escape, "");
    scene->handleKeyReleaseEvent(up);
    EXPECT_TRUE(handed.empty()) << "the release comes after the tool has left";
    EXPECT_EQ(below->typesSeen(), std::vector<EventType>{EventType::KeyRelease});
}

TEST_F(Editing, ATargetThatDiesIsHandedNothingAndAPressEndsEditing)
{
    edited.remove();
    edited = RectNode();
    EXPECT_FALSE(tool->getTarget().isValid());
    MouseEvent move = mouse(EventType::MouseMove, 10, 10);
    scene->handleMouseMoveEvent(move);
    KeyEvent a = key(EventType::KeyPress, Qt::Key_A, "a");
    scene->handleKeyPressEvent(a);
    EXPECT_TRUE(handed.empty());
    EXPECT_TRUE(onStack());
    MouseEvent press = mouse(EventType::MousePress, 10, 10);
    scene->handleMousePressEvent(press);
    EXPECT_FALSE(onStack());
}
