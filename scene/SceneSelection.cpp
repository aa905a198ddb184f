// Scene: selection and focus in scene terms. Both are Qt's own state on
// the items; the item flags decide what Qt accepts.

#include <Scene>

#include "scene/NodeImpl.h"
#include "scene/ScenePrivate.h"
#include "values/UsableNumber.h"

namespace VOR2 {

namespace {
void setSelectedIfDifferent(QGraphicsItem *item, bool on)
{
    if (item && item->isSelected() != on) item->setSelected(on);
}
} // namespace

void Scene::setSelection(GLOX::GLPoint<double> const &p, bool on)
{
    if (!isUsable(p)) return;
    setSelectedIfDifferent(d->topmostItemAt(GLOX::toQPointF(p)), on);
}

void Scene::setSelection(GLOX::GLRect<double> const &r, bool on)
{
    if (!isUsable(r)) return;
    for (QGraphicsItem *item : d->itemsIn(GLOX::toQRectF(r), Qt::IntersectsItemShape)) setSelectedIfDifferent(item, on);
}

void Scene::selectAll()
{
    for (QGraphicsItem *item : d->items()) setSelectedIfDifferent(item, true);
}

void Scene::deselectAll() { d->clearSelection(); }

void Scene::setUseNodeSelection(bool use) { d->setUseNodeSelection(use); }

bool Scene::usesNodeSelection() const { return d->usesNodeSelection(); }

Node Scene::getFocusNode() const { return Node(NodeImpl::fromItem(d->focusItem())); }

void Scene::setFocusNode(Node const &node)
{
    d->setFocusItem(node.isValid() ? node.getImpl()->getGraphicsItem() : nullptr, Qt::OtherFocusReason);
}

void Scene::clearFocus() { d->clearFocus(); }

} // namespace VOR2
