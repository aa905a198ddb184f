#pragma once
// PendingChanges: the nodes of a scene that changed since the views last
// looked, each with what happened to it, and the one place where the rules
// of combining changes live: Geometry outranks Repaint, and a Removed node
// that changes again becomes Geometry. Removed entries may name nodes that
// are gone: read their keys only.
//
// A scene records every node added to it, so recording must cost next to
// nothing: nodes in the scene sit in a vector, and each knows its own place
// there (NodeImpl::pendingSlot, stamped with this batch's number), so no
// hashing is needed for them. Only removed nodes, which may die before the
// views look, are kept by key. Host thread only.

#include "scene/PendingChangeKind.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace VOR2 {

class NodeImpl;

class PendingChanges {
public:
    PendingChanges();
    ~PendingChanges();
    PendingChanges(PendingChanges &&) noexcept;
    PendingChanges &operator=(PendingChanges &&) noexcept;

    // Each takes a live node.
    void recordRepaint(NodeImpl *node);
    void recordGeometry(NodeImpl *node);
    void recordRemoved(NodeImpl *node);

    // For a live node.
    std::optional<PendingChangeKind> kindOf(NodeImpl const *node) const;
    int size() const;
    bool isEmpty() const { return size() == 0; }
    // Starts an empty batch.
    void clear();
    // Every entry once, in no particular order.
    void forEach(std::function<void(NodeImpl *, PendingChangeKind)> const &visit) const;

private:
    struct RemovedSet;

    bool isHere(NodeImpl const *node) const;
    void append(NodeImpl *node, PendingChangeKind kind);
    // True when the node was recorded Removed, which it no longer is.
    bool takeBackRemoved(NodeImpl *node);

    std::uint32_t m_batch;
    std::vector<std::pair<NodeImpl *, PendingChangeKind>> m_present;
    std::unique_ptr<RemovedSet> m_removed;
};

} // namespace VOR2
