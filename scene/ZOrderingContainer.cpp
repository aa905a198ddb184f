#include "scene/ZOrderingContainer.h"

#include "scene/NodeImpl.h"

#include <algorithm>

namespace VOR2 {

namespace {
GLOX::GHash<ZOrderingContainer const *, ZRange> &rangeTable()
{
    static GLOX::GHash<ZOrderingContainer const *, ZRange> table;
    return table;
}

double zOf(NodeImpl *n) { return n->getGraphicsItem()->zValue(); }

void sortByZ(GLOX::GList<NodeImpl *> &nodes, bool lowestFirst)
{
    std::sort(nodes.begin(), nodes.end(), [lowestFirst](NodeImpl *a, NodeImpl *b) {
        return lowestFirst ? zOf(a) < zOf(b) : zOf(a) > zOf(b);
    });
}
} // namespace

ZOrderingContainer::~ZOrderingContainer() { rangeTable().remove(this); }

ZRange &ZOrderingContainer::zRange() const { return rangeTable()[this]; }

void ZOrderingContainer::writeZ(NodeImpl *n, double z) { n->getGraphicsItem()->setZValue(z); }

void ZOrderingContainer::shiftStacked(double zr, bool inclusive, double step, NodeImpl *except)
{
    for (NodeImpl *s : getStackedNodes()) {
        if (s == except) continue;
        double z = zOf(s);
        if (z > zr || (inclusive && z == zr)) writeZ(s, z + step);
    }
}

void ZOrderingContainer::setZValue(NodeImpl *n, double z)
{
    if (zOf(n) == z) return;
    ZRange &range = zRange();
    range.highest = std::max(range.highest, z);
    range.lowest = std::min(range.lowest, z);
    writeZ(n, z);
    n->notifyRepaint();
}

void ZOrderingContainer::stepToTop(NodeImpl *n)
{
    stackOnTop(n);
    n->notifyRepaint();
}

void ZOrderingContainer::stackOnTop(NodeImpl *n)
{
    ZRange &range = zRange();
    range.highest += 1.0;
    writeZ(n, range.highest);
}

void ZOrderingContainer::toTop(NodeImpl *n)
{
    if (zOf(n) == zRange().highest) return;
    stepToTop(n);
}

void ZOrderingContainer::toBottom(NodeImpl *n)
{
    ZRange &range = zRange();
    if (zOf(n) == range.lowest) return;
    range.lowest -= 1.0;
    writeZ(n, range.lowest);
    n->notifyRepaint();
}

void ZOrderingContainer::placeBelow(NodeImpl *n, NodeImpl *ref)
{
    zRange().highest += 1.0;
    double zr = zOf(ref);
    shiftStacked(zr, true, 1.0, n);
    writeZ(n, zr);
    n->notifyRepaint();
}

void ZOrderingContainer::placeAbove(NodeImpl *n, NodeImpl *ref)
{
    zRange().highest += 1.0;
    double zr = zOf(ref);
    shiftStacked(zr, false, 1.0, n);
    writeZ(n, zr + 1.0);
    n->notifyRepaint();
}

void ZOrderingContainer::ensureAbove(NodeImpl *n, NodeImpl *ref)
{
    if (zOf(n) > zOf(ref)) return;
    placeAbove(n, ref);
    n->notifyRepaint();
}

void ZOrderingContainer::ensureBelow(NodeImpl *n, NodeImpl *ref)
{
    if (zOf(n) < zOf(ref)) return;
    placeBelow(n, ref);
    n->notifyRepaint();
}

void ZOrderingContainer::toTop(GLOX::GList<NodeImpl *> nodes)
{
    sortByZ(nodes, true);
    for (NodeImpl *n : nodes) {
        toTop(n);
        n->notifyRepaint();
    }
}

void ZOrderingContainer::toBottom(GLOX::GList<NodeImpl *> nodes)
{
    sortByZ(nodes, false);
    for (NodeImpl *n : nodes) {
        toBottom(n);
        n->notifyRepaint();
    }
}

void ZOrderingContainer::placeAbove(GLOX::GList<NodeImpl *> nodes, NodeImpl *ref)
{
    double k = nodes.size();
    zRange().highest += k;
    double zr = zOf(ref);
    shiftStacked(zr, false, k, nullptr);
    sortByZ(nodes, true);
    double z = zr;
    for (NodeImpl *n : nodes) {
        writeZ(n, z += 1.0);
        n->notifyRepaint();
    }
}

void ZOrderingContainer::placeBelow(GLOX::GList<NodeImpl *> nodes, NodeImpl *ref)
{
    double k = nodes.size();
    zRange().highest += k;
    double zr = zOf(ref);
    shiftStacked(zr, true, k, nullptr);
    sortByZ(nodes, true);
    double z = zr;
    for (NodeImpl *n : nodes) {
        writeZ(n, z);
        z += 1.0;
        n->notifyRepaint();
    }
}

void ZOrderingContainer::ensureAbove(GLOX::GList<NodeImpl *> const &nodes, NodeImpl *ref)
{
    double zr = zOf(ref);
    GLOX::GList<NodeImpl *> low;
    for (NodeImpl *n : nodes)
        if (zOf(n) <= zr) low.append(n);
    if (!low.isEmpty()) placeAbove(low, ref);
}

void ZOrderingContainer::ensureBelow(GLOX::GList<NodeImpl *> const &nodes, NodeImpl *ref)
{
    double zr = zOf(ref);
    GLOX::GList<NodeImpl *> high;
    for (NodeImpl *n : nodes)
        if (zOf(n) >= zr) high.append(n);
    if (!high.isEmpty()) placeBelow(high, ref);
}

} // namespace VOR2
