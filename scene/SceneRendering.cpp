// Scene: rendering to images, painters and printers, outside the views.

#include <Scene>

#include "scene/NodeImpl.h"
#include "scene/ScenePrivate.h"

#include <QImage>
#include <QPainter>
#include <QPrinter>
#include <cmath>

namespace VOR2 {

namespace {
QRectF sourceOrWholeScene(ScenePrivate *d, GLOX::GLRect<double> const &source)
{
    return GLOX::toQRectF(source.isValid() ? source : d->getNodesBounds());
}

QColor backgroundColor(ScenePrivate *d) { return GLOX::toQColor(d->getBackground().getColor()); }
} // namespace

GLOX::Holder<Image> Scene::render(int margin) const { return render(margin, GLOX::GLRect<double>()); }

GLOX::Holder<Image> Scene::render(int margin, GLOX::GLRect<double> const &source) const
{
    QRectF from = sourceOrWholeScene(d, source);
    int width = int(std::ceil(from.width())) + 2 * margin;
    int height = int(std::ceil(from.height())) + 2 * margin;
    QImage image(std::max(width, 0), std::max(height, 0), QImage::Format_RGB32);
    image.fill(0xffffffff);
    if (width > 0 && height > 0) {
        QRectF target(0, 0, width, height);
        QRectF widened(from.x() - margin, from.y() - margin, width, height);
        QPainter painter(&image);
        painter.fillRect(target, backgroundColor(d));
        d->render(&painter, target, widened, Qt::KeepAspectRatio);
    }
    return Image::fromQImage(image);
}

void Scene::render(QImage &image, GLOX::GLRect<double> const &source, GLOX::GLRect<double> const &target) const
{
    QRectF from = sourceOrWholeScene(d, source);
    image.fill(0xffffffff);
    QPainter painter(&image);
    painter.fillRect(image.rect(), backgroundColor(d));
    d->render(&painter, GLOX::toQRectF(target), from, Qt::KeepAspectRatio);
}

void Scene::render(QPrinter &printer, GLOX::GLRect<double> const &source, GLOX::GLRect<double> const &target) const
{
    QPainter painter(&printer);
    render(painter, source, target);
}

void Scene::render(QPainter &painter, GLOX::GLRect<double> const &source, GLOX::GLRect<double> const &target) const
{
    d->render(&painter, GLOX::toQRectF(target), sourceOrWholeScene(d, source), Qt::KeepAspectRatio);
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
    return Image::fromQImage(getValidImpl()->renderToImage(type, scale));
}

} // namespace VOR2
