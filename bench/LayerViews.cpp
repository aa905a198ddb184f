#include "LayerViews.h"

#include <Layer>
#include <Scene>

#include <QPainter>

namespace bench {

namespace {
constexpr double BORDER_PIXELS = 3.0;
}

LayerView::LayerView(BuiltScene &scene, QSize size, double scale, QPointF origin)
    : m_scene(scene), m_image(size, QImage::Format_ARGB32_Premultiplied), m_scale(scale), m_origin(origin)
{
    if (scene.system == System::VOR2) {
        m_stack = std::make_unique<VOR2::LayerStack>();
        m_server = std::make_unique<VOR2::SceneServer>();
        m_stack->insertLayer(0, GLOX::Holder<VOR2::Layer>(new VOR2::Layer(scene.vor2, VOR2::LayerStack::baseLayerId())));
        m_server->setLayerStack(m_stack.get());
    } else if (scene.qt) {
        m_changed = QObject::connect(scene.qt, &QGraphicsScene::changed, [this](QList<QRectF> const &rects) {
            for (QRectF const &r : rects) redraw(r);
        });
    }
    setView(scale, origin);
}

LayerView::~LayerView()
{
    QObject::disconnect(m_changed);
    if (m_server) m_server->setLayerStack(nullptr);
}

void LayerView::setView(double scale, QPointF origin)
{
    m_scale = scale;
    m_origin = origin;
    if (m_server) {
        m_server->setPendingViewRequest({scale, origin.x(), origin.y(), double(m_image.width()), double(m_image.height())});
        m_server->processPendingViewRequest();
        return;
    }
    redraw(QRectF(origin, QSizeF(m_image.width() / scale, m_image.height() / scale)));
}

QImage const &LayerView::image()
{
    if (m_server) return m_server->rendering().layers.front()->image;
    return m_image;
}

QRectF LayerView::takeRedrawn()
{
    if (m_server) {
        VOR2::Rendering::Locker lock(m_server->rendering());
        return std::exchange(m_server->rendering().dirty, QRectF());
    }
    return std::exchange(m_redrawn, QRectF());
}

void LayerView::redraw(QRectF const &sceneRect)
{
    double grow = BORDER_PIXELS / m_scale;
    QRectF viewRect((sceneRect.adjusted(-grow, -grow, grow, grow).topLeft() - m_origin) * m_scale,
                    (sceneRect.size() + QSizeF(2 * grow, 2 * grow)) * m_scale);
    QRect target = viewRect.toAlignedRect() & m_image.rect();
    if (target.isEmpty()) return;
    QRectF source(m_origin + QPointF(target.topLeft()) / m_scale, QSizeF(target.size()) / m_scale);
    m_redrawn |= source;
    renderRegion(m_scene, m_image, target, source, this);
}

} // namespace bench
