// The GUI thread's share of showing a view: a full repaint of a canvas's
// viewport of about 1920 by 1080 pixels (Qt's background fill, then the
// layer images composed as the viewer's paint event does), against one
// drawImage of as many pixels with CompositionMode_Source, the least any
// paint can do. Measured on the GUI thread.

#include "Alternating.h"
#include "BenchRegistry.h"
#include "Fixture.h"

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"
#include <GLCanvas>
#include <HostRuntime>

#include "widget/SceneServer.h"

#include <QAbstractScrollArea>
#include <QPainter>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {
void guiPaint(benchmark::State &state, Workload w, int n)
{
    using namespace std::chrono_literals;
    Fixture &f = Fixture::get(w, n);
    VOR2::GLCanvas canvas;
    canvas.setScene(f.scene(System::VOR2).vor2);
    QWidget *widget = canvas.getWidget();
    QWidget *viewport = static_cast<QAbstractScrollArea *>(widget)->viewport();
    VOR2::HostRuntime::bridge().runOnGui([widget] {
        widget->resize(1920, 1080);
        widget->show();
    }, true);
    auto &loop = VOR2::HostRuntime::loop();
    if (!loop.runUntil([&] { return canvas.getViewExtents().x > 0; }, 5000ms)) {
        std::fprintf(stderr, "gui_paint: the canvas never got a view\n");
        std::abort();
    }
    canvas.setInitialSceneOriginAndScale({SCENE_SIZE / 2 - 960, SCENE_SIZE / 2 - 540}, 1.0);
    loop.runFor(200ms); // the render reaches the viewer
    QSize size;
    VOR2::HostRuntime::bridge().runOnGui([&] { size = viewport->size(); }, true);
    QImage const pixels = canvas.getSceneServer().getImage(0).scaled(size).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QImage screen(size, QImage::Format_ARGB32_Premultiplied);
    runAlternating(state, {System::VOR2, System::Painter}, [&](System s, Recorder &r) {
        double t = 0;
        VOR2::HostRuntime::bridge().runOnGui([&] {
            t = timed([&] {
                if (s == System::VOR2) {
                    viewport->repaint();
                } else {
                    QPainter painter(&screen);
                    painter.setCompositionMode(QPainter::CompositionMode_Source);
                    painter.drawImage(0, 0, pixels);
                }
            });
        }, true);
        r.time("gui_paint", t);
    });
    VOR2::HostRuntime::bridge().runOnGui([widget] { widget->hide(); }, true);
    loop.runUntilIdle();
}
} // namespace

void registerGuiPaint(Workload w, int n, int iterations, int repetitions)
{
    registerBench("gui_paint", w, n, iterations, repetitions, [=](benchmark::State &s) { guiPaint(s, w, n); });
}

} // namespace bench
