#pragma once
// Registration of the benchmarks, named "<group>/<workload>/<N>", with a
// fixed number of iterations and repetitions and manually timed
// iterations (only the measured parts count). The order of registration is
// the order of the run; benchmarks of one workload and size are kept
// together so that they share one Fixture.

#include "Workloads.h"

#include <benchmark/benchmark.h>
#include <functional>
#include <string>

namespace bench {

void registerBench(std::string const &group, Workload w, int n, int iterations, int repetitions,
                   std::function<void(benchmark::State &)> fn);

void registerLifecycle(Workload w, int n, int iterations, int repetitions);
void registerQueries(Workload w, int n, int iterations, int repetitions);
void registerHover(Workload w, int n, int iterations, int repetitions);
void registerRenders(Workload w, int n, int iterations, int repetitions);
void registerServer(Workload w, int n, int iterations, int repetitions);
// zoom_step alone, for workloads whose single move the Qt side does not
// redraw comparably (W4's text items).
void registerZoom(Workload w, int n, int iterations, int repetitions);
void registerGuiPaint(Workload w, int n, int iterations, int repetitions);
// Image effects against Qt's (GlowBench).
void registerGlows(int iterations, int repetitions);

} // namespace bench
