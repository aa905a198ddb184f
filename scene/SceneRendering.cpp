// Scene: rendering to images, painters and printers, outside the views.

#include <Scene>

#include "nodes/StylePainter.h"
#include "scene/ImageExtent.h"
#include "scene/NodeImpl.h"
#include "scene/RenderViewScope.h"
#include "scene/ScenePrivate.h"
#include "values/UsableNumber.h"

#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <algorithm>
#include <cmath>

namespace VOR2 {

namespace {
// A source that is not a valid rectangle of usable numbers stands for the
// whole scene.
QRectF sourceOrWholeScene(ScenePrivate *d, GLOX::GLRect<double> const &source)
{
    return GLOX::toQRectF(source.isValid() && isUsable(source) ? source : d->getNodesBounds());
}

// A target that is not usable counts as none: the whole device.
QRectF targetOrNone(GLOX::GLRect<double> const &target)
{
    return isUsable(target) ? GLOX::toQRectF(target) : QRectF();
}

QColor backgroundColor(ScenePrivate *d) { return GLOX::toQColor(d->getBackground().getColor()); }

// Renders `from` into `target` (the whole device when empty) of `painter`
// as a view of its own, at the scale the render will have.
void renderAsOwnView(ScenePrivate *d, QPainter &painter, QRectF target, QRectF const &from)
{
    if (target.isEmpty()) target = QRectF(0, 0, painter.device()->width(), painter.device()->height());
    double scale = paintScale(&painter);
    if (from.width() > 0 && from.height() > 0)
        scale *= std::min(target.width() / from.width(), target.height() / from.height());
    RenderViewScope view(scale);
    d->renderRegion(&painter, target, from, Qt::KeepAspectRatio);
}
} // namespace

GLOX::Holder<Image> Scene::render(int margin) const { return render(margin, GLOX::GLRect<double>()); }

GLOX::Holder<Image> Scene::render(int margin, GLOX::GLRect<double> const &source) const
{
    QRectF from = sourceOrWholeScene(d, source);
    double const m = std::max(margin, 0);
    QSize const size = imageExtent(from.width() + 2 * m, from.height() + 2 * m);
    if (size.isEmpty()) return Image::fromQImage(QImage());
    QImage image(size, QImage::Format_RGB32);
    image.fill(0xffffffff);
    QRectF target(0, 0, size.width(), size.height());
    QRectF widened(from.x() - m, from.y() - m, size.width(), size.height());
    QPainter painter(&image);
    painter.fillRect(target, backgroundColor(d));
    renderAsOwnView(d, painter, target, widened);
    return Image::fromQImage(image);
}

void Scene::render(QImage &image, GLOX::GLRect<double> const &source, GLOX::GLRect<double> const &target) const
{
    if (image.isNull()) return;
    QRectF from = sourceOrWholeScene(d, source);
    image.fill(0xffffffff);
    QPainter painter(&image);
    painter.fillRect(image.rect(), backgroundColor(d));
    renderAsOwnView(d, painter, targetOrNone(target), from);
}

void Scene::render(QPrinter &printer, GLOX::GLRect<double> const &source, GLOX::GLRect<double> const &target) const
{
    QPainter painter(&printer);
    render(painter, source, target);
}

void Scene::render(QPainter &painter, GLOX::GLRect<double> const &source, GLOX::GLRect<double> const &target) const
{
    renderAsOwnView(d, painter, targetOrNone(target), sourceOrWholeScene(d, source));
}

GLOX::GLRect<double> Scene::getBounds() const { return d->getNodesBounds(); }

void Scene::setDebugRepaintRegion(bool on) { d->setDebugRepaintRegion(on); }
bool Scene::usingDebugRepaintRegion() const { return d->usingDebugRepaintRegion(); }
void Scene::setDebugRepaintRegionColor(GLOX::Color const &color) { d->setDebugRepaintRegionColor(color); }
GLOX::Color Scene::debugRepaintRegionColor() const { return d->debugRepaintRegionColor(); }
void Scene::setTrackingPerformance(bool on) { d->setTrackingPerformance(on); }
bool Scene::getTrackingPerformance() const { return d->getTrackingPerformance(); }

// ------------------------------------------------------------------- Node

GLOX::Holder<Image> Node::render(CacheType type, double scale) const
{
    NodeImpl *impl = getValidImpl();
    if (!(scale > 0) || !isUsable(scale)) return Image::fromQImage(QImage());
    RenderViewScope view(scale);
    return Image::fromQImage(impl->renderToImage(type, scale));
}

} // namespace VOR2
