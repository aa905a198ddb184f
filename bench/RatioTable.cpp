#include "RatioTable.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <sstream>

namespace bench {

namespace {
char const *const METRICS[] = {"build",           "bytes_per_node",   "teardown",       "hit_test",
                               "hover_move",      "render_dirty_200", "render_view_in", "render_view_out",
                               "move_one",        "move_all",         "zoom_step",      "gui_paint",
                               "glow_blur",       "glow_view",        "glow_view_cold", "glow_move_one"};
char const *const BASES[] = {"qt_bsp", "qt_noindex", "painter"};

int metricOrder(std::string const &metric)
{
    for (size_t i = 0; i < std::size(METRICS); ++i)
        if (metric == METRICS[i]) return int(i);
    return int(std::size(METRICS));
}

double median(std::vector<double> v)
{
    if (v.empty()) return NAN;
    std::sort(v.begin(), v.end());
    size_t m = v.size() / 2;
    return v.size() % 2 ? v[m] : (v[m - 1] + v[m]) / 2;
}

std::string formatValue(std::string const &metric, double v)
{
    if (std::isnan(v)) return "–";
    char buf[64];
    if (metric == "bytes_per_node")
        std::snprintf(buf, sizeof buf, "%.0f B", v);
    else if (v >= 1)
        std::snprintf(buf, sizeof buf, "%.2f s", v);
    else if (v >= 1e-3)
        std::snprintf(buf, sizeof buf, "%.2f ms", v * 1e3);
    else if (v >= 1e-6)
        std::snprintf(buf, sizeof buf, "%.2f µs", v * 1e6);
    else
        std::snprintf(buf, sizeof buf, "%.0f ns", v * 1e9);
    return buf;
}

std::string formatRatio(double r)
{
    if (std::isnan(r)) return "–";
    char buf[32];
    std::snprintf(buf, sizeof buf, r >= 100 ? "%.0f" : "%.2f", r);
    return buf;
}

std::string sizeLabel(int n)
{
    if (n >= 1000000 && n % 1000000 == 0) return std::to_string(n / 1000000) + "M";
    if (n >= 1000 && n % 1000 == 0) return std::to_string(n / 1000) + "k";
    return std::to_string(n);
}
} // namespace

void RatioTable::ReportRuns(std::vector<Run> const &runs)
{
    for (Run const &run : runs) {
        if (run.run_type != Run::RT_Iteration) continue;
        std::string const name = run.run_name.function_name; // group/W/N
        if (run.error_occurred) {
            m_errors += name + ": " + run.error_message + "\n";
            continue;
        }
        size_t a = name.find('/'), b = name.rfind('/');
        std::string workload = name.substr(a + 1, b - a - 1);
        int n = std::stoi(name.substr(b + 1));
        for (auto const &[key, counter] : run.counters) {
            size_t colon = key.find(':');
            if (colon == std::string::npos) continue;
            std::string metric = key.substr(0, colon), system = key.substr(colon + 1);
            Row &row = m_rows[{metricOrder(metric), workload, n}];
            row.metric = metric;
            row.values[system][run.repetition_index] = counter.value;
        }
        std::fprintf(stderr, "  %-28s repetition %lld/%lld done\n", name.c_str(), (long long)run.repetition_index + 1,
                     (long long)run.repetitions);
    }
}

double RatioTable::medianValue(Row const &row, std::string const &system) const
{
    auto it = row.values.find(system);
    if (it == row.values.end()) return NAN;
    std::vector<double> v;
    for (auto const &[rep, value] : it->second) v.push_back(value);
    return median(v);
}

double RatioTable::medianRatio(Row const &row, std::string const &system, std::string const &base) const
{
    auto s = row.values.find(system), b = row.values.find(base);
    if (s == row.values.end() || b == row.values.end()) return NAN;
    std::vector<double> ratios;
    for (auto const &[rep, value] : s->second) {
        auto other = b->second.find(rep);
        if (other != b->second.end() && other->second > 0) ratios.push_back(value / other->second);
    }
    return median(ratios);
}

std::string RatioTable::markdown() const
{
    std::ostringstream out;
    out << "| Metric | W | N | VOR2 | Qt BSP | Qt NoIndex | QPainter | VOR2 / Qt BSP | VOR2 / Qt NoIndex | VOR2 / QPainter |\n"
        << "|---|---|---:|---:|---:|---:|---:|---:|---:|---:|\n";
    for (auto const &[key, row] : m_rows) {
        out << "| " << row.metric << " | " << std::get<1>(key) << " | " << sizeLabel(std::get<2>(key)) << " | "
            << formatValue(row.metric, medianValue(row, "vor2"));
        for (char const *base : BASES) out << " | " << formatValue(row.metric, medianValue(row, base));
        for (char const *base : BASES) out << " | " << formatRatio(medianRatio(row, "vor2", base));
        out << " |\n";
    }
    return out.str();
}

std::string RatioTable::worstRatios(std::string const &workload, int n, int count) const
{
    std::vector<std::pair<double, std::string>> all;
    for (auto const &[key, row] : m_rows) {
        if (std::get<1>(key) != workload || std::get<2>(key) != n) continue;
        for (char const *base : {"qt_bsp", "qt_noindex"}) {
            double r = medianRatio(row, "vor2", base);
            if (!std::isnan(r)) all.emplace_back(r, row.metric + " against " + base);
        }
    }
    std::sort(all.rbegin(), all.rend());
    std::ostringstream out;
    for (int i = 0; i < count && i < int(all.size()); ++i)
        out << "- " << all[size_t(i)].second << ": " << formatRatio(all[size_t(i)].first) << "\n";
    return out.str();
}

} // namespace bench
