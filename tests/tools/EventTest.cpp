// Library events: serial numbers, consumption, the double dispatch and its
// error, scene positions, and the dispatcher's routing table.

#include <Error>
#include <GLCanvas>
#include <RectNode>
#include <Scene>

#include "support/RecordingTool.h"
#include "widget/EventDispatcher.h"
#include "widget/GLCanvasEmitters.h"

#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;

namespace {
MouseEvent mouseAt(EventType type, GLCanvas *canvas, GLOX::GLPoint<double> viewportPos)
{
    return MouseEvent(type, canvas, viewportPos, viewportPos, {}, 0, Qt::LeftButton, Qt::LeftButton,
                      Qt::ShiftModifier);
}
} // namespace

TEST(Event, SerialNumbersGrowAndCopiesKeepTheirs)
{
    MouseEvent first = mouseAt(EventType::MousePress, nullptr, {});
    WidgetEvent second(EventType::EnterCanvas);
    EXPECT_GT(second.serialNumber(), first.serialNumber());
    MouseEvent copy = first;
    EXPECT_EQ(copy.serialNumber(), first.serialNumber());
}

TEST(Event, AcceptReachesTheOperationOfTheTypeUnlessConsumed)
{
    RecordingTool tool("t");
    for (EventType type : {EventType::MousePress, EventType::MouseDoubleClick, EventType::MouseMove,
                           EventType::MouseRelease, EventType::Wheel, EventType::UserDragInit}) {
        MouseEvent e = mouseAt(type, nullptr, {});
        e.accept(tool);
    }
    FocusEvent out(EventType::FocusOut, GLOX::TabFocusReason);
    out.accept(tool);
    std::vector<EventType> seen = tool.typesSeen();
    EXPECT_EQ(seen, (std::vector<EventType>{EventType::MousePress, EventType::MouseDoubleClick, EventType::MouseMove,
                                            EventType::MouseRelease, EventType::Wheel, EventType::UserDragInit,
                                            EventType::FocusOut}));

    MouseEvent consumed = mouseAt(EventType::MousePress, nullptr, {});
    consumed.consume();
    consumed.accept(tool);
    EXPECT_EQ(tool.log->size(), seen.size()) << "a consumed event calls nothing";
    EXPECT_TRUE(consumed.isConsumed());
}

TEST(Event, ATypeOfAnotherClassIsAnError)
{
    RecordingTool tool("t");
    KeyEvent wrong(EventType::MousePress, nullptr, Qt::Key_A, {}, "a", false, {});
    try {
        wrong.accept(tool);
        FAIL() << "no error";
    } catch (Error const &e) {
        EXPECT_EQ(e.code(), VOR2_UnrecognizedEvent);
        EXPECT_EQ(e.text(), "Encountered unrecognized event");
    }
    WidgetEvent none(14);
    EXPECT_THROW(none.accept(tool), Error);
    EXPECT_TRUE(tool.log->empty());
}

TEST(Event, ScenePositionsAreFixedWhenTheEventIsMade)
{
    MouseEvent headless = mouseAt(EventType::MousePress, nullptr, {7, 9});
    EXPECT_EQ(headless.scenePos(), GLOX::GLPoint<double>(7, 9)) << "no canvas: the viewport position";
    EXPECT_EQ(headless.scene(), nullptr);

    auto scene = Scene::createScene();
    scene->addNode(RectNode(GLOX::GLRect<double>(0, 0, 500, 500))); // an empty scene is shown unscaled
    GLCanvas canvas;
    canvas.setScene(scene.get());
    canvas.setInitialSceneOriginAndScale({100, 50}, 2.0);
    MouseEvent before = mouseAt(EventType::MousePress, &canvas, {10, 20});
    EXPECT_EQ(before.scenePos(), GLOX::GLPoint<double>(105, 60));
    EXPECT_EQ(before.scene(), scene.get());
    canvas.showScenePointAtViewPointAtScale({0, 0}, {0, 0}, 4.0);
    MouseEvent after = mouseAt(EventType::MousePress, &canvas, {10, 20});
    EXPECT_EQ(after.scenePos(), GLOX::GLPoint<double>(2.5, 5)) << "the zoom is seen at once";
    EXPECT_EQ(before.scenePos(), GLOX::GLPoint<double>(105, 60)) << "an older event keeps its position";

    // A menu knows only its screen position: the canvas's is taken off.
    canvas.reportGlobalPosition({300, 200, 640, 480});
    ContextMenuEvent menu(EventType::ContextMenu, GLOX::GLContextMenuEvent2(&canvas, 310, 220, 1));
    EXPECT_EQ(menu.scenePos(), GLOX::GLPoint<double>(2.5, 5));
    EXPECT_EQ(menu.canvas(), &canvas);
}

TEST(EventDispatcher, RoutesEachSignalToItsOperationAndFocusLostToFocusIn)
{
    struct Handler : EventHandler {
        std::vector<std::string> calls;
        void handleFocusInEvent(FocusEvent &e) override { calls.push_back(std::string("in:") + e.type().name()); }
        void handleFocusOutEvent(FocusEvent &) override { calls.push_back("out"); }
        void handleDragEvent(DragEvent &e) override { calls.push_back(e.type().name()); }
        void handleDragLeaveEvent(WidgetEvent &e) override { calls.push_back(e.type().name()); }
        void handleUserDragInitEvent(MouseEvent &e) override { calls.push_back(e.type().name()); }
        void handleKeyReleaseEvent(KeyEvent &e) override { calls.push_back(e.type().name() + e.text()); }
    } handler;
    GLCanvasEmitters emitters;
    {
        EventDispatcher dispatcher(&handler, emitters);
        emitters.focusGained.send(GLOX::GLFocusEvent2(nullptr, GLOX::MouseFocusReason));
        emitters.focusLost.send(GLOX::GLFocusEvent2(nullptr, GLOX::TabFocusReason));
        emitters.dragMoved.send(GLOX::GLDragEvent2());
        emitters.dragLeft.send(GLOX::GLWidgetEvent2());
        emitters.userDragInit.send(GLOX::GLMouseEvent2());
        emitters.keyReleased.send(GLOX::GLKeyEvent2(nullptr, Qt::Key_B, {}, "b", false, {}));
    }
    emitters.focusGained.send(GLOX::GLFocusEvent2());
    EXPECT_EQ(handler.calls, (std::vector<std::string>{"in:FocusIn", "in:FocusOut", "DragMove", "DragLeave",
                                                       "UserDragInit", "KeyReleaseb"}))
        << "and nothing once the dispatcher is gone";
}

TEST(EventDispatcher, AToolMayEndTheSceneItIsHandlingAnEventOf)
{
    GLCanvas canvas;
    {
        auto scene = Scene::createScene();
        canvas.setScene(scene.get()); // from now on only the canvas holds it
    }
    struct Closer : RecordingTool {
        explicit Closer(GLCanvas &c) : RecordingTool("closer"), canvas(c) {}
        void handleMousePressEvent(MouseEvent &) override { canvas.setScene(nullptr); }
        GLCanvas &canvas;
    };
    canvas.getScene()->addTool(new Closer(canvas));
    canvas.getEmitters().mousePressed.send(GLOX::GLMouseEvent2(&canvas, {}, {1, 1}, {}, 0, Qt::LeftButton,
                                                               Qt::LeftButton, {}));
    EXPECT_EQ(canvas.getScene(), nullptr);
}
