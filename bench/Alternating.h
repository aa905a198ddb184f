#pragma once
// Runs measured operations for several systems in turn inside a Google
// Benchmark loop. Each iteration runs every system once, starting with a
// different one each time, so that drifts of the machine (clock, caches,
// other load) fall on all of them alike. What a system's turn records is
// reported as the counter "<metric>:<system>", averaged over the
// iterations: seconds per operation for times, plain values otherwise.
// RatioTable pairs the counters of one repetition.

#include "Systems.h"

#include <benchmark/benchmark.h>
#include <chrono>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace bench {

// Seconds taken by `op`.
inline double timed(std::function<void()> const &op)
{
    auto start = std::chrono::steady_clock::now();
    op();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// What one system's turn measured.
class Recorder {
public:
    void time(std::string const &metric, double seconds) { m_values[metric] += seconds, m_time += seconds; }
    void value(std::string const &metric, double v) { m_values[metric] += v; }

private:
    friend void runAlternating(benchmark::State &, std::vector<System> const &,
                               std::function<void(System, Recorder &)> const &);
    std::map<std::string, double> m_values;
    double m_time = 0;
};

// `measure(system, recorder)` performs the operations once for `system`,
// timing only the parts that count.
inline void runAlternating(benchmark::State &state, std::vector<System> const &systems,
                           std::function<void(System, Recorder &)> const &measure)
{
    std::vector<Recorder> records(systems.size());
    size_t turn = 0;
    for (auto _ : state) {
        double iteration = 0;
        for (size_t k = 0; k < systems.size(); ++k) {
            size_t i = (turn + k) % systems.size();
            double before = records[i].m_time;
            measure(systems[i], records[i]);
            iteration += records[i].m_time - before;
        }
        ++turn;
        state.SetIterationTime(iteration);
    }
    for (size_t i = 0; i < systems.size(); ++i)
        for (auto const &[metric, total] : records[i].m_values)
            state.counters[metric + ":" + systemKey(systems[i])] = total / double(state.iterations());
}

// The systems that hold a scene, and those plus direct painting.
inline std::vector<System> const SCENE_SYSTEMS{System::VOR2, System::QtBsp, System::QtNoIndex};
inline std::vector<System> const ALL_SYSTEMS{System::VOR2, System::QtBsp, System::QtNoIndex, System::Painter};

} // namespace bench
