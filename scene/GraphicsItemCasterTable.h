#pragma once
// GraphicsItemCasterTable: from a Qt item of a scene back to its node. One
// process-wide vector of casters indexed by QGraphicsItem::type() minus
// UserType; each TypedNodeImpl<T> registers its caster when its first
// object is built. Every walk of the tree goes through here, since the
// tree lives in Qt's items. Host thread only.

#include <vector>

class QGraphicsItem;

namespace VOR2 {

class NodeImpl;

class GraphicsItemCasterTable {
public:
    using Caster = NodeImpl *(*)(QGraphicsItem *);

    static GraphicsItemCasterTable &instance();

    // Registers `caster` for `type` unless that type has one already.
    void registerCaster(int type, Caster caster);
    // The node behind `item`; null for null and for items of unknown type.
    NodeImpl *cast(QGraphicsItem const *item) const;

private:
    std::vector<Caster> m_casters;
};

} // namespace VOR2
