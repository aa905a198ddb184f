// The GUI thread's share of showing a view: composing the published layer
// images of a full 1920 by 1080 view (paintLayers, as the viewer's paint
// does) against one drawImage of the same pixels with CompositionMode_Source,
// the least any paint can do. Measured on the GUI thread.

#include "Alternating.h"
#include "BenchRegistry.h"
#include "Fixture.h"
#include "LayerViews.h"

#include "GLBridge/Bridge.h"
#include <HostRuntime>

#include "widget/LayerPainter.h"

#include <QPainter>

namespace bench {

namespace {
void guiPaint(benchmark::State &state, Workload w, int n)
{
    Fixture &f = Fixture::get(w, n);
    QSize const size(1920, 1080);
    LayerView view(f.scene(System::VOR2), size, 1.0, QPointF(SCENE_SIZE / 2 - 960, SCENE_SIZE / 2 - 540));
    VOR2::Rendering &rendering = view.server()->rendering();
    QImage const layer = view.image().copy();
    // The backing store of a window: what a paint event draws into.
    QImage screen(size, QImage::Format_ARGB32_Premultiplied);
    runAlternating(state, {System::VOR2, System::Painter}, [&](System s, Recorder &r) {
        double t = 0;
        VOR2::HostRuntime::bridge().runOnGui([&] {
            t = timed([&] {
                QPainter painter(&screen);
                if (s == System::VOR2) {
                    VOR2::Rendering::Locker lock(rendering);
                    VOR2::paintLayers(&painter, rendering, screen.rect());
                } else {
                    painter.setCompositionMode(QPainter::CompositionMode_Source);
                    painter.drawImage(0, 0, layer);
                }
            });
        }, true);
        r.time("gui_paint", t);
    });
}
} // namespace

void registerGuiPaint(Workload w, int n, int iterations, int repetitions)
{
    registerBench("gui_paint", w, n, iterations, repetitions, [=](benchmark::State &s) { guiPaint(s, w, n); });
}

} // namespace bench
