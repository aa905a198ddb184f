// The scene's queries through its spatial index: the same items, in the
// same order, as QGraphicsScene::items walking every item would answer,
// but only the nodes near the area are looked at.
//
// Qt's walk keeps an item when it and all its ancestors are visible, its
// opacity (with its parents', as it combines them) is not null, it passes
// the area test, and every ancestor that clips its children and is not
// itself transparent passes the area test too. The area test first meets
// the item's bounding rectangle in scene coordinates (widened a little
// where it has no width or height), then, for the shape modes, asks the
// item itself.

#include "scene/ScenePrivate.h"

#include <GlobalViewerInfo>

#include "scene/NodeImpl.h"
#include "scene/SpatialIndex.h"
#include "scene/StackingOrder.h"

#include <QGraphicsItem>
#include <QPainterPath>

namespace VOR2 {

namespace {
constexpr double NULL_OPACITY = 0.001; // what Qt takes for fully transparent
constexpr double ZERO_SIZE_WIDENING = 0.00001;

QRectF widenedBoundingRect(QGraphicsItem const *item)
{
    QRectF r = item->boundingRect();
    if (r.width() == 0) r.adjust(-ZERO_SIZE_WIDENING, 0, ZERO_SIZE_WIDENING, 0);
    if (r.height() == 0) r.adjust(0, -ZERO_SIZE_WIDENING, 0, ZERO_SIZE_WIDENING);
    return r;
}

bool isShapeMode(Qt::ItemSelectionMode mode)
{
    return mode == Qt::ContainsItemShape || mode == Qt::IntersectsItemShape;
}

// An area test: a point, or a rectangle with a selection mode.
struct AreaTest {
    bool isPoint = true;
    QPointF point;
    QRectF rect;
    Qt::ItemSelectionMode mode = Qt::IntersectsItemShape;

    bool passes(QGraphicsItem const *item) const
    {
        QRectF const local = widenedBoundingRect(item);
        QTransform const toScene = item->sceneTransform();
        QRectF const sceneBounds = toScene.mapRect(local);
        if (isPoint) {
            if (!sceneBounds.intersects(QRectF(point, QSizeF(1, 1)))) return false;
            return !isShapeMode(mode) || item->contains(toScene.inverted().map(point));
        }
        bool const containing = mode == Qt::ContainsItemShape || mode == Qt::ContainsItemBoundingRect;
        bool keep = containing ? (rect != local && rect.contains(sceneBounds)) : rect.intersects(sceneBounds);
        if (!keep || !isShapeMode(mode)) return keep;
        QPainterPath path;
        path.addRect(rect);
        return item->collidesWithPath(toScene.inverted().map(path), mode);
    }
    // The area the index must search around.
    QRectF area() const { return isPoint ? QRectF(point, QSizeF(1, 1)) : rect.normalized(); }
};

bool isTransparent(QGraphicsItem const *item) { return item->effectiveOpacity() < NULL_OPACITY; }

bool kept(QGraphicsItem const *item, AreaTest const &test)
{
    if (!item->isVisible() || isTransparent(item) || !test.passes(item)) return false;
    for (QGraphicsItem const *a = item->parentItem(); a; a = a->parentItem()) {
        bool const clips = a->flags() & (QGraphicsItem::ItemClipsChildrenToShape |
                                         QGraphicsItem::ItemContainsChildrenInShape);
        if (clips && !isTransparent(a) && !test.passes(a)) return false;
    }
    return true;
}
} // namespace

QList<QGraphicsItem *> ScenePrivate::indexedItems(AreaTestKind kind, QPointF const &point, QRectF const &rect,
                                                  Qt::ItemSelectionMode mode) const
{
    AreaTest test;
    test.isPoint = kind == AreaTestKind::Point;
    test.point = point;
    test.rect = rect;
    test.mode = mode;
    QList<QGraphicsItem *> found;
    double const scale = GlobalViewerInfo::instance()->getViewerScale();
    m_index->forEachCandidate(test.area(), scale, [&](NodeImpl *node) {
        QGraphicsItem *item = node->getGraphicsItem();
        if (kept(item, test)) found.append(item);
    });
    sortTopmostFirst(found);
    return found;
}

QList<QGraphicsItem *> ScenePrivate::itemsAt(QPointF const &p) const
{
    if (m_linearQueries) return items(p);
    return indexedItems(AreaTestKind::Point, p, QRectF(), Qt::IntersectsItemShape);
}

QList<QGraphicsItem *> ScenePrivate::itemsIn(QRectF const &r, Qt::ItemSelectionMode mode) const
{
    if (m_linearQueries) return items(r, mode);
    return indexedItems(AreaTestKind::Rect, QPointF(), r, mode);
}

QGraphicsItem *ScenePrivate::topmostItemAt(QPointF const &p) const
{
    QList<QGraphicsItem *> const found = itemsAt(p);
    return found.isEmpty() ? nullptr : found.first();
}

} // namespace VOR2
