#include "scene/PlainNodePainter.h"

#include "scene/NodeImpl.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QPainter>

namespace VOR2 {

namespace {
constexpr double NULL_OPACITY = 0.001; // what Qt takes for fully transparent
constexpr double ZERO_SIZE_WIDENING = 0.00001;
// Device pixels Qt adds around an item's view rectangle before it decides
// that the item shows, when it renders without a view.
constexpr int VIEW_RECT_ADJUST = 1;

constexpr QGraphicsItem::GraphicsItemFlags NOT_PLAIN_FLAGS =
    QGraphicsItem::ItemClipsToShape | QGraphicsItem::ItemClipsChildrenToShape |
    QGraphicsItem::ItemContainsChildrenInShape | QGraphicsItem::ItemHasNoContents |
    QGraphicsItem::ItemIgnoresTransformations;

// The bounding rectangle as Qt widens it before mapping it to the device.
QRectF widened(QRectF r)
{
    if (r.width() == 0) r.adjust(-ZERO_SIZE_WIDENING, 0, ZERO_SIZE_WIDENING, 0);
    if (r.height() == 0) r.adjust(0, -ZERO_SIZE_WIDENING, 0, ZERO_SIZE_WIDENING);
    return r;
}
} // namespace

PlainNodePainter::PlainNodePainter(QPainter *painter)
    : m_painter(painter), m_view(painter->worldTransform()), m_current(m_view)
{
}

PlainNodePainter::~PlainNodePainter() { finish(); }

bool PlainNodePainter::isPlain(QGraphicsItem const *item)
{
    if (item->parentItem() || (item->flags() & NOT_PLAIN_FLAGS) || item->graphicsEffect() || item->isWidget() ||
        item->cacheMode() != QGraphicsItem::NoCache || !item->childItems().isEmpty())
        return false;
    NodeImpl const *node = NodeImpl::fromItem(item);
    return node && node->getCacheType() == CacheType::None && node->paintIgnoresPainterState();
}

void PlainNodePainter::draw(QGraphicsItem *item)
{
    double const opacity = item->opacity(); // a top-level item's own
    if (!item->isVisible() || opacity < NULL_OPACITY) return;
    QTransform transform = item->sceneTransform();
    transform *= m_view; // as Qt combines them
    QRectF const bounds = item->boundingRect();
    QRect const onDevice = transform.mapRect(widened(bounds))
                               .toAlignedRect()
                               .adjusted(-VIEW_RECT_ADJUST, -VIEW_RECT_ADJUST, VIEW_RECT_ADJUST, VIEW_RECT_ADJUST);
    if (onDevice.normalized().isEmpty()) return;
    if (!m_saved) {
        m_painter->save();
        m_saved = true;
    }
    if (transform != m_current) {
        m_painter->setWorldTransform(transform);
        m_current = transform;
    }
    m_painter->setOpacity(opacity);
    m_option.state = QStyle::State_None;
    if (item->isSelected()) m_option.state |= QStyle::State_Selected;
    if (item->isEnabled()) m_option.state |= QStyle::State_Enabled;
    if (item->hasFocus()) m_option.state |= QStyle::State_HasFocus;
    m_option.rect = bounds.toRect();
    m_option.exposedRect = bounds;
    item->paint(m_painter, &m_option, nullptr);
}

void PlainNodePainter::finish()
{
    if (!m_saved) return;
    m_painter->restore();
    m_saved = false;
    m_current = m_view;
}

} // namespace VOR2
