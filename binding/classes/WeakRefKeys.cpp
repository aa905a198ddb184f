#include "binding/classes/WeakRefKeys.h"

#include <map>
#include <unordered_map>

namespace VOR2::script {

namespace {

struct Table {
    std::uint64_t nextKey = 1;
    // A std::map keeps each WeakRef at one address for its life, as the
    // weak references require.
    std::map<std::uint64_t, WeakRef> byKey;
    std::unordered_map<NodeImpl const *, std::uint64_t> byNode;
    std::size_t sweepAt = 64;

    void sweep()
    {
        for (auto it = byNode.begin(); it != byNode.end();) {
            auto ref = byKey.find(it->second);
            if (ref->second.isValid()) {
                ++it;
                continue;
            }
            byKey.erase(ref);
            it = byNode.erase(it);
        }
        sweepAt = 2 * byKey.size() + 64;
    }
};

Table &table()
{
    static Table t;
    return t;
}

} // namespace

std::uint64_t weakRefKey(WeakRef const &ref)
{
    if (!ref.isValid()) return 0;
    Table &t = table();
    NodeImpl const *impl = ref.promote().getImpl();
    auto known = t.byNode.find(impl);
    if (known != t.byNode.end()) {
        // A dead node's address may have been taken by a new node: its old
        // key stays dead.
        WeakRef const &held = t.byKey.at(known->second);
        if (held.isValid()) return known->second;
        t.byKey.erase(known->second);
        t.byNode.erase(known);
    }
    if (t.byKey.size() >= t.sweepAt) t.sweep();
    std::uint64_t key = t.nextKey++;
    t.byKey.emplace(key, ref);
    t.byNode.emplace(impl, key);
    return key;
}

WeakRef weakRefOfKey(std::uint64_t key)
{
    Table &t = table();
    auto it = t.byKey.find(key);
    return it == t.byKey.end() ? WeakRef() : it->second;
}

std::size_t weakRefKeyCount() { return table().byKey.size(); }

void sweepWeakRefKeys() { table().sweep(); }

} // namespace VOR2::script
