// The scene drawn through its spatial index: what QGraphicsScene::render
// draws, with the items to draw found by the index instead of a walk of
// every item. Qt then draws each found item's top-level subtree, bottom
// first, as it would.

#include "scene/ScenePrivate.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QPaintDevice>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <vector>

namespace VOR2 {

void ScenePrivate::renderRegion(QPainter *painter, QRectF const &target, QRectF const &source,
                                Qt::AspectRatioMode aspectRatioMode)
{
    if (m_linearQueries) {
        render(painter, target, source, aspectRatioMode);
        return;
    }
    QRectF const from = source.isNull() ? sceneRect() : source;
    QRectF to = target;
    if (to.isNull()) {
        if (painter->device()->devType() == QInternal::Picture)
            to = from;
        else
            to = QRectF(0, 0, painter->device()->width(), painter->device()->height());
    }
    double xratio = to.width() / from.width(), yratio = to.height() / from.height();
    switch (aspectRatioMode) {
    case Qt::KeepAspectRatio: xratio = yratio = std::min(xratio, yratio); break;
    case Qt::KeepAspectRatioByExpanding: xratio = yratio = std::max(xratio, yratio); break;
    case Qt::IgnoreAspectRatio: break;
    }
    // Topmost first from the index; Qt draws from the bottom.
    QList<QGraphicsItem *> const found = itemsIn(from, Qt::IntersectsItemBoundingRect);
    std::vector<QGraphicsItem *> bottomFirst(found.rbegin(), found.rend());
    // Qt's own drawing ignores the options; it makes its own per item.
    std::vector<QStyleOptionGraphicsItem> options(bottomFirst.size());

    painter->save();
    painter->setClipRect(to, Qt::IntersectClip);
    painter->setWorldTransform(QTransform()
                                   .translate(to.left(), to.top())
                                   .scale(xratio, yratio)
                                   .translate(-from.left(), -from.top()),
                               true);
    drawBackground(painter, from);
    drawItems(painter, int(bottomFirst.size()), bottomFirst.data(), options.data());
    drawForeground(painter, from);
    painter->restore();
}

} // namespace VOR2
