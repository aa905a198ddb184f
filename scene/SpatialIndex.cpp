#include "scene/SpatialIndex.h"

#include "scene/IndexSlot.h"
#include "scene/NodeImpl.h"
#include "values/UsableNumber.h"

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

IndexSlot &slotOf(NodeImpl *node) { return node->indexSlot(); }

Box boxOf(IndexSlot const &s) { return Box(Point(s.box[0], s.box[1]), Point(s.box[2], s.box[3])); }

// Past this many dirty nodes, and a quarter of all, filing everything anew
// in packed trees is quicker than one removal and insertion each.
constexpr std::size_t FEW_DIRTY = 64;
} // namespace

struct SpatialIndex::Data {
    PlaceOf placeOf;
    std::array<Tree, CLASS_COUNT> trees;
    std::vector<NodeImpl *> outside;
    // Every node held; each knows its place here (IndexSlot::member).
    std::vector<NodeImpl *> members;
    // Nodes marked since the last flush, each knowing its place here
    // (IndexSlot::dirtyAt). Unused while refileAll holds.
    std::vector<NodeImpl *> dirtyList;
    // Everything is filed anew at the next flush: the trees are empty, a
    // clean member waits under its kept box and class, a dirty one is
    // placed again. So it starts: adding nodes to an index never queried
    // costs an append each, and the first query packs the whole scene.
    bool refileAll = true;

    bool holds(NodeImpl *node, IndexSlot const &s) const
    {
        return s.member < members.size() && members[s.member] == node;
    }
    void unfile(NodeImpl *node, IndexSlot &s)
    {
        if (s.cls == OUTSIDE)
            outside.erase(std::find(outside.begin(), outside.end(), node));
        else if (s.cls != UNFILED)
            trees[size_t(s.cls)].remove(Value(boxOf(s), node));
        s.cls = UNFILED;
    }
    // Where the node goes now; UNFILED when it is nowhere.
    void place(NodeImpl *node, IndexSlot &s)
    {
        s.dirty = false;
        s.cls = UNFILED;
        IndexedPlace const p = placeOf(node);
        if (!(p.box.width() >= 0 && p.box.height() >= 0)) return; // nowhere
        if (!fitsFloat(p.box)) {
            s.cls = OUTSIDE;
            return;
        }
        s.box[0] = down(p.box.left());
        s.box[1] = down(p.box.top());
        s.box[2] = up(p.box.right());
        s.box[3] = up(p.box.bottom());
        s.cls = std::int8_t(classOf(p));
    }
    void fileOne(NodeImpl *node, IndexSlot &s)
    {
        place(node, s);
        if (s.cls == OUTSIDE)
            outside.push_back(node);
        else if (s.cls != UNFILED)
            trees[size_t(s.cls)].insert(Value(boxOf(s), node));
    }
    // From now on every change waits for one refiling of everything.
    void startRefileAll()
    {
        for (NodeImpl *node : dirtyList) slotOf(node).dirtyAt = IndexSlot::NONE;
        dirtyList.clear();
        for (auto &tree : trees) tree.clear();
        outside.clear();
        refileAll = true;
    }
    // Files everything anew, each tree packed in one go.
    void rebuild()
    {
        std::array<std::vector<Value>, CLASS_COUNT> values;
        outside.clear();
        for (NodeImpl *node : members) {
            IndexSlot &s = slotOf(node);
            if (s.dirty) place(node, s);
            if (s.cls == OUTSIDE)
                outside.push_back(node);
            else if (s.cls != UNFILED)
                values[size_t(s.cls)].emplace_back(boxOf(s), node);
        }
        for (int k = 0; k < CLASS_COUNT; ++k)
            if (!values[size_t(k)].empty()) trees[size_t(k)] = Tree(values[size_t(k)]);
        refileAll = false;
    }
    // Takes the entry at `at` out of `list`, the last taking its place.
    static void takeOut(std::vector<NodeImpl *> &list, std::uint32_t at, std::uint32_t IndexSlot::*place)
    {
        NodeImpl *const last = list.back();
        list[at] = last;
        slotOf(last).*place = at;
        list.pop_back();
    }
};

SpatialIndex::SpatialIndex(PlaceOf placeOf) : d(std::make_unique<Data>())
{
    d->placeOf = std::move(placeOf);
}

SpatialIndex::~SpatialIndex() = default;

void SpatialIndex::markDirty(NodeImpl *node)
{
    IndexSlot &s = slotOf(node);
    if (!d->holds(node, s)) {
        s = IndexSlot(); // whatever another index left there is void
        s.member = std::uint32_t(d->members.size());
        d->members.push_back(node);
    } else if (s.dirty) {
        return;
    }
    s.dirty = true;
    if (d->refileAll) return;
    std::size_t const listed = d->dirtyList.size() + 1;
    if (listed > FEW_DIRTY && listed * 4 > d->members.size()) {
        d->startRefileAll();
        return;
    }
    s.dirtyAt = std::uint32_t(d->dirtyList.size());
    d->dirtyList.push_back(node);
}

void SpatialIndex::remove(NodeImpl *node)
{
    IndexSlot &s = slotOf(node);
    if (!d->holds(node, s)) return;
    if (!d->refileAll) d->unfile(node, s);
    if (s.dirtyAt != IndexSlot::NONE) Data::takeOut(d->dirtyList, s.dirtyAt, &IndexSlot::dirtyAt);
    Data::takeOut(d->members, s.member, &IndexSlot::member);
    s = IndexSlot();
}

void SpatialIndex::flush()
{
    if (d->refileAll) {
        d->rebuild();
        return;
    }
    for (NodeImpl *node : d->dirtyList) {
        IndexSlot &s = slotOf(node);
        s.dirtyAt = IndexSlot::NONE;
        d->unfile(node, s);
        d->fileOne(node, s);
    }
    d->dirtyList.clear();
}

std::size_t SpatialIndex::size() const { return d->members.size(); }

void SpatialIndex::clear()
{
    // The members may be dead already: their slots are left as they are,
    // and void, since no index lists them there any more.
    for (auto &tree : d->trees) tree.clear();
    d->outside.clear();
    d->members.clear();
    d->dirtyList.clear();
    d->refileAll = true;
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
