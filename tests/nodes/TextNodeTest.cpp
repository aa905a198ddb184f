// The text node: where its text stands around its position, sharp glyphs
// with their descenders at every scale, the small-text rule, the values it
// rejects, and the notifications it sends and keeps back.

#include <EffectStroke>
#include <Error>
#include <KeyEvent>
#include <MouseEvent>
#include <NodeEffects>
#include <RectNode>
#include <Scene>
#include <TextNode>
#include <WeakRef>

#include "nodes/TextNodeImpl.h"
#include "support/PaintNode.h"
#include "support/PixelCompare.h"

#include <QFontMetricsF>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;

namespace {

// How dark a pixel is over white, 0 to 255: text is black.
int ink(QRgb p) { return qAlpha(p) * (255 - qGray(p)) / 255; }

// The rectangle of pixels with any ink, or an empty one.
QRect inkBox(QImage const &image)
{
    QRect box;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (ink(image.pixel(x, y)) > 40) box |= QRect(x, y, 1, 1);
    return box;
}

// The scene around the origin at `scale`: scene point (0, 0) is the image's
// pixel (100 * scale, 50 * scale).
QImage renderAroundOrigin(Scene &scene, double scale)
{
    QImage image = transparentImage(int(200 * scale), int(100 * scale));
    scene.render(image, GLOX::GLRect<double>(-100, -50, 200, 100),
                 GLOX::GLRect<double>(0, 0, image.width(), image.height()));
    return image;
}

// Counts the notifications of one emitter.
struct Counter : GLUV::Listener {
    int count = 0;
    void hit() { ++count; }
    explicit Counter(TextNode::NotifyEmitter *emitter) { emitter->connect(this, &Counter::hit); }
};

MouseEvent mouseAt(EventType type, GLOX::GLPoint<double> p)
{
    return MouseEvent(type, nullptr, p, p, p, 0, Qt::LeftButton,
                      type == EventType::MouseRelease ? Qt::NoButton : Qt::LeftButton, {});
}

KeyEvent keyOf(Qt::Key key, std::string const &text)
{
    return KeyEvent(EventType::KeyPress, nullptr, key, {}, text, false, {});
}

struct TextScene : ::testing::Test {
    GLOX::Holder<Scene> scene = Scene::createScene();

    void click(GLOX::GLPoint<double> p)
    {
        MouseEvent press = mouseAt(EventType::MousePress, p);
        scene->handleMousePressEvent(press);
        MouseEvent release = mouseAt(EventType::MouseRelease, p);
        scene->handleMouseReleaseEvent(release);
    }
    void type(Qt::Key key, std::string const &text)
    {
        KeyEvent e = keyOf(key, text);
        scene->handleKeyPressEvent(e);
    }
    bool editingToolOnStack() const { return scene->getToolByRole("TextSelectionTool") != nullptr; }
};

} // namespace

TEST_F(TextScene, EachAlignmentPutsTheTextOnItsSideOfThePosition)
{
    TextNode text("Wide text", {0, 0});
    scene->addNode(text);
    // Horizontal: where the ink lies against x = 100; vertical: against y = 50.
    for (int h = 0; h < 3; ++h) {
        for (int v = 1; v <= 3; ++v) {
            text.setHorizontalAlignment(h);
            text.setVerticalAlignment(v);
            SCOPED_TRACE(std::string(GLOX::TextHAlign(h).name()) + " " + GLOX::TextVAlign(v).name());
            QRect const ink = inkBox(renderAroundOrigin(*scene, 1.0));
            ASSERT_FALSE(ink.isEmpty());
            switch (h) {
            case 0: EXPECT_GE(ink.left(), 100); break;
            case 1: EXPECT_LE(std::abs((ink.left() + ink.right()) / 2 - 100), 3); break;
            case 2: EXPECT_LE(ink.right(), 100); break;
            }
            switch (v) {
            case 1: EXPECT_LE(ink.bottom(), 50); break; // the text over the position
            case 2: EXPECT_TRUE(ink.top() < 50 && ink.bottom() > 50); break;
            case 3: EXPECT_GE(ink.top(), 50); break; // hanging from it
            }
            // The node's bounds hold all of its ink.
            GLOX::GLRect<double> const b = text.getBoundingRect();
            EXPECT_TRUE(QRectF(b.x + 100, b.y + 50, b.width, b.height).adjusted(-1, -1, 1, 1).contains(QRectF(ink)));
            EXPECT_EQ(text.getHorizontalAlignment(), GLOX::TextHAlign(h));
            EXPECT_EQ(text.getVerticalAlignment(), GLOX::TextVAlign(v));
        }
    }
}

