// The rules of combining changes, and the bookkeeping of the nodes' own
// places in a batch when entries leave it.

#include <RectNode>

#include "scene/NodeImpl.h"
#include "scene/PendingChanges.h"

#include <gtest/gtest.h>
#include <map>

using namespace VOR2;

namespace {
std::map<NodeImpl *, PendingChangeKind> contents(PendingChanges const &p)
{
    std::map<NodeImpl *, PendingChangeKind> out;
    p.forEach([&](NodeImpl *n, PendingChangeKind k) { EXPECT_TRUE(out.emplace(n, k).second) << "each node once"; });
    return out;
}
} // namespace

TEST(PendingChanges, CombinesChangesAndKeepsEachNodesPlace)
{
    RectNode a(GLOX::GLRect<double>(0, 0, 1, 1)), b = a, c = a;
    b = RectNode(GLOX::GLRect<double>(0, 0, 1, 1));
    c = RectNode(GLOX::GLRect<double>(0, 0, 1, 1));
    NodeImpl *na = a.getImpl(), *nb = b.getImpl(), *nc = c.getImpl();
    PendingChanges p;
    p.recordRepaint(na);
    p.recordGeometry(nb);
    p.recordRepaint(nc);
    p.recordRepaint(nb);
    EXPECT_EQ(p.kindOf(nb), PendingChangeKind::Geometry) << "Geometry outranks Repaint";

    p.recordRemoved(na); // the last entry takes its place
    p.recordGeometry(nc);
    EXPECT_EQ(contents(p), (std::map<NodeImpl *, PendingChangeKind>{
                               {na, PendingChangeKind::Removed},
                               {nb, PendingChangeKind::Geometry},
                               {nc, PendingChangeKind::Geometry}}));
    p.recordRepaint(na);
    EXPECT_EQ(p.kindOf(na), PendingChangeKind::Geometry) << "back in the picture";
    EXPECT_EQ(p.size(), 3);

    // A batch taken away leaves the nodes unrecorded in the new one.
    PendingChanges taken = std::move(p);
    PendingChanges fresh;
    std::swap(p, fresh);
    EXPECT_EQ(p.kindOf(na), std::nullopt);
    EXPECT_EQ(taken.size(), 3);
    p.recordRemoved(nb);
    EXPECT_EQ(p.kindOf(nb), PendingChangeKind::Removed);
    EXPECT_EQ(taken.kindOf(nb), PendingChangeKind::Geometry) << "batches do not share entries";
    p.clear();
    EXPECT_TRUE(p.isEmpty());
}
