#pragma once
// IndexSlot: what a scene's spatial index keeps about one node, held in the
// node itself, as the pending changes keep their slot: no hash keyed by
// node, and adding a node to the index is a store and an append. Read and
// written by SpatialIndex only (host thread); the node merely carries it.

#include <cstdint>

namespace VOR2 {

struct IndexSlot {
    static constexpr std::uint32_t NONE = 0xffffffffu;

    // The box the node is filed under, in single precision, rounded
    // outward (left, top, right, bottom); meaningful while filed.
    float box[4] = {0.f, 0.f, 0.f, 0.f};
    // The node's place in its index's list of members, NONE for none. The
    // index owning the node is the one whose list holds the node there.
    std::uint32_t member = NONE;
    // The node's place in its index's list of dirty nodes, NONE when it is
    // not listed (clean, or the index is to file everything anew).
    std::uint32_t dirtyAt = NONE;
    // Where the node is filed: a reach class, or one of the index's marks
    // for nowhere and for the list of the immense.
    std::int8_t cls = -1;
    // To be filed again at the next flush.
    bool dirty = false;
};

} // namespace VOR2
