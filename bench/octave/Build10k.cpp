// The C++ side of the script timing: a scene of N rectangle nodes built in a
// loop as bench/octave/build_10k.m builds it from Octave (a RectNode with its
// rectangle, addNode, a tag), timed with the steady clock. Prints the time
// per node of each repetition and their median.
//
// usage: vor2_build_10k [N] [REPETITIONS]     (defaults 10000 and 5)

#include <HostRuntime>
#include <RectNode>
#include <Scene>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <vector>

int main(int argc, char **argv)
{
    int const n = argc > 1 ? std::atoi(argv[1]) : 10000;
    int const repetitions = argc > 2 ? std::atoi(argv[2]) : 5;
    if (n <= 0 || repetitions <= 0) {
        std::fprintf(stderr, "usage: vor2_build_10k [N] [REPETITIONS]\n");
        return 2;
    }
    VOR2::HostRuntime::start();
    GLOX::StringID const tag("cell");
    std::vector<double> perNode;
    for (int rep = 0; rep < repetitions; ++rep) {
        auto scene = VOR2::Scene::createScene();
        auto const begin = std::chrono::steady_clock::now();
        for (int k = 1; k <= n; ++k) {
            VOR2::RectNode r(GLOX::GLRect<double>((k % 100) * 10.0, (k / 100) * 10.0, 8, 8));
            scene->addNode(r);
            r.addTag(tag);
        }
        double const seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
        perNode.push_back(seconds / n * 1e6);
        std::printf("repetition %d: %.3f us per node (%d nodes, %.1f ms)\n", rep + 1, perNode.back(), n,
                    seconds * 1e3);
    }
    std::sort(perNode.begin(), perNode.end());
    std::printf("median: %.3f us per node\n", perNode[perNode.size() / 2]);
    VOR2::HostRuntime::stop();
    return 0;
}
