#include "scene/SceneRegionRenderer.h"

#include "scene/ScenePrivate.h"

#include <QPainter>

namespace VOR2 {

void renderSceneRegion(QPainter *painter, ScenePrivate *scene, QRect const &target, QRectF const &source)
{
    QPainter::CompositionMode mode = painter->compositionMode();
    painter->setCompositionMode(QPainter::CompositionMode_Source);
    painter->fillRect(target, Qt::transparent);
    painter->setCompositionMode(mode);
    scene->renderRegion(painter, QRectF(target), source, Qt::KeepAspectRatio);
    if (scene->usingDebugRepaintRegion()) painter->fillRect(target, GLOX::toQColor(scene->debugRepaintRegionColor()));
    painter->end();
}

} // namespace VOR2
