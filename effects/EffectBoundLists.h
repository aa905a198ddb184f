#pragma once
// Effect::BoundLists: the node effect lists an effect has been bound to and
// that still hear of its changes: a set, so that an effect shared by many
// nodes adds, finds and forgets each list in constant time. Kept by
// NodeEffectsImpl (which registers on its first binding of the effect and
// leaves when its node dies) and by the effect (which tells each list when
// it dies first). Host thread only.

#include <Effect>

#include "absl/container/flat_hash_set.h"

namespace VOR2 {

class NodeEffectsImpl;

struct Effect::BoundLists {
    absl::flat_hash_set<NodeEffectsImpl *> lists;
};

} // namespace VOR2
