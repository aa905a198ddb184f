#include "scene/PlainNodePainter.h"

#include "scene/NodeImpl.h"

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QPainter>
#include <cmath>

namespace VOR2 {

namespace {
constexpr double NULL_OPACITY = 0.001; // what Qt takes for fully transparent
// Beyond this, rounding a rectangle to ints overflows.
constexpr double INT_RECT_LIMIT = 1 << 30;

// The style option's rectangle: the bounding rectangle rounded, as Qt gives
// it; empty where the rounding would overflow (plain nodes do not read it).
QRect roundedOrEmpty(QRectF const &r)
{
    bool const fits = std::abs(r.left()) < INT_RECT_LIMIT && std::abs(r.right()) < INT_RECT_LIMIT &&
                      std::abs(r.top()) < INT_RECT_LIMIT && std::abs(r.bottom()) < INT_RECT_LIMIT;
    return fits ? r.toRect() : QRect();
}

constexpr QGraphicsItem::GraphicsItemFlags NOT_PLAIN_FLAGS =
    QGraphicsItem::ItemClipsToShape | QGraphicsItem::ItemClipsChildrenToShape |
    QGraphicsItem::ItemContainsChildrenInShape | QGraphicsItem::ItemHasNoContents |
    QGraphicsItem::ItemIgnoresTransformations;
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
    // Qt, rendering without a view, also skips an item whose device
    // rectangle, grown by a pixel on every side, is empty: never one of
    // finite size, and its integer arithmetic wraps round (and draws) for
    // one beyond the int range, so that test is left out here.
    QTransform transform = item->sceneTransform();
    transform *= m_view; // as Qt combines them
    QRectF const bounds = item->boundingRect();
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
    m_option.rect = roundedOrEmpty(bounds);
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
