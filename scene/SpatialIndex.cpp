#include "scene/SpatialIndex.h"

#include "values/UsableNumber.h"

#include <absl/container/flat_hash_map.h>
#include <boost/geometry.hpp>
#include <boost/geometry/geometries/box.hpp>
#include <boost/geometry/geometries/point.hpp>
#include <boost/geometry/index/rtree.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <utility>
#include <vector>

namespace VOR2 {

namespace bg = boost::geometry;
namespace bgi = boost::geometry::index;

namespace {
// Boxes are kept in single precision, rounded outward: half the memory, and
// a candidate a hair too many at worst. Nodes beyond what a float holds go
// to the list that every query walks.
using Point = bg::model::point<float, 2, bg::cs::cartesian>;
using Box = bg::model::box<Point>;
using Value = std::pair<Box, NodeImpl *>;
using Tree = bgi::rtree<Value, bgi::quadratic<16>>;

// Class k (below SCALED) holds the nodes that reach at most 2^k pixels
// beyond their box; class SCALED + k those that also reach in pixels over
// the scale, at most 2^k of both together. Beyond the last class, nodes wait
// in a list that every query walks.
constexpr int CLASSES_PER_KIND = 24;
constexpr int SCALED = CLASSES_PER_KIND;
constexpr int CLASS_COUNT = 2 * CLASSES_PER_KIND;
constexpr int UNFILED = -1;
constexpr int OUTSIDE = CLASS_COUNT;

int powerClass(double reach)
{
    if (!(reach <= std::ldexp(1.0, CLASSES_PER_KIND - 1))) return -1; // NaN too
    if (reach <= 1.0) return 0;
    return int(std::ceil(std::log2(reach)));
}

int classOf(IndexedPlace const &p)
{
    bool const scaled = p.reachPixelsOverScale != 0.0;
    int const k = powerClass(scaled ? p.reachPixels + p.reachPixelsOverScale : p.reachPixels);
    if (k < 0) return OUTSIDE;
    return scaled ? SCALED + k : k;
}

// What class `cls` reaches beyond its boxes at view scale s.
double growthOf(int cls, double scale)
{
    if (!(scale > 0)) return HUGE_VAL;
    if (cls < SCALED) return std::ldexp(1.0, cls) / scale;
    double const r = std::ldexp(1.0, cls - SCALED);
    return scale >= 1.0 ? r / scale : r / (scale * scale);
}

constexpr double FLOAT_RANGE = 1e37;

float down(double v)
{
    float f = float(v);
    return double(f) > v ? std::nextafter(f, -HUGE_VALF) : f;
}
float up(double v)
{
    float f = float(v);
    return double(f) < v ? std::nextafter(f, HUGE_VALF) : f;
}
bool fitsFloat(QRectF const &r)
{
    return std::fabs(r.left()) < FLOAT_RANGE && std::fabs(r.right()) < FLOAT_RANGE && std::fabs(r.top()) < FLOAT_RANGE &&
           std::fabs(r.bottom()) < FLOAT_RANGE;
}
Box toBox(QRectF const &r)
{
    return Box(Point(down(r.left()), down(r.top())), Point(up(r.right()), up(r.bottom())));
}

struct Entry {
    Box box;
    std::int8_t cls = UNFILED;
    bool dirty = false; // in the dirty list, to be filed at the next flush
};
} // namespace

struct SpatialIndex::Data {
    PlaceOf placeOf;
    std::array<Tree, CLASS_COUNT> trees;
    std::vector<NodeImpl *> outside;
    absl::flat_hash_map<NodeImpl *, Entry> entries;
    // Nodes marked since the last flush; a removed one stays here, and is
    // looked up by key only, never through the pointer.
    std::vector<NodeImpl *> dirtyList;

