// NodeImpl: painting for Qt, through the offscreen image when the node
// caches itself; painting children by hand; rendering one node to an image.

#include <Diagnostics>

#include "effects/NodeEffectsImpl.h"
#include "nodes/StylePainter.h"
#include "scene/ImageExtent.h"
#include "scene/NodeImpl.h"
#include "scene/OffscreenLayout.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QtMath>
#include <algorithm>
#include <functional>

namespace VOR2 {

namespace {
char const *const OFFSCREEN_REPAINTS = "Scene:Node offscreen repaint count";

// A transparent premultiplied image of `bounds` at `lod`, with a border of
// one device pixel, and a painter on it set up in the bounds' coordinates.
// A null image when no image of that extent can be made.
QImage borderedImage(QRectF const &bounds, double lod)
{
    // Geometry is never normalised, so bounds may run left or up.
    QSize const size = imageExtent(std::ceil(bounds.width() * lod) + 2, std::ceil(bounds.height() * lod) + 2);
    if (size.isEmpty()) return QImage();
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    return image;
}

void setUpBorderedPainter(QPainter &painter, QRectF const &bounds, double lod, bool antiAliased)
{
    painter.setRenderHint(QPainter::Antialiasing, antiAliased);
    painter.translate(1, 1);
    painter.scale(lod, lod);
    painter.translate(-bounds.x(), -bounds.y());
}
} // namespace

bool NodeImpl::usesOffscreenImage() const
{
    if (m_cacheType != CacheType::None) return true;
    // Costly effects are drawn once into the image; a node with the focus
    // (text being edited) paints directly, so that its caret shows.
    NodeEffectsImpl const *effects = getEffectsImpl();
    return effects && effects->hasEffects() && effects->isIntensiveProcess() && !getGraphicsItem()->hasFocus();
}

void NodeImpl::paintContentsAndEffects(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget)
{
    paintContents(painter, option, widget);
    NodeEffectsImpl *effects = getEffectsImpl();
    if (effects && effects->hasEffects()) effects->draw(painter, option, widget);
}

void NodeImpl::paintNode(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget)
{
    if (!usesOffscreenImage()) {
        paintContentsAndEffects(painter, option, widget);
        return;
    }
    double lod = paintScale(painter);
    double s = 1.0 / lod; // one device pixel in item units
    // The bounds at the scale the node is painted at: at any other the
    // cached outline would be wrong for hit tests and shape as well.
    QRectF bounds = GLOX::toQRectF(getCachedMaximumBounds(lod).boundingRect()).normalized();
    // What can show: the exposed part as Qt tells it, cut to the painter's
    // clip (Qt exposes every item wholly in a render of part of the scene,
    // and clips the painter to the part instead).
    QRectF visible = bounds.intersected(option->exposedRect);
    if (painter->hasClipping()) visible &= painter->clipBoundingRect();
    OffscreenLayout const layout = OffscreenLayout::of(bounds, lod, *painter);
    // An image that does not fit this painting (another scale, or another
    // sub-pixel shift) is as good as none.
    auto fitting = [&]() -> OffscreenPixmap const * {
        OffscreenPixmap const *image = currentViewCache().offscreen.get();
        return image && image->fits(layout.size, lod, layout.phase) ? image : nullptr;
    };
    // Only a whole exposure builds the image: a partly exposed dirty node
    // keeps the image it has, or paints directly.
    bool stale = m_offscreenDirty || !fitting();
    if (stale && bounds.width() - visible.width() < s && bounds.height() - visible.height() < s) {
        // Cleared first: a change reported while painting dirties it again.
        m_offscreenDirty = false;
        drawOffscreenImage(layout, lod, bounds, option);
    }
    if (OffscreenPixmap const *image = fitting())
        layout.draw(*painter, image->image());
    else
        paintContentsAndEffects(painter, option, widget);
}

void NodeImpl::drawOffscreenImage(OffscreenLayout const &layout, double lod, QRectF const &bounds,
                                  QStyleOptionGraphicsItem const *option)
{
    Diagnostics::add(OFFSCREEN_REPAINTS, 1);
    if (layout.size.isEmpty()) return; // too large for an image: the node paints directly
    QImage image(layout.size, QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    {
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing, m_drawStyle.isAntiAliased());
        painter.setWorldTransform(layout.toImage);
        QStyleOptionGraphicsItem imageOption(*option);
        imageOption.exposedRect = bounds;
        paintContentsAndEffects(&painter, &imageOption, nullptr);
    }
    currentViewCache().offscreen = std::make_unique<OffscreenPixmap>(std::move(image), lod, layout.phase);
}

void NodeImpl::paintChildren(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget)
{
    QGraphicsItem *self = getGraphicsItem();
    QList<QGraphicsItem *> children = self->childItems();
    if (children.isEmpty()) return;
    // Behind-the-parent items first; then by z, lowest first; ties by
    // descending address.
    std::sort(children.begin(), children.end(), [](QGraphicsItem *a, QGraphicsItem *b) {
        bool aBehind = a->flags() & QGraphicsItem::ItemStacksBehindParent;
        bool bBehind = b->flags() & QGraphicsItem::ItemStacksBehindParent;
        if (aBehind != bBehind) return aBehind;
        if (a->zValue() != b->zValue()) return a->zValue() < b->zValue();
        return a > b;
    });
    QRectF exposedScene = self->mapRectToScene(option->exposedRect);
    for (QGraphicsItem *child : children) {
        if (!child->isVisible()) continue;
        NodeImpl *node = fromItem(child);
        painter->save();
        painter->translate(child->pos());
        painter->setWorldTransform(child->transform(), true);
        painter->setOpacity(child->effectiveOpacity());
        QStyleOptionGraphicsItem childOption(*option);
        childOption.rect = child->boundingRect().toRect();
        childOption.exposedRect = child->mapRectFromScene(exposedScene);
        if (child->flags() & QGraphicsItem::ItemClipsChildrenToShape)
            childOption.exposedRect &= child->boundingRect();
        // Straight to the node: children of a node that draws its subtree
        // are silent when Qt asks them.
        if (node) {
            node->paintNode(painter, &childOption, widget);
            node->paintChildren(painter, &childOption, widget);
        } else {
            child->paint(painter, &childOption, widget);
        }
        painter->restore();
    }
}

QImage NodeImpl::renderToImage(CacheType type, double scale)
{
    Bounds bounds = getCachedMaximumBounds(scale);
    if (type == CacheType::ChildrenTree) {
        // The subtree's maximum bounds, mapped into this node.
        std::function<void(NodeImpl *)> unite = [&](NodeImpl *node) {
            for (NodeImpl *child : node->getChildImpls()) {
                QRectF r = GLOX::toQRectF(child->getCachedMaximumBounds(scale).boundingRect());
                bounds.unionWith(Bounds(child->getGraphicsItem()->mapRectToItem(getGraphicsItem(), r)));
                unite(child);
            }
        };
        unite(this);
    }
    QRectF rect = GLOX::toQRectF(bounds.boundingRect()).normalized();
    QImage image = borderedImage(rect, scale);
    if (image.isNull()) return image;
    QPainter painter(&image);
    setUpBorderedPainter(painter, rect, scale, m_drawStyle.isAntiAliased());
    QStyleOptionGraphicsItem option;
    option.rect = GLOX::toQRectF(getBounds().boundingRect()).toRect();
    option.exposedRect = rect;
    paintContentsAndEffects(&painter, &option, nullptr);
    if (type == CacheType::ChildrenTree) paintChildren(&painter, &option, nullptr);
    return image;
}

} // namespace VOR2