TEST_F(TextScene, DescendersStayInsideTheBoundsAndScaleThreeIsDrawnSharp)
{
    TextNode text("gjpqy", {0, 0});
    text.setFont(GLOX::Font("DejaVu Sans", 14));
    scene->addNode(text);
    GLOX::GLRect<double> const b = text.getBoundingRect();
    double const baseline = QFontMetricsF(static_cast<TextNodeImpl *>(text.getImpl())->font()).ascent();

    QImage one = renderAroundOrigin(*scene, 1.0);
    QImage three = renderAroundOrigin(*scene, 3.0);
    for (auto const &[image, scale] : {std::pair<QImage const &, double>(one, 1.0), {three, 3.0}}) {
        SCOPED_TRACE(scale);
        QRect const ink = inkBox(image);
        ASSERT_FALSE(ink.isEmpty());
        // Ink below the baseline, and none past the bounds.
        EXPECT_GT(ink.bottom(), (50 + baseline + 1) * scale);
        EXPECT_LE(ink.bottom(), (50 + b.y + b.height) * scale);
        EXPECT_GE(ink.top(), (50 + b.y) * scale - 1);
    }
    // Three times the size, and not a scale-1 image blown up: that would
    // show blocks of three equal pixels along every row.
    QRect const ink1 = inkBox(one), ink3 = inkBox(three);
    EXPECT_NEAR(ink3.width(), 3 * ink1.width(), 6);
    QImage blown = one.scaled(one.size() * 3, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    int differing = 0, inked = 0;
    for (int y = ink3.top(); y <= ink3.bottom(); ++y)
        for (int x = ink3.left(); x <= ink3.right(); ++x) {
            int const a = ink(three.pixel(x, y));
            inked += a > 40;
            differing += std::abs(a - ink(blown.pixel(x, y))) > 80;
        }
    EXPECT_GT(differing, inked / 10) << "the scale-3 text is an enlarged scale-1 image";
}

TEST_F(TextScene, GlyphsOfFiveDevicePixelsOrLessAreSkippedAndTheBackgroundStays)
{
    TextNode text("Hello");
    auto *impl = static_cast<TextNodeImpl *>(text.getImpl());
    double const h = impl->getFontHeight();
    ASSERT_GT(h, 5.0);
    EXPECT_FALSE(inkBox(paintNodeAtScale(text, 5.0 / h, 100, 50)).isValid()) << "exactly five pixels";
    EXPECT_TRUE(inkBox(paintNodeAtScale(text, 5.5 / h, 100, 50)).isValid());
    text.setBackgroundColor(GLOX::Color(0.0, 0.0, 1.0));
    QImage small = paintNodeAtScale(text, 5.0 / h, 100, 50);
    EXPECT_TRUE(pixelIs(small, 1, 1, QColor(0, 0, 255)));
    EXPECT_TRUE(pixelIs(paintNodeAtScale(text, 1.0, 100, 50), 1, 1, QColor(0, 0, 255)));
}

TEST_F(TextScene, RejectedAlignmentsThrowAndLeaveTheOldOne)
{
    TextNode text("abc");
    EXPECT_EQ(text.getVerticalAlignment(), GLOX::TextVAlign::BOTTOM_TEXT) << "never set";
    text.setVerticalAlignment(GLOX::TextVAlign::V_CENTER_TEXT);
    for (int v : {int(GLOX::TextVAlign::BASELINE_TEXT), int(GLOX::TextVAlign::BOTTOM_BASELINE_TEXT), 7}) {
        try {
            text.setVerticalAlignment(v);
            ADD_FAILURE() << "accepted vertical " << v;
        } catch (Error const &e) {
            EXPECT_EQ(e.code(), VOR2_InvalidConversion);
        }
    }
    EXPECT_THROW(text.setHorizontalAlignment(3), Error);
    EXPECT_THROW(text.setHorizontalAlignment(-1), Error);
    EXPECT_EQ(text.getVerticalAlignment(), GLOX::TextVAlign::V_CENTER_TEXT);
    EXPECT_EQ(text.getHorizontalAlignment(), GLOX::TextHAlign::LEFT_TEXT);
    EXPECT_EQ(GLOX::TextVAlign::fromName("BASELINE_TEXT"), GLOX::TextVAlign(0));
    EXPECT_EQ(GLOX::TextHAlign::fromName("nonsense").value(), -1);
    EXPECT_THROW(TextNode().setText("x"), Error);
}

TEST_F(TextScene, WidthFollowsTheTextUntilAWidthIsGiven)
{
    TextNode text("short");
    double const narrow = text.getBoundingRect().width;
    text.setText("a good deal longer");
    double const wide = text.getBoundingRect().width;
    EXPECT_GT(wide, narrow);
    EXPECT_EQ(text.getTextDocumentWidth(), int(wide));
    double const oneLine = text.getBoundingRect().height;

    text.setTextDocumentWidth(40);
    EXPECT_EQ(text.getWidthAutoSize(), AutoSizeFixed);
    EXPECT_LE(text.getBoundingRect().width, 40.0);
    EXPECT_GT(text.getBoundingRect().height, oneLine) << "wrapped";
    text.setText("a good deal longer again");
    EXPECT_EQ(text.getWidthAutoSize(), AutoSizeFixed) << "for good";
    EXPECT_LE(text.getBoundingRect().width, 40.0);

    text.setWidthAutoSize(AutoSizeExpanding);
    EXPECT_GT(text.getBoundingRect().width, wide);
    EXPECT_EQ(text.getBoundingRect().height, oneLine);
}

TEST_F(TextScene, ProgrammaticChangesAreSilentAndTypingIsHeard)
{
    TextNode text("same", {10, 10});
    text.setEditable(true);
    scene->addNode(text);
    Counter changed(text.getTextChangedEmitter()), started(text.getEditStartedEmitter()),
        complete(text.getEditCompleteEmitter());
    text.setText("same");
    text.setText("other");
    text.setFont(GLOX::Font("DejaVu Serif", 12));
    text.setHorizontalAlignment(GLOX::TextHAlign::RIGHT_TEXT);
    EXPECT_EQ(changed.count, 0);
    EXPECT_EQ(text.getText(), "other");

    // Not editable: taking the focus starts no edit.
    text.setEditable(false);
    text.setFocus();
    EXPECT_EQ(started.count, 0);
    scene->clearFocus();
    EXPECT_EQ(complete.count, 0);
    text.setEditable(true);
    EXPECT_EQ(text.getCursor(), GLOX::Cursor(Qt::IBeamCursor));

    text.setFocus();
    EXPECT_EQ(started.count, 1);
    type(Qt::Key_End, "");
    type(Qt::Key_X, "x");
    EXPECT_EQ(changed.count, 1);
    EXPECT_EQ(text.getText(), "other") << "the edit reaches the text when it ends";
    scene->clearFocus();
    EXPECT_EQ(complete.count, 1);
    EXPECT_EQ(text.getText(), "otherx");
}

TEST_F(TextScene, AClickEditsTypingGrowsTheTextAndEscapeOrAClickOutsideEndsItOnce)
{
    TextNode text("ab", {10, 10});
    text.setEditable(true);
    text.setSelectable(true);
    scene->addNode(text);
    RectNode elsewhere(GLOX::GLRect<double>(200, 200, 20, 20));
    scene->addNode(elsewhere);
    Counter changed(text.getTextChangedEmitter()), started(text.getEditStartedEmitter()),
        complete(text.getEditCompleteEmitter());
    double const before = text.getBoundingRect().width;

    GLOX::GLRect<double> const b = text.mapLocalToScene(text.getBounds()).boundingRect();
    click({b.x + b.width - 1, b.y + b.height / 2}); // after the last letter
    ASSERT_TRUE(text.hasFocus());
    EXPECT_TRUE(editingToolOnStack());
    EXPECT_EQ(started.count, 1);
    for (char const *s : {"c", "d", "e", "f"}) type(Qt::Key(Qt::Key_A + (s[0] - 'a')), s);
    EXPECT_EQ(static_cast<TextNodeImpl *>(text.getImpl())->document()->toPlainText(), QString("abcdef"));
    EXPECT_GT(text.getBoundingRect().width, before + 10) << "the width follows the typing";
    EXPECT_EQ(changed.count, 4);

    type(Qt::Key_Escape, "");
    EXPECT_FALSE(text.hasFocus());
    EXPECT_FALSE(editingToolOnStack());
    EXPECT_EQ(text.getText(), "abcdef");
    type(Qt::Key_Escape, "");
    EXPECT_EQ(complete.count, 1);

    click({b.x + 2, b.y + 2});
    ASSERT_TRUE(text.hasFocus());
    click({205, 205});
    EXPECT_FALSE(text.hasFocus());
    EXPECT_FALSE(editingToolOnStack());
    EXPECT_EQ(complete.count, 2);
    EXPECT_EQ(started.count, 2);
}

TEST_F(TextScene, SelectAllOnFocusLetsTypingReplaceTheText)
{
    TextNode text("replace me", {0, 0});
    text.setEditable(true);
    text.setFocusSelectAll(true);
    scene->addNode(text);
    click({5, 5});
    ASSERT_TRUE(text.hasFocus());
    type(Qt::Key_N, "n");
    type(Qt::Key_Escape, "");
    EXPECT_EQ(text.getText(), "n");
}

TEST_F(TextScene, TheDeleteButtonShowsWhileEditingAndRemovesTheText)
{
    WeakRef weak;
    GLOX::GLPoint<double> onButton;
    {
        TextNode text("doomed", {50, 50});
        weak = text;
        text.setEditable(true);
        scene->addNode(text);
        RectNode button(GLOX::GLRect<double>(0, 0, 10, 10));
        button.setParent(text);
        text.setDeleteButtonNode(button);
        EXPECT_FALSE(button.isVisible());
        EXPECT_FALSE(button.isSelectable());
        click({55, 55});
        ASSERT_TRUE(text.hasFocus());
        ASSERT_TRUE(button.isVisible());
        // Its bottom-right corner on the text's top-left one.
        GLOX::GLRect<double> const t = text.getBoundingRect();
        EXPECT_EQ(button.getPosition(), GLOX::GLPoint<double>(t.x - 10, t.y - 10));
        onButton = button.mapLocalToScene({5, 5});
    }
    // Only the scene holds the text now: the press removes it, and it dies
    // once the selection tool lets go of the last press's nodes.
    click(onButton);
    EXPECT_FALSE(editingToolOnStack());
    EXPECT_EQ(scene->getNodeAt(onButton), Node());
    click({300, 300});
    EXPECT_FALSE(weak.promote().isValid());
}

TEST_F(TextScene, AnEditedSelectedStrokedTextLeavesAndReturnsAndDiesWithItsLastHandle)
{
    WeakRef weak;
    {
        TextNode text("round trip", {0, 0});
        weak = text;
        text.setEditable(true);
        text.setSelectable(true);
        scene->addNode(text);
        GLOX::Holder<EffectStroke> stroke(new EffectStroke(Stroke(GLOX::Color(1.0, 0.0, 0.0), 2.0), Outer));
        text.getEffects().add(stroke.get());
        // The stroke is drawn around the text's rectangle.
        GLOX::GLRect<double> const b = text.getBoundingRect();
        QImage image = renderAroundOrigin(*scene, 1.0);
        EXPECT_TRUE(pixelIs(image, int(100 + b.x + b.width / 2), int(50 + b.y - 1), QColor(255, 0, 0), 40));
        EXPECT_TRUE(pixelIs(image, int(100 + b.x + b.width + 1), int(50 + b.y + b.height / 2), QColor(255, 0, 0), 40));
        EXPECT_FALSE(pixelIs(image, int(100 + b.x + b.width + 3), int(50 + b.y + b.height / 2), QColor(255, 0, 0), 40));
        text.setSelected(true);
        // The scene's selection outline goes round the text too.
        QImage selected = renderAroundOrigin(*scene, 1.0);
        EXPECT_TRUE(pixelIs(selected, int(100 + b.x + b.width + 5), int(50 + b.y + b.height / 2), QColor(218, 233, 254), 12));
        text.setFocus();
        ASSERT_TRUE(text.hasFocus());
        scene->removeNode(text);
        EXPECT_FALSE(text.hasFocus());
        EXPECT_FALSE(editingToolOnStack());
        scene->addNode(text);
        text.setFocus();
        EXPECT_TRUE(text.hasFocus());
        EXPECT_TRUE(editingToolOnStack());
        scene->removeNode(text);
    }
    EXPECT_FALSE(weak.promote().isValid());
}

TEST(TextSceneDeath, ASceneThatDiesDuringAnEditLetsItsHeldTextGoAndTakesTheRest)
{
    WeakRef weak;
    TextNode kept("kept", {0, 0});
    {
        GLOX::Holder<Scene> scene = Scene::createScene();
        TextNode text("edited", {0, 0});
        weak = text;
        text.setEditable(true);
        kept.setEditable(true);
        scene->addNode(text);
        scene->addNode(kept);
        kept.setFocus(); // the held text is the edited one: it leaves the dying scene editing
        ASSERT_TRUE(kept.hasFocus());
    }
    EXPECT_FALSE(weak.promote().isValid());
    EXPECT_FALSE(kept.hasFocus());
    EXPECT_EQ(kept.getScene(), nullptr);
    // Its edit ended with the scene: in another scene it is edited afresh.
    GLOX::Holder<Scene> next = Scene::createScene();
    next->addNode(kept);
    Counter started(kept.getEditStartedEmitter());
    kept.setFocus();
    EXPECT_EQ(started.count, 1);
    EXPECT_NE(next->getToolByRole("TextSelectionTool"), nullptr);
}
