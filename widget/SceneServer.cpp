#include "widget/SceneServer.h"

#include <GlobalViewerInfo>
#include <LayerStack>
#include <Scene>

#include "scene/NodeImpl.h"
#include "scene/SceneRegionRenderer.h"
#include "scene/ScenePrivate.h"
#include "values/UsableNumber.h"
#include "widget/BackgroundImage.h"
#include "widget/ViewGeometry.h"

#include <QPainter>
#include <cmath>
#include <QtGlobal>

namespace VOR2 {

namespace {
constexpr double DEFAULT_MARGIN = 20.0;
constexpr double DIRTY_BORDER_PIXELS = 3.0;

// All there is: what an area beyond usable numbers may cover.
QRectF everywhere() { return QRectF(-COORDINATE_LIMIT, -COORDINATE_LIMIT, 2 * COORDINATE_LIMIT, 2 * COORDINATE_LIMIT); }

// What a changed area dirties: itself when its numbers are usable. Nested
// transforms can carry a node beyond them, to infinities: such a node may
// cover anything, so it dirties everything there is. An area with NaN in
// it says nothing and dirties nothing.
QRectF dirtyArea(QRectF const &r)
{
    if (isUsable(r) || r.isEmpty()) return r;
    if (std::isnan(r.x()) || std::isnan(r.y()) || std::isnan(r.width()) || std::isnan(r.height())) return QRectF();
    return everywhere();
}
} // namespace

SceneServer::SceneServer() { setMargins(GLOX::GLRect<double>(DEFAULT_MARGIN, DEFAULT_MARGIN, DEFAULT_MARGIN, DEFAULT_MARGIN)); }

SceneServer::~SceneServer() { setLayerStack(nullptr); }

// ------------------------------------------------------------ view requests

void SceneServer::setPendingViewRequest(ViewRequest const &request)
{
    std::lock_guard<std::mutex> lock(m_pendingMutex);
    m_pendingRequest = std::make_unique<ViewRequest>(request);
}

bool SceneServer::takePendingViewRequest(ViewRequest &request)
{
    std::lock_guard<std::mutex> lock(m_pendingMutex);
    if (!m_pendingRequest) return false;
    request = *m_pendingRequest;
    m_pendingRequest.reset();
    return true;
}

bool SceneServer::peekPendingViewRequest(ViewRequest &request) const
{
    std::lock_guard<std::mutex> lock(m_pendingMutex);
    if (!m_pendingRequest) return false;
    request = *m_pendingRequest;
    return true;
}

ViewInfo SceneServer::getViewInfo() const
{
    ViewInfo v = m_renderedViews.empty() ? ViewInfo() : m_renderedViews.front();
    v.margins = m_margins;
    {
        Rendering::Locker lock(const_cast<Rendering &>(m_rendering));
        v.sceneRect = m_rendering.view.sceneRect;
        v.marquee = m_rendering.view.marquee;
    }
    ViewRequest pending;
    return peekPendingViewRequest(pending) ? view::overlaid(v, pending) : v;
}

QRectF SceneServer::sceneRectOfAllLayers() const
{
    QRectF united;
    if (!m_layerStack) return united;
    for (int i = 0; i < m_layerStack->getNumLayers(); ++i)
        if (Scene *scene = m_layerStack->getLayer(i)->getScene())
            united |= GLOX::toQRectF(scene->getPrivate()->getVisibleItemsRect());
    return united;
}

void SceneServer::processPendingViewRequest()
{
    ViewRequest request;
    if (!takePendingViewRequest(request)) return;
    QRectF visible;
    {
        Rendering::Locker lock(m_rendering);
        m_rendering.view.sceneRect = GLOX::toDRect(sceneRectOfAllLayers());
        GLOX::GLRect<double> const &scene = m_rendering.view.sceneRect;
        // Nothing to see: an empty scene is always shown at the identity view.
        if (!(scene.width > 0 && scene.height > 0)) request = {1.0, 0.0, 0.0, request.width, request.height};
        visible = m_rendering.applyRequest(request);
    }
    renderAllLayers(visible);
}

// --------------------------------------------------------------- rendering

void SceneServer::renderAllLayers(QRectF const &dirty)
{
    if (!m_layerStack) return;
    for (int i = 0; i < m_layerStack->getNumLayers(); ++i)
        if (Scene *scene = m_layerStack->getLayer(i)->getScene()) renderLayer(scene->getPrivate(), dirty);
}

void SceneServer::repaintAll(ScenePrivate *scene)
{
    Rendering::Locker lock(m_rendering);
    m_fullRedraw = true;
    renderLayer(scene, QRectF());
    m_fullRedraw = false;
}

QRectF SceneServer::drawnBounds(NodeImpl *node, double scale) const
{
    QRectF local = GLOX::toQRectF(node->getCachedMaximumBounds(scale).boundingRect());
    QTransform const toScene = node->getGraphicsItem()->sceneTransform();
    // Mapped through infinities, an edge at zero becomes NaN, which would
    // say the node covers nothing: it may cover anything.
    if (!local.isEmpty() && !isUsable(toScene)) return everywhere();
    return dirtyArea(toScene.mapRect(local));
}

QRectF SceneServer::takeNodeDirtyRect(ScenePrivate *scene, double scale)
{
    PaintedBounds &painted = m_paintedBounds[scene];
    QRectF d;
    auto remember = [&](NodeImpl *node) {
        QRectF drawn = drawnBounds(node, scale);
        painted.insert(node, drawn);
        d |= drawn;
    };
    // Every server of the scene reads the one batch being delivered; outside
    // a delivery there is none, and the changes come with the next one.
    scene->changesBeingDelivered().forEach([&](NodeImpl *node, PendingChangeKind kind) {
        switch (kind) {
        case PendingChangeKind::Removed: // the key only: the node may be gone
            d |= painted.take(node);
            break;
        case PendingChangeKind::Geometry:
            d |= painted.value(node);
            if (node->getGraphicsItem()->isVisible())
                remember(node);
            else
                painted.remove(node);
            break;
        case PendingChangeKind::Repaint:
            if (node->getGraphicsItem()->isVisible()) remember(node);
            break;
        }
    });
    // Nodes drawn into the area by the way must be erased properly later.
    if (!d.isEmpty())
        for (QGraphicsItem *item : scene->itemsIn(d, Qt::IntersectsItemBoundingRect)) {
            NodeImpl *node = NodeImpl::fromItem(item);
            if (node && item->isVisible() && !painted.contains(node)) painted.insert(node, drawnBounds(node, scale));
        }
    return d;
}

void SceneServer::renderLayer(ScenePrivate *scene, QRectF const &givenDirty)
{
    Rendering::Locker lock(m_rendering);
    int index = indexOf(scene);
    if (index < 0 || index >= int(m_rendering.layers.size()) || index >= int(m_renderedViews.size())) return;
    RenderedLayer &layer = *m_rendering.layers[size_t(index)];
    ViewInfo &view = m_rendering.view;
    double const scale = view.scale;
    GlobalViewerInfo::instance()->setCurrentView(m_viewKey, scale);

    view.sceneRect = GLOX::toDRect(sceneRectOfAllLayers());
    ViewInfo &last = m_renderedViews[size_t(index)];
    QRectF sceneBounds = GLOX::toQRectF(scene->getVisibleItemsRect());
    QRectF d = takeNodeDirtyRect(scene, scale) | givenDirty | m_deferredDirty.take(scene);
    QRectF visible = GLOX::toQRectF(view::visibleSceneRect(view));
    d = m_fullRedraw ? visible : (d & visible);
    if (last.scale == scale && !m_fullRedraw) {
        // Only scrolled: what was drawn before moves along with the view.
        QRectF lastVisible = GLOX::toQRectF(view::visibleSceneRect(last));
        QPointF shift = visible.topLeft() - lastVisible.topLeft();
        d &= GLOX::toQRectF(last.sceneRect).translated(shift) | sceneBounds;
    }
    if (d.width() > 0 && d.height() > 0 && !layer.image.isNull()) {
        double grow = DIRTY_BORDER_PIXELS / scale;
        QRectF grown = d.adjusted(-grow, -grow, grow, grow);
        QRect target = GLOX::toQRectF(view::sceneToView(view, GLOX::toDRect(grown))).toAlignedRect();
        QRectF source = GLOX::toQRectF(view::viewToScene(view, GLOX::toDRect(QRectF(target))));
        QPainter painter(&layer.image);
        renderSceneRegion(&painter, scene, target, source);
    }
    QPointF lastOrigin = GLOX::toQRectF(view::visibleSceneRect(last)).topLeft();
    if (!qFuzzyCompare(visible.x() + 1.0, lastOrigin.x() + 1.0) ||
        !qFuzzyCompare(visible.y() + 1.0, lastOrigin.y() + 1.0) || m_fullRedraw)
        d |= visible; // the whole viewport shifts
    last = view;
    if (d.width() > 0 && d.height() > 0) m_rendering.dirty |= d;
    publishBackground(layer, scene->getBackground());
    layer.visible = scene->hasNodes();
    m_fullRedraw = false;
    renderingEmitter.send(&m_rendering);
    GlobalViewerInfo::instance()->clearCurrentView();
}

void SceneServer::publishBackground(RenderedLayer &layer, Background const &background)
{
    if (background.getImage() != layer.background.getImage())
        layer.backgroundImage = readBackgroundImage(background.getImage());
    layer.background = background;
}

void SceneServer::sceneChanged(QList<QRectF> const &rects)
{
    auto *scene = dynamic_cast<ScenePrivate *>(sender());
    if (!scene) return;
    // While the scene holds Qt's item updates Qt announces "everything":
    // only the scene's own changes tell what to draw.
    bool const held = scene->announcesHeldQtUpdates();
    if (held && !scene->isDeliveringChanges()) return;
    QRectF united;
    if (!held)
        for (QRectF const &r : rects) united |= dirtyArea(r);
    // Qt announces its items' updates on its own too, often just before the
    // scene delivers the same changes: keep its area for that delivery
    // rather than draw it twice.
    if (!scene->isDeliveringChanges() && !scene->getPendingChanges().isEmpty()) {
        m_deferredDirty[scene] |= united;
        return;
    }
    renderLayer(scene, united);
}

// ------------------------------------------------------------------ layers

int SceneServer::indexOf(ScenePrivate const *scene) const
{
    if (!m_layerStack || !scene) return -1;
    Layer *layer = m_layerStack->getLayer(scene);
    if (!layer || m_layerStack->getLayer(layer->getZValue()) != layer) return -1;
    return layer->getZValue();
}

void SceneServer::setLayerStack(LayerStack *stack)
{
    if (m_layerStack) {
        m_layerStack->layerAdded.disconnect(this);
        m_layerStack->layerRemoved.disconnect(this);
        for (int i = m_layerStack->getNumLayers() - 1; i >= 0; --i) layerRemoved(i);
    }
    m_layerStack = stack;
    if (!m_layerStack) return;
    GLUV::Thread *host = GLUV::Thread::getCurrentThread();
    m_layerStack->layerAdded.connect(this, [this](int i) { layerAdded(i); }, host);
    m_layerStack->layerRemoved.connect(this, [this](int i) { layerRemoved(i); }, host);
    for (int i = 0; i < m_layerStack->getNumLayers(); ++i) layerAdded(i);
}

void SceneServer::connectScene(ScenePrivate *scene)
{
    scene->backgroundChanged.connect(this, [this](ScenePrivate *changed) { repaintAll(changed); },
                                     GLUV::Thread::getCurrentThread());
    QObject::connect(scene, &QGraphicsScene::changed, this, &SceneServer::sceneChanged, Qt::DirectConnection);
}

void SceneServer::disconnectScene(ScenePrivate *scene)
{
    scene->backgroundChanged.disconnect(this);
    QObject::disconnect(scene, &QGraphicsScene::changed, this, &SceneServer::sceneChanged);
    m_paintedBounds.remove(scene);
    m_deferredDirty.remove(scene);
}

void SceneServer::layerAdded(int index)
{
    Rendering::Locker lock(m_rendering);
    Layer *layer = m_layerStack->getLayer(index);
    auto rendered = std::make_unique<RenderedLayer>();
    rendered->image = m_rendering.newLayerImage();
    m_rendering.layers.insert(m_rendering.layers.begin() + index, std::move(rendered));
    m_renderedViews.insert(m_renderedViews.begin() + index, ViewInfo());
    if (Scene *scene = layer->getScene()) {
        connectScene(scene->getPrivate());
        m_fullRedraw = true;
        renderLayer(scene->getPrivate(), QRectF());
        m_fullRedraw = false;
    }
}

void SceneServer::layerRemoved(int index)
{
    Rendering::Locker lock(m_rendering);
    if (Scene *scene = m_layerStack->getLayer(index)->getScene()) disconnectScene(scene->getPrivate());
    m_renderedViews.erase(m_renderedViews.begin() + index);
    m_rendering.layers.erase(m_rendering.layers.begin() + index);
    m_rendering.dirty |= GLOX::toQRectF(view::visibleSceneRect(m_rendering.view));
    renderingEmitter.send(&m_rendering);
}

// ----------------------------------------------------------- view settings

void SceneServer::setMargins(GLOX::GLRect<double> const &margins)
{
    m_margins = margins;
    {
        Rendering::Locker lock(m_rendering);
        m_rendering.view.margins = margins;
    }
    renderAllLayers(QRectF());
}

void SceneServer::setMarquee(GLOX::GLRect<double> const &marquee)
{
    Rendering::Locker lock(m_rendering);
    m_rendering.view.marquee = marquee;
    renderingEmitter.send(&m_rendering);
}

QImage SceneServer::getImage(int layerIndex)
{
    Rendering::Locker lock(m_rendering);
    if (layerIndex < 0 || layerIndex >= int(m_rendering.layers.size())) return QImage();
    QImage layer = m_rendering.layers[size_t(layerIndex)]->image;
    QImage result(layer.size(), QImage::Format_RGB32);
    result.fill(0xffffffff);
    QPainter painter(&result);
    painter.drawImage(0, 0, layer);
    return result;
}

} // namespace VOR2
