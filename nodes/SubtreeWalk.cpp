#include "nodes/SubtreeWalk.h"

#include "scene/NodeImpl.h"

#include <QGraphicsItem>

namespace VOR2 {

namespace {
bool walk(NodeImpl *node, QTransform const &toRoot,
          std::function<bool(NodeImpl *, QTransform const &)> const &visit)
{
    for (QGraphicsItem *item : node->getGraphicsItem()->childItems()) {
        NodeImpl *child = NodeImpl::fromItem(item);
        if (!child) continue;
        QPointF const pos = item->pos();
        QTransform const t = item->transform() * QTransform::fromTranslate(pos.x(), pos.y()) * toRoot;
        if (visit(child, t) || walk(child, t, visit)) return true;
    }
    return false;
}
} // namespace

bool anyDescendant(NodeImpl *root, std::function<bool(NodeImpl *, QTransform const &)> const &visit)
{
    return walk(root, QTransform(), visit);
}

Bounds subtreeBounds(NodeImpl *root, std::function<Bounds(NodeImpl *)> const &source)
{
    Bounds result;
    anyDescendant(root, [&](NodeImpl *node, QTransform const &t) {
        result.unionWith(source(node).transformed(t));
        return false;
    });
    return result;
}

} // namespace VOR2
