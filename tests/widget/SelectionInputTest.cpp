// Selecting through the real input path: Qt events played into a shown
// canvas reach the scene's default selection tool on the host thread, and
// the result shows in the canvas's pixels. Also the marquee's band, the
// move tool and the context menus the tool asks for.

#include <GLCanvas>
#include <HostRuntime>
#include <RectNode>
#include <Scene>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"
#include "support/InputPlayback.h"
#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/RecordingTool.h"
#include "widget/Rendering.h"
#include "widget/SceneServer.h"

#include <QAbstractScrollArea>
#include <QImage>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using namespace std::chrono_literals;

namespace {

using P = GLOX::GLPoint<double>;

// Three selectable, movable squares of 20 units in a row, (20, 20),
// (60, 20) and (100, 20), on a canvas of 200 by 200 that shows scene point
// (0, 0) at its corner at scale 2: a scene unit is two view pixels.
struct SelectingCanvas : ::testing::Test {
    GLOX::Holder<Scene> scene = Scene::createScene();
    GLCanvas canvas;
    InputPlayback input{canvas};
    RectNode nodes[3];

    void SetUp() override
    {
        for (int i = 0; i < 3; ++i) {
            nodes[i] = solidRect(GLOX::GLRect<double>(0, 0, 20, 20), Qt::blue);
            nodes[i].setPosition({20.0 + 40 * i, 20});
            nodes[i].setSelectable(true);
            nodes[i].setMovable(true);
            scene->addNode(nodes[i]);
        }
        canvas.setScene(scene.get());
        ASSERT_TRUE(input.show(200, 200));
        canvas.showScenePointAtViewPointAtScale({0, 0}, {0, 0}, 2.0);
        ASSERT_TRUE(settledOn([&] { return canvas.getSceneServer().rendering().view.scale == 2.0; }));
    }
    void TearDown() override { input.hide(); }

    // Runs the host loop until `done` holds, read under the rendering lock.
    bool settledOn(std::function<bool()> const &done)
    {
        return HostRuntime::loop().runUntil(
            [&] {
                Rendering::Locker lock(canvas.getSceneServer().rendering());
                return done();
            },
            5000ms);
    }
    // The base layer's pixel at view point (x, y).
    QColor layerPixel(int x, int y)
    {
        HostRuntime::loop().runUntilIdle();
        Rendering::Locker lock(canvas.getSceneServer().rendering());
        return canvas.getSceneServer().rendering().layers[0]->image.pixelColor(x, y);
    }
    // What the viewport shows, grabbed on the GUI thread.
    QImage screen()
    {
        HostRuntime::loop().runUntilIdle();
        QImage image;
        QAbstractScrollArea *w = input.widget();
        HostRuntime::bridge().runOnGui([&] { image = w->viewport()->grab().toImage(); }, true);
        return image;
    }
    std::vector<bool> selected() const
    {
        return {nodes[0].isSelected(), nodes[1].isSelected(), nodes[2].isSelected()};
    }
    // View pixels of scene point p.
    QPointF at(P p) const { return QPointF(2 * p.x, 2 * p.y); }
    void click(P p, Qt::KeyboardModifiers mods = {})
    {
        input.press(at(p), Qt::LeftButton, mods);
        input.release(at(p), Qt::LeftButton, mods);
    }
};

} // namespace

TEST_F(SelectingCanvas, AClickSelectsTheNodeUnderItAndItsOutlineShows)
{
    // Just outside the first square's left edge, inside the outline's reach.
    int const ringX = int(2 * 20 - 3), ringY = int(2 * 30);
    EXPECT_EQ(layerPixel(ringX, ringY).alpha(), 0) << "nothing drawn there before";
    click({30, 30});
    EXPECT_EQ(selected(), (std::vector<bool>{true, false, false}));
    EXPECT_GT(layerPixel(ringX, ringY).alpha(), 100) << "the selection outline";
    EXPECT_TRUE(pixelIs(screen(), 60, 60, Qt::blue)) << "the node itself, unchanged";

    click({150, 150});
    EXPECT_EQ(selected(), (std::vector<bool>{false, false, false})) << "a click on empty space clears";
    EXPECT_EQ(layerPixel(ringX, ringY).alpha(), 0);
}

TEST_F(SelectingCanvas, ShiftExtendsTheSelectionAndControlDoesNot)
{
    click({30, 30});
    click({70, 30}, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (std::vector<bool>{true, true, false}));
    click({30, 30}, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (std::vector<bool>{false, true, false})) << "a Shift-click on a selected node drops it";
    click({110, 30}, Qt::ControlModifier);
    EXPECT_EQ(selected(), (std::vector<bool>{false, false, true})) << "Control: a plain click";
    click({150, 150}, Qt::ShiftModifier);
    EXPECT_EQ(selected(), (std::vector<bool>{false, false, true})) << "Shift on empty space keeps it";
}

