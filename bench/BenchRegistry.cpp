#include "BenchRegistry.h"

namespace bench {

void registerBench(std::string const &group, Workload w, int n, int iterations, int repetitions,
                   std::function<void(benchmark::State &)> fn)
{
    std::string name = group + "/" + workloadName(w) + "/" + std::to_string(n);
    benchmark::RegisterBenchmark(name.c_str(), [fn](benchmark::State &s) { fn(s); })
        ->Iterations(iterations)
        ->Repetitions(repetitions)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

} // namespace bench