    void unfile(NodeImpl *node, Entry &entry)
    {
        if (entry.cls == OUTSIDE)
            outside.erase(std::find(outside.begin(), outside.end(), node));
        else if (entry.cls != UNFILED)
            trees[size_t(entry.cls)].remove(Value(entry.box, node));
        entry.cls = UNFILED;
    }
    // Where the node goes now; UNFILED when it is nowhere.
    void place(NodeImpl *node, Entry &entry)
    {
        entry.dirty = false;
        IndexedPlace const p = placeOf(node);
        if (!(p.box.width() >= 0 && p.box.height() >= 0)) return; // nowhere
        if (!fitsFloat(p.box)) {
            entry.cls = OUTSIDE;
            return;
        }
        entry.box = toBox(p.box);
        entry.cls = std::int8_t(classOf(p));
    }
    void fileOne(NodeImpl *node, Entry &entry)
    {
        place(node, entry);
        if (entry.cls == OUTSIDE)
            outside.push_back(node);
        else if (entry.cls != UNFILED)
            trees[size_t(entry.cls)].insert(Value(entry.box, node));
    }
    // Files everything anew, each tree packed in one go: quicker than one
    // insertion at a time when most nodes changed (a new scene).
    void rebuild()
    {
        std::array<std::vector<Value>, CLASS_COUNT> values;
        outside.clear();
        for (auto &[node, entry] : entries) {
            if (entry.dirty) place(node, entry);
            if (entry.cls == OUTSIDE)
                outside.push_back(node);
            else if (entry.cls != UNFILED)
                values[size_t(entry.cls)].emplace_back(entry.box, node);
        }
        for (int k = 0; k < CLASS_COUNT; ++k) trees[size_t(k)] = Tree(values[size_t(k)]);
    }
};

SpatialIndex::SpatialIndex(PlaceOf placeOf) : d(std::make_unique<Data>())
{
    d->placeOf = std::move(placeOf);
}

SpatialIndex::~SpatialIndex() = default;

void SpatialIndex::markDirty(NodeImpl *node)
{
    Entry &entry = d->entries[node];
    if (entry.dirty) return;
    entry.dirty = true;
    d->dirtyList.push_back(node);
}

void SpatialIndex::remove(NodeImpl *node)
{
    auto it = d->entries.find(node);
    if (it == d->entries.end()) return;
    d->unfile(node, it->second);
    d->entries.erase(it);
}

void SpatialIndex::flush()
{
    if (d->dirtyList.empty()) return;
    if (d->dirtyList.size() * 4 > d->entries.size() && d->dirtyList.size() > 64) {
        for (auto &tree : d->trees) tree.clear();
        for (auto &[node, entry] : d->entries)
            if (entry.dirty) entry.cls = UNFILED;
        d->rebuild();
    } else {
        for (NodeImpl *node : d->dirtyList) {
            auto it = d->entries.find(node);
            if (it == d->entries.end() || !it->second.dirty) continue; // removed, or filed already
            d->unfile(node, it->second);
            d->fileOne(node, it->second);
        }
    }
    d->dirtyList.clear();
}

std::size_t SpatialIndex::size() const { return d->entries.size(); }

void SpatialIndex::clear()
{
    for (auto &tree : d->trees) tree.clear();
    d->outside.clear();
    d->entries.clear();
    d->dirtyList.clear();
}

QRectF SpatialIndex::extent(double scale)
{
    flush();
    QRectF united;
    auto unite = [&](Box const &b, double grow) {
        united |= QRectF(QPointF(double(b.min_corner().get<0>()) - grow, double(b.min_corner().get<1>()) - grow),
                         QPointF(double(b.max_corner().get<0>()) + grow, double(b.max_corner().get<1>()) + grow));
    };
    for (int k = 0; k < CLASS_COUNT; ++k) {
        Tree const &tree = d->trees[size_t(k)];
        if (!tree.empty()) unite(tree.bounds(), growthOf(k, scale));
    }
    // The few of immense reach are asked again; one past all bounds is left out.
    for (NodeImpl *node : d->outside) {
        IndexedPlace const p = d->placeOf(node);
        double const grow = p.reachPixels / scale + p.reachPixelsOverScale / (scale * scale);
        QRectF const r = p.box.adjusted(-grow, -grow, grow, grow);
        if (std::isfinite(grow) && hasUsableArea(r)) united |= r;
    }
    return united;
}

void SpatialIndex::forEachCandidate(QRectF const &area, double scale, std::function<void(NodeImpl *)> const &visit)
{
    flush();
    QRectF const a = area.normalized();
    for (int k = 0; k < CLASS_COUNT; ++k) {
        Tree const &tree = d->trees[size_t(k)];
        if (tree.empty()) continue;
        double const grow = growthOf(k, scale);
        Box const query(Point(down(a.left() - grow), down(a.top() - grow)),
                        Point(up(a.right() + grow), up(a.bottom() + grow)));
        for (auto it = tree.qbegin(bgi::intersects(query)); it != tree.qend(); ++it) visit(it->second);
    }
    for (NodeImpl *node : d->outside) visit(node);
}

} // namespace VOR2
