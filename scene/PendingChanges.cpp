#include "scene/PendingChanges.h"

#include "scene/NodeImpl.h"

#include <absl/container/flat_hash_set.h>

namespace VOR2 {

namespace {
// Batch numbers are unique in the process, so a node's stamp names one
// batch of one scene; 0 is no batch.
std::uint32_t nextBatch()
{
    static std::uint32_t last = 0;
    if (++last == 0) ++last;
    return last;
}
} // namespace

// Abseil's open-addressing set keeps its keys in one array: removing a big
// subtree costs no allocation per node.
struct PendingChanges::RemovedSet {
    absl::flat_hash_set<NodeImpl const *> nodes;
};

PendingChanges::PendingChanges() : m_batch(nextBatch()), m_removed(std::make_unique<RemovedSet>()) {}
PendingChanges::~PendingChanges() = default;

PendingChanges::PendingChanges(PendingChanges &&o) noexcept
    : m_batch(std::exchange(o.m_batch, nextBatch())), m_present(std::move(o.m_present)),
      m_removed(std::exchange(o.m_removed, std::make_unique<RemovedSet>()))
{
    o.m_present.clear();
}

PendingChanges &PendingChanges::operator=(PendingChanges &&o) noexcept
{
    std::swap(m_batch, o.m_batch);
    m_present.swap(o.m_present);
    m_removed.swap(o.m_removed);
    return *this;
}

bool PendingChanges::isHere(NodeImpl const *node) const { return node->pendingSlot().batch == m_batch; }

void PendingChanges::append(NodeImpl *node, PendingChangeKind kind)
{
    node->pendingSlot() = {m_batch, std::uint32_t(m_present.size())};
    m_present.emplace_back(node, kind);
}

bool PendingChanges::takeBackRemoved(NodeImpl *node)
{
    return !m_removed->nodes.empty() && m_removed->nodes.erase(node) > 0;
}

void PendingChanges::recordRepaint(NodeImpl *node)
{
    if (isHere(node)) return; // Repaint adds nothing to what is recorded
    append(node, takeBackRemoved(node) ? PendingChangeKind::Geometry : PendingChangeKind::Repaint);
}

void PendingChanges::recordGeometry(NodeImpl *node)
{
    if (isHere(node)) {
        m_present[node->pendingSlot().index].second = PendingChangeKind::Geometry;
        return;
    }
    takeBackRemoved(node);
    append(node, PendingChangeKind::Geometry);
}

void PendingChanges::recordRemoved(NodeImpl *node)
{
    if (isHere(node)) {
        // Out of the vector, the last entry taking its place: the node may
        // die before the views look.
        std::uint32_t at = node->pendingSlot().index;
        m_present[at] = m_present.back();
        m_present[at].first->pendingSlot().index = at;
        m_present.pop_back();
        node->pendingSlot() = {};
    }
    m_removed->nodes.insert(node);
}

std::optional<PendingChangeKind> PendingChanges::kindOf(NodeImpl const *node) const
{
    if (isHere(node)) return m_present[node->pendingSlot().index].second;
    if (m_removed->nodes.contains(node)) return PendingChangeKind::Removed;
    return std::nullopt;
}

int PendingChanges::size() const { return int(m_present.size() + m_removed->nodes.size()); }

void PendingChanges::clear()
{
    m_batch = nextBatch();
    m_present.clear();
    m_removed->nodes.clear();
}

void PendingChanges::forEach(std::function<void(NodeImpl *, PendingChangeKind)> const &visit) const
{
    for (auto const &[node, kind] : m_present) visit(node, kind);
    for (NodeImpl const *node : m_removed->nodes) visit(const_cast<NodeImpl *>(node), PendingChangeKind::Removed);
}

} // namespace VOR2
