// Bad numbers through every view operation of a canvas: NaN, both
// infinities, 0, a negative value, 1e300, and extreme zooms, on a real
// canvas with its window on the GUI thread. After each call the view holds
// only finite numbers and a positive scale, a call that is ignored leaves
// the view as it was, Qt prints no warning while the host renders, and the
// canvas still shows the scene once put back at scale 1.

#include <ConstantLodScale>
#include <GLCanvas>
#include <LineNode>
#include <RectNode>
#include <Scene>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"
#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/QtWarningCatcher.h"
#include "widget/Rendering.h"
#include "widget/SceneServer.h"
#include <HostRuntime>

#include <QWidget>
#include <cmath>
#include <functional>
#include <limits>
#include <sstream>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using namespace std::chrono_literals;

namespace {

double const NaN = std::numeric_limits<double>::quiet_NaN();
double const Inf = std::numeric_limits<double>::infinity();
double const BAD_VALUES[] = {NaN, Inf, -Inf, 0.0, -5.0, 1e300};
// Zooms far out and far in, where hairlines are wider than QPen takes.
double const EXTREME_SCALES[] = {1e-300, 1e-100, 1e-6, 1e6, 1e100, 1e300};

using Rect = GLCanvas::Rect;
using Point = GLCanvas::Point;

std::string nameOf(double v)
{
    std::ostringstream out;
    out << v;
    return out.str();
}

enum class Outcome { Ignored, Applied };

Outcome ignoredUnlessFinite(double v) { return std::isfinite(v) ? Outcome::Applied : Outcome::Ignored; }
Outcome ignoredUnlessPositive(double v) { return std::isfinite(v) && v > 0 ? Outcome::Applied : Outcome::Ignored; }
Outcome applied(double) { return Outcome::Applied; }

struct Operation {
    std::string name;
    std::function<void(GLCanvas &, double)> call;
    std::function<Outcome(double)> outcome = ignoredUnlessFinite;
};

std::vector<Operation> operations()
{
    return {
        {"setScale", [](GLCanvas &c, double v) { c.setScale(v); }, ignoredUnlessPositive},
        {"setScaleAroundScenePoint scale", [](GLCanvas &c, double v) { c.setScaleAroundScenePoint(v, {50, 50}); },
         ignoredUnlessPositive},
        {"setScaleAroundScenePoint point", [](GLCanvas &c, double v) { c.setScaleAroundScenePoint(2, {v, 50}); }},
        {"showSceneRect x", [](GLCanvas &c, double v) { c.showSceneRect({v, 0, 50, 50}); }},
        {"showSceneRect width", [](GLCanvas &c, double v) { c.showSceneRect({0, 0, v, 50}); },
         ignoredUnlessPositive},
        {"showSceneRect size", [](GLCanvas &c, double v) { c.showSceneRect({0, 0, v, v}); }, ignoredUnlessPositive},
        {"showScenePointAtViewPointAtScale scene point",
         [](GLCanvas &c, double v) { c.showScenePointAtViewPointAtScale({v, 0}, {10, 10}, 2); }},
        {"showScenePointAtViewPointAtScale view point",
         [](GLCanvas &c, double v) { c.showScenePointAtViewPointAtScale({0, 0}, {10, v}, 2); }},
        {"showScenePointAtViewPointAtScale scale",
         [](GLCanvas &c, double v) { c.showScenePointAtViewPointAtScale({0, 0}, {10, 10}, v); },
         ignoredUnlessPositive},
        {"translateScenePointToViewPoint scene point",
         [](GLCanvas &c, double v) { c.translateScenePointToViewPoint({v, 0}, {10, 10}); }},
        {"translateScenePointToViewPoint view point",
         [](GLCanvas &c, double v) { c.translateScenePointToViewPoint({0, 0}, {v, 10}); }},
        {"translate(dx, dy)", [](GLCanvas &c, double v) { c.translate(v, 0); }},
        {"translate(point)", [](GLCanvas &c, double v) { c.translate(Point(0, v)); }},
        {"setInitialSceneOriginAndScale origin",
         [](GLCanvas &c, double v) { c.setInitialSceneOriginAndScale({v, 0}, 1); }},
        {"setInitialSceneOriginAndScale scale",
         [](GLCanvas &c, double v) { c.setInitialSceneOriginAndScale({0, 0}, v); }, ignoredUnlessPositive},
        {"setMargins", [](GLCanvas &c, double v) { c.setMargins({v, 20, 20, v}); }},
        {"setMargins then zoomToSceneRect", [](GLCanvas &c, double v) {
             c.setMargins({v, 20, 20, v});
             c.zoomToSceneRect();
         }, applied},
        {"setMarquee", [](GLCanvas &c, double v) { c.setMarquee({v, 0, 10, v}); }},
        {"setScale then zoomToActualSize", [](GLCanvas &c, double v) {
             c.setScale(v);
             c.zoomToActualSize();
         }, applied},
        {"setScale then zoomToSceneRect", [](GLCanvas &c, double v) {
             c.setScale(v);
             c.zoomToSceneRect();
         }, applied},
        {"conversions", [](GLCanvas &c, double v) {
             c.viewRectToSceneRect({v, v, v, v});
             c.sceneRectToViewRect({v, v, v, v});
             c.viewPointToScenePoint({v, v});
             c.scenePointToViewPoint({v, v});
         }, [](double) { return Outcome::Ignored; }},
    };
}

bool allFinite(Rect const &r)
{
    return std::isfinite(r.x) && std::isfinite(r.y) && std::isfinite(r.width) && std::isfinite(r.height);
}

::testing::AssertionResult isSane(ViewInfo const &v)
{
    if (!(std::isfinite(v.scale) && v.scale > 0)) return ::testing::AssertionFailure() << "scale " << v.scale;
    if (!std::isfinite(v.originX) || !std::isfinite(v.originY))
        return ::testing::AssertionFailure() << "origin " << v.originX << ", " << v.originY;
    if (!std::isfinite(v.viewWidth) || !std::isfinite(v.viewHeight)) return ::testing::AssertionFailure() << "size";
    if (!allFinite(v.sceneRect) || !allFinite(v.margins) || !allFinite(v.marquee))
        return ::testing::AssertionFailure() << "scene rectangle, margins or marquee";
    return ::testing::AssertionSuccess();
}

bool sameView(ViewInfo const &a, ViewInfo const &b)
{
    return a.scale == b.scale && a.originX == b.originX && a.originY == b.originY && a.margins == b.margins &&
           a.marquee == b.marquee && a.viewWidth == b.viewWidth && a.viewHeight == b.viewHeight;
}

// The colour of the base layer's image at a view point, as last rendered.
QColor layerPixel(GLCanvas &canvas, int x, int y)
{
    Rendering &r = canvas.getSceneServer().rendering();
    Rendering::Locker lock(r);
    if (r.layers.empty() || r.layers[0]->image.isNull()) return QColor();
    QImage const &image = r.layers[0]->image;
    if (!image.rect().contains(x, y)) return QColor();
    return image.pixelColor(x, y);
}

ViewInfo renderedView(GLCanvas &canvas)
{
    Rendering &r = canvas.getSceneServer().rendering();
    Rendering::Locker lock(r);
    return r.view;
}

class BadViewInput : public ::testing::Test {
protected:
    void SetUp() override
    {
        scene = Scene::createScene();
        scene->addNode(solidRect({0, 0, 40, 40}, Qt::red));
        scene->addNode(solidRect({60, 0, 40, 40}, Qt::blue));
        scene->addNode(RectNode(GLOX::GLRect<double>(0, 60, 100, 30))); // a hairline outline
        LineNode line({0, 100}, {100, 120});
        line.setStroke(constantStroke(3));
        scene->addNode(line);
        canvas = std::make_unique<GLCanvas>();
        canvas->setScene(scene.get());
        QWidget *widget = canvas->getWidget();
        HostRuntime::bridge().runOnGui([widget] {
            widget->resize(200, 150);
            widget->show();
        }, true);
        ASSERT_TRUE(HostRuntime::loop().runUntil([&] { return canvas->getViewExtents().x > 0; }, 5000ms));
    }

