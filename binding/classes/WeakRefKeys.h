#pragma once
// The state of a VOR2.WeakRef at the script border: a key that names a node
// without keeping it alive. The keys live in a table of weak references,
// one per node that a script has referred to weakly; a key whose node has
// died names nothing, and is never given to another node. Entries of dead
// nodes are swept as the table grows, so it stays about the size of the
// live nodes it names.
//
// Host thread only.

#include "WeakRef"

#include <cstdint>

namespace VOR2::script {

// The key of the node `ref` names; the same for every reference to one
// node; 0 for an invalid reference.
std::uint64_t weakRefKey(WeakRef const &ref);

// A weak reference to the node of `key`; invalid for 0, an unknown key or a
// dead node.
WeakRef weakRefOfKey(std::uint64_t key);

// The number of keys the table holds, live or not yet swept.
std::size_t weakRefKeyCount();
// Drops the keys of dead nodes now; the table also does so as it grows.
void sweepWeakRefKeys();

} // namespace VOR2::script
