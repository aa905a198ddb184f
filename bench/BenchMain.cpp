// The benchmark program: VOR2 against plain Qt Graphics View and direct
// QPainter drawing, on the same shapes, in one run. It runs the library as
// a host does (HostRuntime: this thread is the host thread, the GUI thread
// owns the QApplication), prints one table and, with --doc FILE, writes the
// machine's description and the table into FILE's measured section.
//
// Options of its own (Google Benchmark's --benchmark_* options work too):
//   --doc FILE       where to write the table (e.g. docs/performance.md)
//   --repetitions R  repetitions of every benchmark (default 5)
//   --quick          sizes 1k and 10k only, 3 repetitions

#include "BenchRegistry.h"
#include "Fixture.h"
#include "PerformanceDoc.h"
#include "RatioTable.h"

#include "GLServices/HostRunLoop.h"
#include <HostRuntime>

#include <QByteArray>
#include <QGraphicsScene>
#include <climits>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <malloc.h>
#include <string>

using namespace bench;

namespace {
struct Options {
    std::string doc;
    int repetitions = 5;
    bool quick = false;
};

// Takes this program's options out of argv, leaving Google Benchmark's.
Options takeOptions(int &argc, char **argv)
{
    Options o;
    int kept = 1;
    for (int i = 1; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--doc") && i + 1 < argc)
            o.doc = argv[++i];
        else if (!std::strcmp(argv[i], "--repetitions") && i + 1 < argc)
            o.repetitions = std::max(1, std::atoi(argv[++i]));
        else if (!std::strcmp(argv[i], "--quick"))
            o.quick = true, o.repetitions = 3;
        else
            argv[kept++] = argv[i];
    }
    argc = kept;
    return o;
}

void registerAll(Options const &o)
{
    int const r = o.repetitions;
    std::vector<int> sizes{1000, 10000};
    if (!o.quick) sizes.push_back(100000);
    for (Workload w : {Workload::W1, Workload::W2, Workload::W1S, Workload::W3}) {
        for (int n : sizes) {
            // Fewer iterations as the scenes grow; every benchmark of one
            // size shares the same built scenes.
            int it = n <= 1000 ? 8 : n <= 10000 ? 4 : 2;
            registerLifecycle(w, n, 1, r);
            registerQueries(w, n, it, r);
            if (w == Workload::W1) registerHover(w, n, it, r);
            registerRenders(w, n, it, r);
            registerServer(w, n, it, r);
            if (w == Workload::W1 && n == sizes.back()) registerGuiPaint(w, n, 8, r);
        }
    }
    // Texts: build, full-view render and zoom at 10k, the size a diagram's
    // labels reach.
    for (int n : {1000, 10000}) {
        int it = n <= 1000 ? 8 : 4;
        registerLifecycle(Workload::W4, n, 1, r);
        registerRenders(Workload::W4, n, it, r);
        registerZoom(Workload::W4, n, it, r);
    }
    if (!o.quick)
        for (Workload w : {Workload::W1, Workload::W2}) registerLifecycle(w, 1000000, 1, 3);
    registerGlows(8, r);
}
} // namespace

int main(int argc, char **argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) qputenv("QT_QPA_PLATFORM", "offscreen");
    Options const options = takeOptions(argc, argv);
    benchmark::Initialize(&argc, argv);
    VOR2::HostRuntime::start();
    VOR2::HostRuntime::loop().runUntilIdle();

    // Freed memory stays with the process and large blocks come from the
    // heap, so that no system pays for page faults that another one's
    // teardown caused.
    mallopt(M_MMAP_THRESHOLD, 512 * 1024 * 1024);
    mallopt(M_TRIM_THRESHOLD, INT_MAX);
    // The first scene loads the fonts (fontconfig): not part of any build.
    delete new QGraphicsScene;

    registerAll(options);
    RatioTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    Fixture::release();

    std::string const worstN = options.quick ? "10000" : "100000";
    std::string body = "Machine:\n\n" + machineDescription() + "\nMedians over the repetitions; ratios are medians of "
                       "per-repetition ratios (below 1: VOR2 is faster or smaller).\n\n" + table.markdown() +
                       "\nHighest ratios at W1, N = " + worstN + ":\n\n" + table.worstRatios("W1", std::stoi(worstN), 3);
    if (!table.errors().empty()) body += "\nErrors:\n\n```\n" + table.errors() + "```\n";
    std::cout << body << std::flush;
    int status = table.errors().empty() ? 0 : 1;
    if (!options.doc.empty() && !writeMeasuredSection(options.doc, body)) {
        std::fprintf(stderr, "cannot write %s\n", options.doc.c_str());
        status = 1;
    }
    VOR2::HostRuntime::stop();
    return status;
}
