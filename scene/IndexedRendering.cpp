// The scene drawn through its spatial index: what QGraphicsScene::render
// draws, with the items to draw found by the index instead of a walk of
// every item. Qt then draws each found item's top-level subtree, bottom
// first, as it would; plain nodes are drawn straight, with Qt's pixels.

#include "scene/ScenePrivate.h"

#include "scene/PlainNodePainter.h"

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
    std::vector<QGraphicsItem *> const bottomFirst(found.rbegin(), found.rend());

    painter->save();
    painter->setClipRect(to, Qt::IntersectClip);
    painter->setWorldTransform(QTransform()
                                   .translate(to.left(), to.top())
                                   .scale(xratio, yratio)
                                   .translate(-from.left(), -from.top()),
                               true);
    drawBackground(painter, from);
    drawFound(painter, bottomFirst);
    drawForeground(painter, from);
    painter->restore();
}

void ScenePrivate::drawFound(QPainter *painter, std::vector<QGraphicsItem *> const &bottomFirst)
{
    // Qt polishes waiting items before it draws any.
    drawItems(painter, 0, nullptr, nullptr);
    PlainNodePainter plain(painter);
    // Qt draws the subtree of each found item's top-level item, once, where
    // the first of its items comes. A subtree is never split by a plain node
    // (top-level and childless, it stacks wholly above or below it), so each
    // run of other items goes to Qt in one call.
    std::vector<QGraphicsItem *> run;
    auto drawRun = [&] {
        if (run.empty()) return;
        // Qt's own drawing ignores the options; it makes its own per item.
        std::vector<QStyleOptionGraphicsItem> options(run.size());
        drawItems(painter, int(run.size()), run.data(), options.data());
        run.clear();
    };
    for (QGraphicsItem *item : bottomFirst) {
        if (PlainNodePainter::isPlain(item)) {
            drawRun();
            plain.draw(item);
            continue;
        }
        plain.finish();
        run.push_back(item);
    }
    drawRun();
}

} // namespace VOR2