    void TearDown() override
    {
        QWidget *widget = canvas->getWidget();
        HostRuntime::bridge().runOnGui([widget] { widget->hide(); }, true);
        canvas.reset();
        scene.reset();
        HostRuntime::loop().runUntilIdle();
    }

    // The view every row starts from: scene (-10, -10) at the top left, scale 1.
    void putBack()
    {
        canvas->setMargins({20, 20, 20, 20});
        canvas->setMarquee({});
        canvas->setInitialSceneOriginAndScale({-10, -10}, 1.0);
        HostRuntime::loop().runUntil([&] { return layerPixel(*canvas, 30, 30) == QColor(Qt::red); }, 5000ms);
    }

    void runRow(std::string const &name, std::function<void(GLCanvas &)> const &call, Outcome outcome)
    {
        SCOPED_TRACE(name);
        putBack();
        ASSERT_EQ(layerPixel(*canvas, 30, 30), QColor(Qt::red)) << "the row's start";
        ViewInfo before = canvas->getViewInfo();
        {
            QtWarningCatcher catcher;
            call(*canvas);
            ViewInfo asked = canvas->getViewInfo();
            EXPECT_TRUE(isSane(asked));
            if (outcome == Outcome::Ignored) {
                EXPECT_TRUE(sameView(asked, before)) << "an ignored call moved the view";
            }
            HostRuntime::loop().runUntilIdle(); // the host renders the new view
            EXPECT_TRUE(isSane(renderedView(*canvas)));
            EXPECT_EQ(catcher.take(), QStringList()) << "Qt warned";
        }
        putBack();
        EXPECT_EQ(layerPixel(*canvas, 30, 30), QColor(Qt::red)) << "the canvas no longer shows the scene";
        EXPECT_EQ(layerPixel(*canvas, 90, 30), QColor(Qt::blue));
    }

    GLOX::Holder<Scene> scene;
    std::unique_ptr<GLCanvas> canvas;
};

} // namespace

TEST_F(BadViewInput, EveryViewOperationKeepsTheViewFiniteAndTheCanvasWorking)
{
    for (Operation const &op : operations())
        for (double v : BAD_VALUES) {
            auto call = op.call;
            runRow(op.name + " " + nameOf(v), [call, v](GLCanvas &c) { call(c, v); }, op.outcome(v));
        }
}

TEST_F(BadViewInput, ExtremeZoomsRenderWithoutWarnings)
{
    for (double s : EXTREME_SCALES) {
        runRow("setScale " + nameOf(s), [s](GLCanvas &c) { c.setScale(s); }, Outcome::Applied);
        runRow("setScale then zoomToActualSize " + nameOf(s), [s](GLCanvas &c) {
            c.setScale(s);
            c.zoomToActualSize();
        }, Outcome::Applied);
        runRow("setScale then zoomToSceneRect " + nameOf(s), [s](GLCanvas &c) {
            c.setScale(s);
            c.zoomToSceneRect();
        }, Outcome::Applied);
    }
}

TEST_F(BadViewInput, AnExtremeZoomIsReallyApplied)
{
    putBack();
    canvas->setScale(1e-300);
    EXPECT_EQ(canvas->getScale(), 1e-300) << "tiny scales are allowed";
    HostRuntime::loop().runUntilIdle();
    EXPECT_EQ(renderedView(*canvas).scale, 1e-300);
}
