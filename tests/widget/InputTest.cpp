// Input through the real path: Qt events played into the canvas widget on
// the GUI thread reach the base scene's tools on the host thread, as
// library events in scene coordinates.

#include <GLCanvas>
#include <HostRuntime>
#include <RectNode>
#include <Scene>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"
#include "support/InputPlayback.h"
#include "support/RecordingTool.h"
#include "widget/SceneServer.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using namespace std::chrono_literals;

namespace {

// A scene of 400 by 400 units on a shown canvas of 200 by 200, looking at
// scene point (100, 100) from the viewport's corner at scale 2.
struct ZoomedCanvas : ::testing::Test {
    GLOX::Holder<Scene> scene = Scene::createScene();
    GLCanvas canvas;
    InputPlayback input{canvas};
    GLOX::Holder<RecordingTool> tool{new RecordingTool("recorder")};

    void SetUp() override
    {
        scene->addNode(RectNode(GLOX::GLRect<double>(0, 0, 400, 400)));
        canvas.setScene(scene.get());
        ASSERT_TRUE(input.show(200, 200));
        canvas.showScenePointAtViewPointAtScale({100, 100}, {0, 0}, 2.0);
        ASSERT_TRUE(HostRuntime::loop().runUntil([&] { return canvas.getSceneServer().rendering().view.scale == 2.0; },
                                                 5000ms));
        scene->clearToolStack(); // the default tools would zoom on the wheel
        scene->addTool(tool.get());
    }
    void TearDown() override { input.hide(); }

    RecordedEvent last() const { return tool->log->empty() ? RecordedEvent{} : tool->log->back(); }
};

} // namespace

TEST_F(ZoomedCanvas, APressReachesAToolOnTheHostThreadInSceneCoordinates)
{
    input.press({30, 40}, Qt::RightButton, Qt::ShiftModifier | Qt::ControlModifier);
    ASSERT_EQ(tool->typesSeen(), std::vector<EventType>{EventType::MousePress});
    RecordedEvent press = last();
    EXPECT_EQ(press.scenePos, GLOX::GLPoint<double>(115, 120));
    EXPECT_EQ(press.button, Qt::RightButton);
    EXPECT_EQ(press.modifiers, Qt::ShiftModifier | Qt::ControlModifier);
    EXPECT_EQ(press.thread, std::this_thread::get_id()) << "handled on the host thread";

    input.release({30, 40}, Qt::RightButton);
    EXPECT_GT(last().serialNumber, press.serialNumber);
}

TEST_F(ZoomedCanvas, EveryKindOfInputArrivesAsItsEvent)
{
    input.enter();
    input.move({10, 10});
    input.doubleClick({10, 10});
    input.wheel({20, 20}, 15);
    input.keyPress(Qt::Key_A, "a");
    input.keyRelease(Qt::Key_A, "a");
    input.focusIn();
    input.focusOut();
    input.dragEnter({40, 40}, "dropped text");
    input.dragMove({50, 50});
    input.drop({60, 80});
    input.dragEnter({40, 40}, "more");
    input.dragLeave();
    input.contextMenuFromKeyboard({100, 60});
    input.leave();
    EXPECT_EQ(tool->typesSeen(),
              (std::vector<EventType>{EventType::EnterCanvas, EventType::MouseMove, EventType::MouseDoubleClick,
                                      EventType::Wheel, EventType::KeyPress, EventType::KeyRelease, EventType::FocusIn,
                                      EventType::FocusOut, EventType::DragEnter, EventType::DragMove, EventType::Drop,
                                      EventType::DragEnter, EventType::DragLeave, EventType::ContextMenu,
                                      EventType::LeaveCanvas}));
    std::vector<RecordedEvent> const &log = *tool->log;
    EXPECT_EQ(log[3].scenePos, GLOX::GLPoint<double>(110, 110)) << "the wheel";
    EXPECT_EQ(log[4].text, "a");
    EXPECT_EQ(log[10].scenePos, GLOX::GLPoint<double>(130, 140)) << "the drop";
    EXPECT_EQ(log[13].scenePos, GLOX::GLPoint<double>(150, 130)) << "the menu, from its screen position";
}

TEST_F(ZoomedCanvas, ADragStartsFromThePressOnceItHasGoneFarEnough)
{
    int distance = 0;
    HostRuntime::bridge().runOnGui([&] { distance = QApplication::startDragDistance(); }, true);
    auto drags = [&] {
        std::vector<GLOX::GLPoint<double>> starts;
        for (RecordedEvent const &r : *tool->log)
            if (r.type == EventType::UserDragInit) starts.push_back(*r.scenePos);
        return starts;
    };
    input.press({10, 10});
    input.move({10.0 + distance, 10}, Qt::LeftButton);
    EXPECT_TRUE(drags().empty()) << "not past the drag distance yet";
    input.move({12.0 + distance, 12}, Qt::LeftButton);
    input.move({40.0 + distance, 40}, Qt::LeftButton);
    EXPECT_EQ(drags(), std::vector<GLOX::GLPoint<double>>{GLOX::GLPoint<double>(105, 105)})
        << "once, from where the button went down";
    input.release({40, 40});
    input.press({20, 20});
    input.move({90, 90}, Qt::LeftButton);
    EXPECT_EQ(drags().size(), 2u) << "armed again by the next press";
}

TEST_F(ZoomedCanvas, TheToolsCursorReachesTheWidget)
{
    auto shape = [&] {
        Qt::CursorShape s = Qt::ArrowCursor;
        QWidget *w = input.widget();
        HostRuntime::bridge().runOnGui([&] { s = w->cursor().shape(); }, true);
        return s;
    };
    tool->cursor = GLOX::Cursor(Qt::OpenHandCursor);
    input.move({10, 10});
    EXPECT_EQ(shape(), Qt::OpenHandCursor);
    tool->cursor.reset();
    input.move({12, 12});
    EXPECT_EQ(shape(), Qt::ArrowCursor) << "no opinion: the cursor is unset";
}
