#pragma once
// The systems under measurement, each holding the same shapes:
//   VOR2      one Scene of nodes (RectNode, EllipseNode, LineNode,
//             RoundedRectNode, the four path nodes with ShapeNode arrow
//             heads) with a per-node draw style;
//   QtBsp     a plain QGraphicsScene of Qt's standard items (paths as
//             QGraphicsPathItem, heads as child QGraphicsPolygonItem), BSP index;
//   QtNoIndex the same with QGraphicsScene::NoIndex;
//   Painter   no scene: the shape list drawn with QPainter directly.
// Everything here runs on the host thread (the benchmark's main thread).

#include "Workloads.h"

#include <Node>
#include <Scene>

#include <QGraphicsItem>
#include <QGraphicsScene>
#include <QPainter>
#include <memory>
#include <string>
#include <vector>

namespace bench {

enum class System { VOR2, QtBsp, QtNoIndex, Painter };
char const *systemKey(System s);

// A scene of one system. The constructor creates and adds every shape; the
// destructor (or teardown) destroys the scene and what it holds. A Qt
// scene's teardown first runs the polish pass that the next event-loop
// turn would run; without it Qt's own deletion of items is quadratic.
struct BuiltScene {
    System system;
    VOR2::Scene *vor2 = nullptr; // one reference held
    QGraphicsScene *qt = nullptr;
    std::vector<Shape> const *shapes = nullptr;
    VOR2::Node firstNode;        // VOR2: a handle on the first shape, when asked for
    QGraphicsItem *firstItem = nullptr;

    BuiltScene(System s, std::vector<Shape> const &list, bool keepFirst);
    ~BuiltScene() { teardown(); }
    BuiltScene(BuiltScene const &) = delete;
    BuiltScene &operator=(BuiltScene const &) = delete;
    void teardown();
};

// Draws W1S's outline on the edge of `rect`, leaving its pen and brush.
void paintOutline(QPainter &painter, QRectF const &rect);

// Paints the shapes that intersect `source` (scene units) with QPainter:
// the painter is already transformed from scene to device.
void paintShapesDirectly(QPainter &painter, std::vector<Shape> const &list, QRectF const &source, double scale);

// Renders `source` of a built scene into `target` of `image` at the scale
// that maps one onto the other, after clearing `target` to transparent:
// VOR2 through the views' region renderer, Qt through
// QGraphicsScene::render, the painter directly. `viewKey` names the view
// for VOR2's per-view caches.
void renderRegion(BuiltScene &scene, QImage &image, QRect const &target, QRectF const &source, void const *viewKey);

} // namespace bench
