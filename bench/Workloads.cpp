#include "Workloads.h"

#include <map>
#include <memory>
#include <random>

namespace bench {

namespace {
constexpr unsigned SEED = 20250611u;
QColor const PALETTE[] = {QColor(66, 133, 244), QColor(219, 68, 55), QColor(244, 180, 0), QColor(15, 157, 88),
                          QColor(171, 71, 188), QColor(0, 172, 193), QColor(255, 112, 67), QColor(158, 157, 36)};

// A uniform double in [lo, hi) from raw 32-bit draws, so that the list does
// not depend on the standard library's distributions.
double uniform(std::mt19937 &g, double lo, double hi) { return lo + (hi - lo) * (g() / 4294967296.0); }

std::vector<Shape> generate(Workload w, int n)
{
    // W1S draws W1's list.
    std::mt19937 g(SEED + unsigned(w == Workload::W1S ? Workload::W1 : w));
    std::vector<Shape> out;
    out.reserve(size_t(n));
    for (int i = 0; i < n; ++i) {
        double wd = uniform(g, 10, 60), ht = uniform(g, 10, 60);
        double x = uniform(g, 0, SCENE_SIZE - wd), y = uniform(g, 0, SCENE_SIZE - ht);
        ShapeKind kind = w == Workload::W2 ? ShapeKind(i % 4) : ShapeKind::Rect;
        out.push_back({kind, QRectF(x, y, wd, ht), PALETTE[g() % 8], w == Workload::W1S});
    }
    return out;
}
} // namespace

std::string workloadName(Workload w)
{
    switch (w) {
    case Workload::W1: return "W1";
    case Workload::W2: return "W2";
    case Workload::W1S: return "W1S";
    }
    return "?";
}

QColor outlineColor() { return QColor(255, 0, 0, 191); }

std::vector<Shape> const &shapes(Workload w, int n)
{
    static std::map<std::pair<int, int>, std::unique_ptr<std::vector<Shape>>> cache;
    auto &slot = cache[{int(w), n}];
    if (!slot) slot = std::make_unique<std::vector<Shape>>(generate(w, n));
    return *slot;
}

std::vector<QPointF> probePoints(Workload w, int n, int count)
{
    std::vector<Shape> const &list = shapes(w, n);
    std::mt19937 g(SEED ^ 0x5eedu);
    std::vector<QPointF> out;
    for (int i = 0; i < count; ++i) {
        if (i % 2 == 0)
            out.push_back(list[g() % list.size()].rect.center());
        else
            out.emplace_back(uniform(g, 0, SCENE_SIZE), uniform(g, 0, SCENE_SIZE));
    }
    return out;
}

QRectF paintedRect(Shape const &s, double scale)
{
    double m = 1.0 / scale + (s.outlined ? OUTLINE_WIDTH / 2 + 0.5 / scale : 0.0);
    return s.rect.adjusted(-m, -m, m, m);
}

} // namespace bench
