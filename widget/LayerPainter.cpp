#include "widget/LayerPainter.h"

#include "widget/Rendering.h"
#include "widget/ViewGeometry.h"

#include <QLinearGradient>
#include <QPainter>

namespace VOR2 {

namespace {
// A layer's background over the exposed area: its colour, or its linear
// gradient stretched over the visible scene.
void paintBackground(QPainter *painter, Background const &background, ViewInfo const &view, QRect const &exposed)
{
    if (background.hasColor()) {
        painter->fillRect(exposed, GLOX::toQColor(background.getColor()));
        return;
    }
    if (!background.hasGradient()) return;
    QGradient const *gradient = background.getGradient().getGradient();
    if (!gradient || gradient->type() != QGradient::LinearGradient) return;
    QLinearGradient linear(*static_cast<QLinearGradient const *>(gradient));
    linear.setCoordinateMode(QGradient::LogicalMode);
    QRectF viewRect(0, 0, view.viewWidth, view.viewHeight);
    auto at = [&](QPointF f) { return QPointF(viewRect.x() + f.x() * viewRect.width(), viewRect.y() + f.y() * viewRect.height()); };
    linear.setStart(at(linear.start()));
    linear.setFinalStop(at(linear.finalStop()));
    painter->fillRect(exposed, QBrush(linear));
}
} // namespace

void paintLayers(QPainter *painter, Rendering const &rendering, QRect const &exposed)
{
    QRectF source = QRectF(exposed).translated(rendering.view.offsetX, rendering.view.offsetY);
    for (auto const &layer : rendering.layers) {
        if (!layer->visible) continue;
        paintBackground(painter, layer->background, rendering.view, exposed);
        painter->drawImage(QRectF(exposed), layer->image, source);
    }
}

} // namespace VOR2
