#pragma once
// SceneServer: turns the scenes of one canvas into pixels. On the host
// thread it renders each layer's scene into the layer's image in Rendering,
// only where something changed, and publishes Rendering to the viewer on
// the GUI thread, which copies the images to the screen.
//
// View changes arrive as ViewRequests from either thread: the latest one
// waits in one pending slot (any thread may set it) and is applied by
// processPendingViewRequest on the host thread. Scene changes arrive as the
// scene's changed() signal, after which the server reads the scene's
// pending changes and redraws what the changed nodes covered before and
// cover now.

#include <ViewInfo>
#include <ViewRequest>

#include "GLOX/Containers.h"
#include "GLUV/Emitter.h"
#include "GLUV/Listener.h"
#include "widget/Rendering.h"

#include <QList>
#include <QObject>
#include <QRectF>
#include <memory>
#include <mutex>
#include <vector>

namespace VOR2 {

class LayerStack;
class NodeImpl;
class ScenePrivate;

class SceneServer : public QObject, public GLUV::Listener {
    Q_OBJECT

public:
    SceneServer();
    ~SceneServer() override;

    // Any thread: replaces the pending request; the latest wins.
    void setPendingViewRequest(ViewRequest const &request);
    // Copies and clears (take) or only copies (peek) the pending request;
    // false when none waits.
    bool takePendingViewRequest(ViewRequest &request);
    bool peekPendingViewRequest(ViewRequest &request) const;
    // The effective view: as last rendered for layer 0 (the default view
    // before any), overlaid by the pending request if one waits.
    ViewInfo getViewInfo() const;

    // Host thread: applies the pending request, if any, and renders all
    // layers with the new view.
    void processPendingViewRequest();
    // Host thread: redraws `dirty` (scene coordinates) plus whatever the
    // scene's pending changes touched, in the layer showing `scene`.
    void renderLayer(ScenePrivate *scene, QRectF const &dirty);
    void renderAllLayers(QRectF const &dirty);
    // Host thread: redraws the whole visible area of the scene's layer.
    void repaintAll(ScenePrivate *scene);

    // The key under which nodes keep what they compute for this view (see
    // GlobalViewerInfo): a canvas gives its own, which its input uses too.
    // The server's address until set.
    void setViewKey(void const *key) { m_viewKey = key; }
    void const *getViewKey() const { return m_viewKey; }

    // Host thread: the stack whose layers this server draws; null detaches.
    void setLayerStack(LayerStack *stack);
    // Margins in view pixels, as left, top, right, bottom.
    void setMargins(GLOX::GLRect<double> const &margins);
    GLOX::GLRect<double> getMargins() const { return m_margins; }
    void setMarquee(GLOX::GLRect<double> const &marquee);

    // A copy of a layer's image over opaque white, for tests and capture.
    QImage getImage(int layerIndex);
    Rendering &rendering() { return m_rendering; }

    // Sent on the host thread after each render or marquee change.
    GLUV::Emitter<void (*)(Rendering *)> renderingEmitter{GLUV::SendAuto};

public slots:
    void sceneChanged(QList<QRectF> const &rects);

private:
    void layerAdded(int index);
    void layerRemoved(int index);
    void connectScene(ScenePrivate *scene);
    void disconnectScene(ScenePrivate *scene);
    int indexOf(ScenePrivate const *scene) const;
    QRectF sceneRectOfAllLayers() const;
    // The area the scene's pending changes touched; clears them.
    QRectF takeNodeDirtyRect(ScenePrivate *scene, double scale);
    QRectF drawnBounds(NodeImpl *node, double scale) const;
    // Copies the scene's background into the layer's record, reading its
    // image when the name changed. Under the Rendering lock.
    void publishBackground(RenderedLayer &layer, Background const &background);

    using PaintedBounds = GLOX::GHash<NodeImpl const *, QRectF>;
    // What each node covered when last drawn, in scene coordinates, per
    // scene. Keys of removed nodes are never dereferenced.
    GLOX::GHash<ScenePrivate const *, PaintedBounds> m_paintedBounds;
    // Areas Qt announced while a delivery of the scene's changes was on its
    // way, drawn with that delivery (or any render before it).
    GLOX::GHash<ScenePrivate const *, QRectF> m_deferredDirty;
    Rendering m_rendering;
    mutable std::mutex m_pendingMutex;
    std::unique_ptr<ViewRequest> m_pendingRequest;
    GLOX::GLRect<double> m_margins;
    bool m_fullRedraw = false;
    LayerStack *m_layerStack = nullptr;
    void const *m_viewKey = this;
    std::vector<ViewInfo> m_renderedViews; // per layer: the view its image was drawn with
};

} // namespace VOR2
