#include "scene/StackingOrder.h"

#include "scene/NodeImpl.h"

#include <QGraphicsItem>
#include <algorithm>
#include <cstdint>
#include <vector>

namespace VOR2 {

namespace {
bool stacksBehind(QGraphicsItem const *item) { return item->flags() & QGraphicsItem::ItemStacksBehindParent; }

// Two siblings (or two top-level items).
bool siblingAbove(QGraphicsItem const *a, QGraphicsItem const *b)
{
    if (stacksBehind(a) != stacksBehind(b)) return stacksBehind(b);
    if (a->zValue() != b->zValue()) return a->zValue() > b->zValue();
    return NodeImpl::fromItem(a)->siblingStamp() > NodeImpl::fromItem(b)->siblingStamp();
}

int depthOf(QGraphicsItem const *item)
{
    int depth = 0;
    for (QGraphicsItem const *p = item->parentItem(); p; p = p->parentItem()) ++depth;
    return depth;
}
} // namespace

bool isStackedAbove(QGraphicsItem const *a, QGraphicsItem const *b)
{
    if (a == b) return false;
    if (a->parentItem() == b->parentItem()) return siblingAbove(a, b);
    int da = depthOf(a), db = depthOf(b);
    // Bring the deeper one up to the other's depth; meeting the other on the
    // way means one is the other's ancestor.
    QGraphicsItem const *ta = a;
    for (; da > db; --da) {
        if (ta->parentItem() == b) return !stacksBehind(ta);
        ta = ta->parentItem();
    }
    QGraphicsItem const *tb = b;
    for (; db > da; --db) {
        if (tb->parentItem() == a) return stacksBehind(tb);
        tb = tb->parentItem();
    }
    // Up together to the children of the common ancestor (or the top).
    while (ta->parentItem() != tb->parentItem()) {
        ta = ta->parentItem();
        tb = tb->parentItem();
    }
    return siblingAbove(ta, tb);
}

void sortTopmostFirst(QList<QGraphicsItem *> &items)
{
    bool const allTopLevel =
        std::all_of(items.cbegin(), items.cend(), [](QGraphicsItem const *item) { return !item->parentItem(); });
    if (!allTopLevel) {
        std::sort(items.begin(), items.end(), [](QGraphicsItem *a, QGraphicsItem *b) { return isStackedAbove(a, b); });
        return;
    }
    // Top-level items only: siblings all, so each is ranked by its own key,
    // read once instead of at every comparison.
    struct Ranked {
        double z;
        std::uint64_t stamp;
        QGraphicsItem *item;
        bool behind;
    };
    std::vector<Ranked> ranked;
    ranked.reserve(size_t(items.size()));
    for (QGraphicsItem *item : qAsConst(items))
        ranked.push_back({item->zValue(), NodeImpl::fromItem(item)->siblingStamp(), item, stacksBehind(item)});
    std::sort(ranked.begin(), ranked.end(), [](Ranked const &a, Ranked const &b) {
        if (a.behind != b.behind) return b.behind;
        if (a.z != b.z) return a.z > b.z;
        return a.stamp > b.stamp;
    });
    for (int i = 0; i < items.size(); ++i) items[i] = ranked[size_t(i)].item;
}

} // namespace VOR2
