// The server's passes, from the call to the updated layer image:
//   move_one   one node moved by its setter, then one host-loop turn that
//              delivers the change and redraws what the node left and
//              entered (Qt: setPos, the same turn, changed() redrawn);
//   zoom_step  the view's scale steps between 1 and 1.25 about the middle of
//              a 1920 by 1080 view, and every layer image is redrawn.

#include "Alternating.h"
#include "BenchRegistry.h"
#include "Fixture.h"
#include "LayerViews.h"

#include "GLServices/HostRunLoop.h"
#include <HostRuntime>

#include <cstdio>
#include <cstdlib>

namespace bench {

namespace {
QSize const VIEW(1920, 1080);

QPointF originCentredAt(QPointF centre, double scale)
{
    return centre - QPointF(VIEW.width() / 2.0, VIEW.height() / 2.0) / scale;
}

void moveOne(benchmark::State &state, Workload w, int n)
{
    Fixture &f = Fixture::get(w, n);
    QPointF const centre = shapes(w, n).front().rect.center();
    std::map<System, std::unique_ptr<LayerView>> views;
    for (System s : SCENE_SYSTEMS)
        views[s] = std::make_unique<LayerView>(f.scene(s), VIEW, 1.0, originCentredAt(centre, 1.0));
    VOR2::HostRuntime::loop().runUntilIdle();
    std::map<System, int> steps;
    runAlternating(state, SCENE_SYSTEMS, [&](System s, Recorder &r) {
        BuiltScene &scene = f.scene(s);
        QPointF to = steps[s]++ % 2 ? QPointF(0, 0) : QPointF(30, 20);
        r.time("move_one", timed([&] {
            if (s == System::VOR2)
                scene.firstNode.setPosition({to.x(), to.y()});
            else
                scene.firstItem->setPos(to);
            VOR2::HostRuntime::loop().runUntilIdle();
        }));
        // A pass that redrew nothing measured nothing: stop rather than report it.
        if (views[s]->takeRedrawn().isEmpty()) {
            std::fprintf(stderr, "move_one: %s redrew nothing\n", systemKey(s));
            std::abort();
        }
    });
}

void zoomStep(benchmark::State &state, Workload w, int n)
{
    Fixture &f = Fixture::get(w, n);
    QPointF const centre(SCENE_SIZE / 2, SCENE_SIZE / 2);
    std::map<System, std::unique_ptr<LayerView>> views;
    for (System s : ALL_SYSTEMS)
        views[s] = std::make_unique<LayerView>(f.scene(s), VIEW, 1.0, originCentredAt(centre, 1.0));
    VOR2::HostRuntime::loop().runUntilIdle();
    std::map<System, int> steps;
    runAlternating(state, ALL_SYSTEMS, [&](System s, Recorder &r) {
        double scale = steps[s]++ % 2 ? 1.0 : 1.25;
        r.time("zoom_step", timed([&] { views[s]->setView(scale, originCentredAt(centre, scale)); }));
    });
}
} // namespace

void registerServer(Workload w, int n, int iterations, int repetitions)
{
    registerBench("move_one", w, n, iterations * 4, repetitions, [=](benchmark::State &s) { moveOne(s, w, n); });
    registerZoom(w, n, iterations, repetitions);
}

void registerZoom(Workload w, int n, int iterations, int repetitions)
{
    registerBench("zoom_step", w, n, iterations, repetitions, [=](benchmark::State &s) { zoomStep(s, w, n); });
}

} // namespace bench