TEST_F(SelectingCanvas, AMarqueeSelectsWhatItsBandTouchesAndShowsTheBandWhileDragging)
{
    // From below the row, up and left of the anchor, over the second square
    // and the right edge of the first.
    input.press(at({90, 60}));
    input.move(at({90, 59}), Qt::LeftButton); // one pixel: not yet a drag
    EXPECT_EQ(canvas.getViewInfo().marquee.width, 0);
    input.move(at({35, 30}), Qt::LeftButton);
    EXPECT_EQ(selected(), (std::vector<bool>{true, true, false}));
    EXPECT_EQ(canvas.getViewInfo().marquee, GLOX::GLRect<double>(35, 30, 55, 30));

    // The band: a solid edge, and a fill of alpha 80 over the white of the
    // empty view.
    QColor const edge(106, 166, 255);
    auto overWhite = [](int c) { return (c * 80 + 255 * (255 - 80) + 127) / 255; };
    QColor const fill(overWhite(106), overWhite(166), overWhite(255));
    QImage const during = screen();
    EXPECT_TRUE(pixelIs(during, 2 * 90, 2 * 45, edge)) << "the band's right edge";
    EXPECT_TRUE(pixelIs(during, 2 * 35, 2 * 45, edge)) << "its left edge";
    EXPECT_TRUE(pixelIs(during, 2 * 85, 2 * 55, fill)) << "its see-through fill";
    EXPECT_TRUE(pixelIs(during, 2 * 60, 2 * 65, Qt::white)) << "nothing below it";

    input.move(at({75, 30}), Qt::LeftButton);
    EXPECT_EQ(selected(), (std::vector<bool>{false, true, false})) << "the first square is left";
    input.release(at({75, 30}));
    EXPECT_EQ(selected(), (std::vector<bool>{false, true, false}));
    EXPECT_EQ(canvas.getViewInfo().marquee.width, 0) << "the release ends the band";
    EXPECT_TRUE(pixelIs(screen(), 2 * 85, 2 * 55, Qt::white)) << "and its pixels";
}

TEST_F(SelectingCanvas, TheMoveToolDragsTwoSelectedNodesAndEscapePutsThemBack)
{
    scene->useMoveSelectionTool();
    click({30, 30});
    click({70, 30}, Qt::ShiftModifier);

    input.press(at({30, 30}));
    input.move(at({40, 35}), Qt::LeftButton);
    input.move(at({55, 45}), Qt::LeftButton);
    EXPECT_EQ(nodes[0].getPosition(), P(45, 35)) << "by the drag, in scene units";
    EXPECT_EQ(nodes[1].getPosition(), P(85, 35));
    EXPECT_EQ(nodes[2].getPosition(), P(100, 20)) << "not selected";
    EXPECT_TRUE(pixelIs(screen(), int(2 * 50), int(2 * 40), Qt::blue)) << "drawn where it went";

    input.keyPress(Qt::Key_Escape);
    EXPECT_EQ(nodes[0].getPosition(), P(20, 20));
    EXPECT_EQ(nodes[1].getPosition(), P(60, 20));
    input.move(at({70, 70}), Qt::LeftButton);
    input.release(at({70, 70}));
    EXPECT_EQ(nodes[0].getPosition(), P(20, 20)) << "the drag ended with Escape";

    input.press(at({30, 30}));
    input.move(at({30, 40}), Qt::LeftButton);
    input.release(at({30, 40}));
    EXPECT_EQ(nodes[0].getPosition(), P(20, 30));
    EXPECT_EQ(nodes[1].getPosition(), P(60, 30)) << "a released drag stays";
    input.keyPress(Qt::Key_Left, {}, Qt::ShiftModifier);
    EXPECT_EQ(nodes[0].getPosition(), P(10, 30)) << "Shift and an arrow: ten units";
}

TEST_F(SelectingCanvas, TheMenuKeyAndARightClickAskForAMenuWhereTheUserLooks)
{
    GLOX::Holder<RecordingTool> menus(new RecordingTool("menus"));
    scene->addTool(menus.get()); // sees what the selection tool leaves, and the menus
    auto lastMenuAt = [&]() -> std::optional<P> {
        for (auto r = menus->log->rbegin(); r != menus->log->rend(); ++r)
            if (r->type == EventType::ContextMenu) return r->scenePos;
        return std::nullopt;
    };

    input.keyPress(Qt::Key_Menu);
    P const extents = canvas.getViewExtents();
    EXPECT_EQ(lastMenuAt(), P(extents.x / 4, extents.y / 4)) << "nothing selected: the centre of the view";

    nodes[1].setSelected(true);
    input.keyPress(Qt::Key_Menu);
    EXPECT_EQ(lastMenuAt(), P(60, 20)) << "at the selected node";

    input.press(at({150, 150}), Qt::RightButton);
    input.release(at({150, 150}), Qt::RightButton);
    EXPECT_EQ(lastMenuAt(), P(150, 150)) << "at the pointer";
}
