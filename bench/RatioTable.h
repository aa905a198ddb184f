#pragma once
// RatioTable: a Google Benchmark reporter that keeps, for every repetition
// of every benchmark, the counters "<metric>:<system>" (see Alternating.h),
// and turns them into one table: per metric, workload and size, the median
// of each system's values and the medians of the per-repetition ratios
// VOR2 / Qt with BSP index, VOR2 / Qt with no index and VOR2 / QPainter.
// A ratio is formed only within one repetition, where the systems ran in
// alternation.

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <tuple>
#include <vector>

namespace bench {

class RatioTable : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(Context const &) override { return true; }
    // Keeps the repetitions' counters and prints one progress line each to
    // stderr; aggregates are ignored.
    void ReportRuns(std::vector<Run> const &runs) override;
    void Finalize() override {}

    // The table in Markdown, rows in a fixed order of metrics, then
    // workload, then size.
    std::string markdown() const;
    // The `count` highest median ratios of VOR2 against either Qt scene at
    // one workload and size, worst first, one Markdown list item each.
    std::string worstRatios(std::string const &workload, int n, int count) const;
    // Benchmarks that reported an error, one per line.
    std::string const &errors() const { return m_errors; }

private:
    using RowKey = std::tuple<int, std::string, int>; // metric order, workload, N
    struct Row {
        std::string metric;
        // system -> value per repetition index
        std::map<std::string, std::map<int64_t, double>> values;
    };
    double medianValue(Row const &row, std::string const &system) const;
    double medianRatio(Row const &row, std::string const &system, std::string const &base) const;

    std::map<RowKey, Row> m_rows;
    std::string m_errors;
};

} // namespace bench
