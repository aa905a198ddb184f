// Build, heap bytes per node and teardown: a scene of N shapes is created
// and filled, measured on the heap, and destroyed, with no host-loop turn in
// between (removing many items before any event-loop turn is where Qt's
// per-item removal turns quadratic).

#include "Alternating.h"
#include "BenchRegistry.h"
#include "Fixture.h"
#include "HeapCounter.h"

namespace bench {

namespace {
void lifecycle(benchmark::State &state, Workload w, int n)
{
    Fixture::release(); // nothing else on the heap while we count
    std::vector<Shape> const &list = shapes(w, n);
    BuiltScene(System::VOR2, list, false).teardown(); // the heap grows once, untimed
    runAlternating(state, SCENE_SYSTEMS, [&](System s, Recorder &r) {
        std::unique_ptr<BuiltScene> scene;
        size_t before = heapBytesInUse();
        r.time("build", timed([&] { scene = std::make_unique<BuiltScene>(s, list, false); }));
        r.value("bytes_per_node", double(heapBytesInUse() - before) / n);
        r.time("teardown", timed([&] { scene->teardown(); }));
    });
}
} // namespace

void registerLifecycle(Workload w, int n, int iterations, int repetitions)
{
    registerBench("lifecycle", w, n, iterations, repetitions, [=](benchmark::State &s) { lifecycle(s, w, n); });
}

} // namespace bench
