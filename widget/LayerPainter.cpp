#include "widget/LayerPainter.h"

#include "widget/BackgroundImage.h"
#include "widget/Rendering.h"
#include "widget/ViewGeometry.h"

#include <QLinearGradient>
#include <QPainter>

namespace VOR2 {

namespace {
// A layer's background colour over the exposed area, or else its linear
// gradient stretched over the viewport; other gradients draw nothing.
void paintBackgroundFill(QPainter *painter, Background const &background, ViewInfo const &view, QRect const &exposed)
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
        paintBackgroundFill(painter, layer->background, rendering.view, exposed);
        if (!layer->backgroundImage.isNull()) {
            QSize viewport(int(rendering.view.viewWidth + 0.5), int(rendering.view.viewHeight + 0.5));
            paintBackgroundImage(painter, layer->backgroundImage, layer->background.getImagePlacement(), viewport,
                                 exposed);
        }
        painter->drawImage(QRectF(exposed), layer->image, source);
    }
}

} // namespace VOR2
