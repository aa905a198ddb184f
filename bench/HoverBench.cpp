// Hover move: the host thread's handling of one pointer move over a canvas
// showing the scene, at scale 1 with scene (0, 0) at the viewport's corner:
// the canvas's input signal, the dispatcher that makes the library event,
// the scene's hover (enter, move and exit of the node under the pointer)
// and every tool of a fresh scene's stack. Qt answers
// QGraphicsScene::itemAt at the same scene points, the least a hover can
// cost it. The points are those of hit_test, visited in turn, so the
// pointer jumps between shapes and empty space.

#include "Alternating.h"
#include "BenchRegistry.h"
#include "Fixture.h"

#include <GLCanvas>
#include <HostRuntime>
#include <Scene>

#include "GLServices/HostRunLoop.h"
#include "widget/GLCanvasEmitters.h"

#include <QGraphicsScene>
#include <vector>

namespace bench {

namespace {
constexpr int PROBES = 64;

void hoverMove(benchmark::State &state, Workload w, int n)
{
    Fixture &f = Fixture::get(w, n);
    std::vector<QPointF> const points = probePoints(w, n, PROBES);
    VOR2::GLCanvas canvas;
    canvas.setInitialSceneOriginAndScale({0, 0}, 1.0);
    canvas.setScene(f.scene(System::VOR2).vor2);
    VOR2::HostRuntime::loop().runUntilIdle();
    std::vector<GLOX::GLMouseEvent2> moves;
    for (QPointF const &p : points)
        moves.emplace_back(&canvas, GLOX::GLPoint<double>(p.x(), p.y()), GLOX::GLPoint<double>(p.x(), p.y()),
                           GLOX::GLPoint<double>(p.x(), p.y()), 0, Qt::NoButton, GLOX::GLFlags<GLOX::MouseButton>(),
                           GLOX::GLFlags<GLOX::Modifier>());
    // The dispatcher listens on this thread, so each move is handled
    // within the send, as a delivery from the GUI thread is by the loop.
    VOR2::GLCanvasEmitters &input = canvas.getEmitters();
    runAlternating(state, {System::VOR2, System::QtBsp}, [&](System s, Recorder &r) {
        BuiltScene &scene = f.scene(s);
        int hits = 0;
        double t = timed([&] {
            if (s == System::VOR2)
                for (GLOX::GLMouseEvent2 const &move : moves) input.mouseMoved.send(move);
            else
                for (QPointF const &p : points) hits += scene.qt->itemAt(p, QTransform()) != nullptr;
        });
        benchmark::DoNotOptimize(hits);
        r.time("hover_move", t / PROBES);
        VOR2::HostRuntime::loop().runUntilIdle(); // what the moves queued, outside the timing
    });
    canvas.setScene(nullptr);
    VOR2::HostRuntime::loop().runUntilIdle();
}
} // namespace

void registerHover(Workload w, int n, int iterations, int repetitions)
{
    registerBench("hover_move", w, n, iterations, repetitions, [=](benchmark::State &s) { hoverMove(s, w, n); });
}

} // namespace bench
