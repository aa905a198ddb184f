#include "widget/BackgroundImage.h"

#include <Background>

#include "GLOX/ImageCompositor.h"

#include <QPainter>

namespace VOR2 {

QImage readBackgroundImage(std::string const &name)
{
    if (name.empty()) return QImage();
    auto &manager = GLOX::ImageCompositor::Manager::instance();
    GLOX::Holder<GLOX::ImageCompositor::Node> node = manager.nodeForKey(GLOX::ImageCompositor::buildKey(name));
    return node->doCreateImage() ? node->image() : QImage();
}

QRect backgroundImageRect(uint32_t placement, QSize const &size, QSize const &viewport)
{
    if (size.isEmpty()) return QRect();
    switch (placement) {
    case Background::Tile:
    case Background::TopLeft:
        return QRect(QPoint(0, 0), size);
    case Background::Centre:
        return QRect(QPoint((viewport.width() - size.width()) / 2, (viewport.height() - size.height()) / 2), size);
    case Background::Stretch:
        return QRect(QPoint(0, 0), viewport);
    default:
        return QRect();
    }
}

void paintBackgroundImage(QPainter *painter, QImage const &image, uint32_t placement, QSize const &viewport,
                          QRect const &exposed)
{
    QRect where = backgroundImageRect(placement, image.size(), viewport);
    if (where.isEmpty()) return;
    painter->save();
    painter->setClipRect(exposed);
    if (placement == Background::Tile) {
        // Only the tiles that meet the exposed area.
        int const w = where.width(), h = where.height();
        for (int y = (exposed.top() / h) * h; y <= exposed.bottom(); y += h)
            for (int x = (exposed.left() / w) * w; x <= exposed.right(); x += w) painter->drawImage(x, y, image);
    } else {
        painter->setRenderHint(QPainter::SmoothPixmapTransform, placement == Background::Stretch);
        painter->drawImage(where, image);
    }
    painter->restore();
}

} // namespace VOR2
