#include "nodes/ImageNodeImpl.h"

#include <Effect>

#include <Image>

#include "nodes/StylePainter.h"
#include "values/UsableNumber.h"

#include <algorithm>
#include <climits>
#include <cstdio>

namespace VOR2 {

char const *const ImageNodeImpl::TYPE_NAME = "VOR2.ImageNode";

namespace {
using CompositorNode = GLOX::Holder<GLOX::ImageCompositor::Node>;

// A size in whole pixels, as far as an int reaches.
int toPixels(double extent) { return int(std::clamp(extent, double(-INT_MAX), double(INT_MAX))); }

// The key a client image is registered under: unique while the image lives.
std::string customSourceFor(Image const *image)
{
    char text[64];
    std::snprintf(text, sizeof text, "customsrc-%p", static_cast<void const *>(image));
    return text;
}
} // namespace

bool ImageNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || NodeImpl::isa(typeName);
}

void ImageNodeImpl::setSource(std::string const &source)
{
    if (source == m_source && (source.empty() || !isNullImage())) return;
    auto &manager = GLOX::ImageCompositor::Manager::instance();
    showImage(source, manager.nodeForKey(GLOX::ImageCompositor::buildKey(source)));
}

void ImageNodeImpl::setSource(GLOX::Holder<Image> const &image)
{
    if (!image) return;
    std::string source = customSourceFor(image.get());
    // The key is the Image's address, which a later Image may reuse: its
    // serial tells a new Image from the one shown.
    if (source == m_source && !isNullImage() && image->serial() == m_clientImageSerial) return;
    auto &manager = GLOX::ImageCompositor::Manager::instance();
    m_clientImageSerial = image->serial();
    showImage(source, manager.registerImage(source, *image->asQImage()));
}

void ImageNodeImpl::showImage(std::string const &source, CompositorNode node)
{
    m_source = source;
    m_imageNode = std::move(node);
    GLOX::GLPoint<double> const before = m_size;
    setSizeToNaturalSize();
    // Same size, other pixels: the outline stands, the look does not.
    if (m_size == before) notifyRepaint();
}

bool ImageNodeImpl::isNullImage() const
{
    return !m_imageNode || (!m_imageNode->hasImage() && !m_imageNode->hasSource());
}

void ImageNodeImpl::setSize(double width, double height)
{
    if (!isUsable(width) || !isUsable(height)) return;
    if (width == m_size.x && height == m_size.y) return;
    prepareItemGeometryChange(); // while Qt can still see the old rectangle
    m_size = {width, height};
    notifyGeometryChanged(false);
}

GLOX::GLPoint<int> ImageNodeImpl::naturalSize() const
{
    if (isNullImage() || !m_imageNode->doCreateImage()) return {0, 0};
    QImage const &image = m_imageNode->image();
    return {image.width(), image.height()};
}

void ImageNodeImpl::setSizeToNaturalSize()
{
    GLOX::GLPoint<int> natural = naturalSize();
    setSize(natural.x, natural.y);
}

Bounds ImageNodeImpl::computeBounds()
{
    if (isNullImage()) return Bounds(QRectF());
    return Bounds(QRectF(0.0, 0.0, m_size.x, m_size.y).normalized());
}

void ImageNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *)
{
    if (isNullImage() || !m_imageNode->doCreateImage()) return;
    applyDrawStyle(painter, getDrawStyle(), paintScale(painter));
    painter->drawImage(QRect(0, 0, toPixels(m_size.x), toPixels(m_size.y)), m_imageNode->image());
}

void ImageNodeImpl::paintMask(QPainter *painter, double scale, GLOX::GLRect<double> const &rect)
{
    if (isNullImage() || !m_imageNode->doCreateImage()) {
        NodeImpl::paintMask(painter, scale, rect);
        return;
    }
    painter->setRenderHint(QPainter::Antialiasing, true);
    painter->drawImage(QPointF(0.0, 0.0), m_imageNode->image());
    // Black over the whole device, kept only where the image put alpha. The
    // device rectangle is in device pixels: switch the transforms off for it.
    QPainter::CompositionMode const mode = painter->compositionMode();
    bool const worldOn = painter->worldMatrixEnabled();
    bool const viewOn = painter->viewTransformEnabled();
    painter->setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QBrush(QColor(0, 0, 0, 255), Qt::SolidPattern));
    painter->setWorldMatrixEnabled(false);
    painter->setViewTransformEnabled(false);
    QRect const device(QPoint(0, 0), QPoint(painter->device()->width() - 1, painter->device()->height() - 1));
    painter->drawRects(&device, 1);
    painter->setViewTransformEnabled(viewOn);
    painter->setWorldMatrixEnabled(worldOn);
    painter->setCompositionMode(mode);
}

void ImageNodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                 QWidget *widget)
{
    if (!effect->renderEffectImage(this, painter, option, widget)) effect->renderEffectGeneric(this, painter, option, widget);
}

} // namespace VOR2
