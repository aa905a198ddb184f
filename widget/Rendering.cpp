#include "widget/Rendering.h"

#include "widget/ViewGeometry.h"

#include <QThread>
#include <algorithm>

namespace VOR2 {

void Rendering::lock()
{
    m_mutex.lock();
    ++m_lockCount;
    m_lockOwner = QThread::currentThreadId();
}

void Rendering::unlock()
{
    if (--m_lockCount == 0) m_lockOwner = nullptr;
    m_mutex.unlock();
}

namespace {
QImage transparentImage(double width, double height, int minimum)
{
    int w = std::max(int(width + 0.5), minimum), h = std::max(int(height + 0.5), minimum);
    if (w <= 0 || h <= 0) return QImage();
    QImage image(w, h, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}
} // namespace

QImage Rendering::newLayerImage() const { return transparentImage(view.imageWidth, view.imageHeight, 1); }

QRectF Rendering::applyRequest(ViewRequest const &request)
{
    view = view::overlaid(view, request);
    if (request.width != view.imageWidth || request.height != view.imageHeight) {
        view.imageWidth = request.width;
        view.imageHeight = request.height;
        for (auto &layer : layers) layer->image = transparentImage(view.imageWidth, view.imageHeight, 0);
    }
    return GLOX::toQRectF(view::visibleSceneRect(view));
}

} // namespace VOR2
