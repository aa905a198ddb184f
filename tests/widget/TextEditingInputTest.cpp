// Editing a text node through the real input path: a click into the text
// on a shown canvas, typed keys, and Escape or a click elsewhere, played as
// Qt events; the text, its width, its notifications and the canvas's
// pixels follow.

#include <GLCanvas>
#include <HostRuntime>
#include <RectNode>
#include <Scene>
#include <TextNode>

#include "GLServices/HostRunLoop.h"
#include "support/InputPlayback.h"
#include "widget/Rendering.h"
#include "widget/SceneServer.h"

#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using namespace std::chrono_literals;

namespace {

struct Counter : GLUV::Listener {
    int count = 0;
    void hit() { ++count; }
    explicit Counter(TextNode::NotifyEmitter *emitter) { emitter->connect(this, &Counter::hit); }
};

// An editable text hanging from (20, 20) on a canvas of 300 by 200 that
// shows scene point (0, 0) at its corner at scale 2.
struct EditingCanvas : ::testing::Test {
    GLOX::Holder<Scene> scene = Scene::createScene();
    GLCanvas canvas;
    InputPlayback input{canvas};
    TextNode text{"ab", {20, 20}};
    Counter changed{text.getTextChangedEmitter()};
    Counter started{text.getEditStartedEmitter()};
    Counter complete{text.getEditCompleteEmitter()};

    void SetUp() override
    {
        text.setEditable(true);
        text.setSelectable(true);
        scene->addNode(text);
        canvas.setScene(scene.get());
        ASSERT_TRUE(input.show(300, 200));
        canvas.showScenePointAtViewPointAtScale({0, 0}, {0, 0}, 2.0);
        ASSERT_TRUE(HostRuntime::loop().runUntil(
            [&] {
                Rendering::Locker lock(canvas.getSceneServer().rendering());
                return canvas.getSceneServer().rendering().view.scale == 2.0;
            },
            5000ms));
    }
    void TearDown() override { input.hide(); }

    QPointF at(double x, double y) const { return QPointF(2 * x, 2 * y); }
    void click(QPointF p)
    {
        input.press(p);
        input.release(p);
    }
    void type(Qt::Key key, QString const &s)
    {
        input.keyPress(key, s);
        input.keyRelease(key, s);
    }
    // Dark pixels of the base layer in view columns [x0, x1) along the
    // text's middle row.
    int darkPixels(int x0, int x1, int y)
    {
        HostRuntime::loop().runUntilIdle();
        Rendering::Locker lock(canvas.getSceneServer().rendering());
        QImage const &image = canvas.getSceneServer().rendering().layers[0]->image;
        int n = 0;
        for (int x = x0; x < x1; ++x)
            for (int dy = -6; dy <= 6; ++dy) n += qAlpha(image.pixel(x, y + dy)) > 128 && qGray(image.pixel(x, y + dy)) < 100;
        return n;
    }
};

} // namespace

TEST_F(EditingCanvas, ClickingInAndTypingChangesTheTextGrowsItAndTellsListeners)
{
    GLOX::GLRect<double> const before = text.getBoundingRect();
    double const midY = before.y + before.height / 2;
    int const right = int(2 * (20 + before.x + before.width));
    int const rowY = int(2 * (20 + midY));
    EXPECT_EQ(darkPixels(right + 2, right + 80, rowY), 0) << "nothing right of the text yet";

    click(at(20 + before.x + before.width - 0.5, 20 + midY)); // behind the last letter
    ASSERT_TRUE(text.hasFocus());
    EXPECT_EQ(started.count, 1);
    type(Qt::Key_X, "x");
    type(Qt::Key_Y, "y");
    type(Qt::Key_Z, "z");
    EXPECT_EQ(changed.count, 3);
    EXPECT_GT(text.getBoundingRect().width, before.width + 10);
    EXPECT_GT(darkPixels(right + 2, right + 80, rowY), 10) << "the new letters are drawn";
    EXPECT_EQ(text.getText(), "ab") << "not until the edit ends";

    type(Qt::Key_Escape, "");
    EXPECT_FALSE(text.hasFocus());
    EXPECT_EQ(complete.count, 1);
    EXPECT_EQ(text.getText(), "abxyz");
    type(Qt::Key_Q, "q"); // no longer edited
    EXPECT_EQ(text.getText(), "abxyz");
    EXPECT_EQ(changed.count, 3);
    EXPECT_EQ(complete.count, 1);
}

TEST_F(EditingCanvas, AClickOutsideEndsTheEditOnceAndActsAsUsual)
{
    RectNode other(GLOX::GLRect<double>(0, 0, 20, 20));
    other.setPosition({100, 60});
    other.setSelectable(true);
    scene->addNode(other);
    GLOX::GLRect<double> const b = text.getBoundingRect();
    click(at(20 + b.x + 2, 20 + b.y + b.height / 2));
    ASSERT_TRUE(text.hasFocus());
    type(Qt::Key_Home, "");
    type(Qt::Key_Minus, "-");
    click(at(110, 70));
    EXPECT_FALSE(text.hasFocus());
    EXPECT_EQ(complete.count, 1);
    EXPECT_EQ(text.getText(), "-ab");
    EXPECT_TRUE(other.isSelected()) << "the click went on to the selection tool";
    click(at(150, 90));
    EXPECT_EQ(complete.count, 1);
    EXPECT_EQ(started.count, 1);
}
