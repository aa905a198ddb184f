#pragma once
// NodeEffectsTable: the effect lists of the nodes that have one, kept
// outside the nodes because most nodes never carry an effect; a node marks
// in itself that it has an entry, so that nodes without one never look
// here. The table holds one count on each list. Host thread only.

#include "absl/container/flat_hash_map.h"

namespace VOR2 {

class NodeImpl;
class NodeEffectsImpl;

class NodeEffectsTable {
public:
    static NodeEffectsTable &instance();

    // The node's list, or null.
    NodeEffectsImpl *find(NodeImpl const *node) const;
    // The node's list, made on first demand.
    NodeEffectsImpl *obtain(NodeImpl *node);
    // Tells the node's list that the node is gone and drops the entry.
    void nodeDestroyed(NodeImpl const *node);

private:
    absl::flat_hash_map<NodeImpl const *, NodeEffectsImpl *> m_lists;
};

} // namespace VOR2
