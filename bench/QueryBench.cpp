// Hit test at a point: the topmost node or item under each of a fixed set of
// scene points (half of them on shapes). VOR2 answers Scene::getNodeAt, Qt
// QGraphicsScene::itemAt.
//
// Move all: every node or item moves by one unit (and back on the next
// round), then one hit test: what an index pays when everything changes at
// once (Qt's BSP tree is re-indexed, VOR2's index files every node anew).

#include "Alternating.h"
#include "BenchRegistry.h"
#include "Fixture.h"

#include <HostRuntime>
#include <Node>
#include <Scene>

#include "GLServices/HostRunLoop.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <algorithm>
#include <map>
#include <vector>

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
void moveAll(benchmark::State &state, Workload w, int n)
{
    Fixture &f = Fixture::get(w, n);
    QPointF const probe = probePoints(w, n, 1).front();
    std::map<System, std::vector<VOR2::Node>> nodes;
    std::map<System, QList<QGraphicsItem *>> items;
    for (System s : SCENE_SYSTEMS) {
        if (s == System::VOR2)
            for (VOR2::Node const &node : f.scene(s).vor2->getAllNodes()) nodes[s].push_back(node);
        else
            items[s] = f.scene(s).qt->items();
    }
    std::map<System, int> rounds;
    auto moveAndAsk = [&](System s) {
        BuiltScene &scene = f.scene(s);
        double const d = rounds[s]++ % 2 ? 0.0 : 1.0;
        if (s == System::VOR2) {
            for (VOR2::Node const &node : nodes[s]) node.setPosition({d, d});
            return scene.vor2->getNodeAt({probe.x(), probe.y()}).isValid();
        }
        for (QGraphicsItem *item : items[s]) item->setPos(d, d);
        return scene.qt->itemAt(probe, QTransform()) != nullptr;
    };
    // Once unmeasured, so that first-time set-up (an index built the first
    // time it is asked) counts for nobody.
    for (System s : SCENE_SYSTEMS) benchmark::DoNotOptimize(moveAndAsk(s));
    VOR2::HostRuntime::loop().runUntilIdle();
    runAlternating(state, SCENE_SYSTEMS, [&](System s, Recorder &r) {
        bool hit = false;
        r.time("move_all", timed([&] { hit = moveAndAsk(s); }));
        benchmark::DoNotOptimize(hit);
        VOR2::HostRuntime::loop().runUntilIdle(); // what the moves queued, outside the timing
    });
}
} // namespace

void registerQueries(Workload w, int n, int iterations, int repetitions)
{
    registerBench("hit_test", w, n, iterations, repetitions, [=](benchmark::State &s) { hitTest(s, w, n); });
    registerBench("move_all", w, n, std::max(4, iterations / 2), repetitions,
                  [=](benchmark::State &s) { moveAll(s, w, n); });
}

} // namespace bench
