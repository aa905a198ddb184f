#pragma once
// Renders a region of a scene into part of a painter's device, for live
// views: the target is cleared to transparent, the scene drawn over it, and
// the debug repaint colour laid over that when the scene asks for it. Ends
// the painter. Host thread; GlobalViewerInfo must name the view.

#include <QRect>
#include <QRectF>

class QPainter;

namespace VOR2 {

class ScenePrivate;

void renderSceneRegion(QPainter *painter, ScenePrivate *scene, QRect const &target, QRectF const &source);

} // namespace VOR2
