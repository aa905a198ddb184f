#include "scene/StackingOrder.h"

#include "scene/NodeImpl.h"

#include <QGraphicsItem>
#include <algorithm>

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
    std::sort(items.begin(), items.end(), [](QGraphicsItem *a, QGraphicsItem *b) { return isStackedAbove(a, b); });
}

} // namespace VOR2
