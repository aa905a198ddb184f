#include "Workloads.h"

#include <QtMath>
#include <cmath>
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

// A W3 path of 4 to 32 points inside the box `r`.
Shape path(std::mt19937 &g, int i, QRectF const &r, QColor const &fill)
{
    Shape s{ShapeKind::Path, r, fill, false, {}, false, false, {}};
    int const count = 4 + int(g() % 29);
    for (int k = 0; k < count; ++k)
        s.points.emplace_back(uniform(g, r.left(), r.right()), uniform(g, r.top(), r.bottom()));
    s.curved = i % 2 == 1;
    s.arrow = (i / 2) % 2 == 1;
    QPolygonF polygon(QVector<QPointF>(s.points.begin(), s.points.end()));
    s.rect = polygon.boundingRect();
    return s;
}

std::vector<Shape> generate(Workload w, int n)
{
    // W1S draws W1's list.
    std::mt19937 g(SEED + unsigned(w == Workload::W1S ? Workload::W1 : w));
    std::vector<Shape> out;
    out.reserve(size_t(n));
    for (int i = 0; i < n; ++i) {
        double wd = uniform(g, 10, 60), ht = uniform(g, 10, 60);
        double x = uniform(g, 0, SCENE_SIZE - wd), y = uniform(g, 0, SCENE_SIZE - ht);
        if (w == Workload::W4) {
            static char const *const WORDS[] = {"node", "scene", "graph", "path", "glow", "text", "view", "zoom",
                                                "tool", "layer", "edge", "arrow", "label", "value", "point", "shape"};
            QString text;
            for (int k = 1 + int(g() % 3); k > 0; --k) text += QString(text.isEmpty() ? "" : " ") + WORDS[g() % 16];
            out.push_back({ShapeKind::Text, QRectF(x, y, 0, 0), Qt::black, false, {}, false, false, text});
            continue;
        }
        if (w == Workload::W3) {
            out.push_back(path(g, i, QRectF(x, y, wd, ht), PALETTE[g() % 8]));
            continue;
        }
        ShapeKind kind = w == Workload::W2 ? ShapeKind(i % 4) : ShapeKind::Rect;
        out.push_back({kind, QRectF(x, y, wd, ht), PALETTE[g() % 8], w == Workload::W1S, {}, false, false, {}});
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
    case Workload::W3: return "W3";
    case Workload::W4: return "W4";
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

QPolygonF arrowHead()
{
    return QPolygonF({QPointF(0, 0), QPointF(-ARROW_LENGTH, -ARROW_WIDTH / 2), QPointF(-ARROW_LENGTH, ARROW_WIDTH / 2)});
}

QPointF arrowTip(Shape const &s) { return s.points.back(); }

double arrowDegrees(Shape const &s)
{
    QPointF d = s.points.back() - s.points[s.points.size() - 2];
    return qRadiansToDegrees(std::atan2(d.y(), d.x()));
}

QPainterPath pathOf(Shape const &s)
{
    std::vector<QPointF> p = s.points;
    if (s.arrow) {
        double const a = qDegreesToRadians(arrowDegrees(s));
        p.back() -= QPointF(std::cos(a), std::sin(a)) * ARROW_LENGTH;
    }
    QPainterPath path(p.front());
    if (!s.curved) {
        for (size_t k = 1; k < p.size(); ++k) path.lineTo(p[k]);
    } else {
        auto tangent = [&](size_t k) {
            return k == 0 || k + 1 == p.size() ? QPointF() : 0.5 * (p[k + 1] - p[k - 1]);
        };
        double const third = 0.3333333333333333;
        for (size_t k = 1; k < p.size(); ++k)
            path.cubicTo(p[k - 1] + third * tangent(k - 1), p[k] - third * tangent(k), p[k]);
    }
    if (!s.arrow) path.closeSubpath();
    return path;
}

QRectF paintedRect(Shape const &s, double scale)
{
    double m = 1.0 / scale + (s.outlined ? OUTLINE_WIDTH / 2 + 0.5 / scale : 0.0);
    if (s.kind == ShapeKind::Text) {
        // A generous box for three short words in the default font.
        return QRectF(s.rect.topLeft(), QSizeF(200, 40)).adjusted(-m, -m, m, m);
    }
    if (s.kind == ShapeKind::Path) {
        // A curve may swing outside its points' box; the head reaches half
        // its width past the last point.
        QRectF r = pathOf(s).controlPointRect();
        if (s.arrow) r |= QRectF(arrowTip(s), QSizeF()).adjusted(-ARROW_LENGTH, -ARROW_LENGTH, ARROW_LENGTH, ARROW_LENGTH);
        return r.adjusted(-m, -m, m, m);
    }
    return s.rect.adjusted(-m, -m, m, m);
}

} // namespace bench
