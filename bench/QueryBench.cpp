// Hit test at a point: the topmost node or item under each of a fixed set of
// scene points (half of them on shapes). VOR2 answers Scene::getNodeAt, Qt
// QGraphicsScene::itemAt.

#include "Alternating.h"
#include "BenchRegistry.h"
#include "Fixture.h"

#include <Scene>

namespace bench {

namespace {
constexpr int PROBES = 16;

void hitTest(benchmark::State &state, Workload w, int n)
{
    Fixture &f = Fixture::get(w, n);
    std::vector<QPointF> const points = probePoints(w, n, PROBES);
    runAlternating(state, SCENE_SYSTEMS, [&](System s, Recorder &r) {
        BuiltScene &scene = f.scene(s);
        int hits = 0;
        double t = timed([&] {
            for (QPointF const &p : points) {
                if (s == System::VOR2)
                    hits += scene.vor2->getNodeAt({p.x(), p.y()}).isValid();
                else
                    hits += scene.qt->itemAt(p, QTransform()) != nullptr;
            }
        });
        benchmark::DoNotOptimize(hits);
        r.time("hit_test", t / PROBES);
    });
}
} // namespace

void registerQueries(Workload w, int n, int iterations, int repetitions)
{
    registerBench("hit_test", w, n, iterations, repetitions, [=](benchmark::State &s) { hitTest(s, w, n); });
}

} // namespace bench
