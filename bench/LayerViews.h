#pragma once
// One layer image of a view onto each system, kept up to date the way each
// system's users keep it:
//   VOR2     a SceneServer with a one-layer LayerStack: a node's change
//            reaches it through the scene's changed() signal on a host-loop
//            turn, a zoom is a ViewRequest it processes;
//   Qt       the QGraphicsScene's changed() rectangles are cleared and
//            redrawn with QGraphicsScene::render, grown by the same 3 view
//            pixels as the server does; a zoom redraws the whole image;
//   Painter  a zoom redraws the whole image with QPainter (no change path).
// Host thread.

#include "Systems.h"

#include <LayerStack>

#include "widget/SceneServer.h"

#include <QImage>
#include <QMetaObject>
#include <memory>

namespace bench {

class LayerView {
public:
    // A view of `size` pixels at `scale` with scene point `origin` at its
    // top-left, drawn in full.
    LayerView(BuiltScene &scene, QSize size, double scale, QPointF origin);
    ~LayerView();
    LayerView(LayerView const &) = delete;
    LayerView &operator=(LayerView const &) = delete;

    // Moves the view and redraws the layer image.
    void setView(double scale, QPointF origin);
    QImage const &image();
    VOR2::SceneServer *server() { return m_server.get(); }
    // Scene area redrawn since the last call (VOR2: what the server
    // published as dirty).
    QRectF takeRedrawn();

private:
    void redraw(QRectF const &sceneRect);

    BuiltScene &m_scene;
    QImage m_image;
    double m_scale;
    QPointF m_origin;
    QRectF m_redrawn;
    std::unique_ptr<VOR2::LayerStack> m_stack;
    std::unique_ptr<VOR2::SceneServer> m_server;
    QMetaObject::Connection m_changed;
};

} // namespace bench
