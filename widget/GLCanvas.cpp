#include <GLCanvas>
#include <Scene>

#include "widget/GLCanvasEmitters.h"
#include "widget/GLCanvasPrivate.h"
#include "widget/QtWidgetFactory.h"
#include "widget/ViewGeometry.h"

namespace VOR2 {

GLCanvas::GLCanvas(GLOX::StringID const &id, GLOX::GLObject *parent)
    : GLOX::GLWidget2(id, parent), m_emitters(std::make_unique<GLCanvasEmitters>()),
      d(std::make_unique<GLCanvasPrivate>(this))
{
    // The widget reaches back for the server: make it once d is set.
    d->widget = QtWidgetFactory::createWidgetFor(this, parent);
    // The canvas handles these itself: the widget's own handling does not
    // follow them.
    for (GLOX::WidgetEventCode code :
         {GLOX::WidgetEventCode::ContextMenu, GLOX::WidgetEventCode::Wheel, GLOX::WidgetEventCode::KeyPress,
          GLOX::WidgetEventCode::KeyRelease, GLOX::WidgetEventCode::MouseDoubleClick, GLOX::WidgetEventCode::Drop,
          GLOX::WidgetEventCode::Resize})
        setEventConsumed(code, true);
}

GLCanvas::~GLCanvas()
{
    m_destroyed.send(this);
    d.reset();
}

void GLCanvas::destroy() { delete this; }

LayerStack &GLCanvas::getLayerStack() { return d->layerStack; }

SceneServer &GLCanvas::getSceneServer() { return d->server; }

QWidget *GLCanvas::getWidget() const { return d->widget.data(); }

Scene *GLCanvas::getScene() const
{
    Layer *base = d->layerStack.getLayer(LayerStack::baseLayerId());
    return base ? base->getScene() : nullptr;
}

void GLCanvas::setScene(Scene *scene)
{
    if (Layer *base = d->layerStack.getLayer(LayerStack::baseLayerId()))
        d->layerStack.removeLayer(base->getZValue());
    if (scene)
        d->layerStack.insertLayer(LayerStack::baseLayerIdx(),
                                  GLOX::Holder<Layer>(new Layer(scene, LayerStack::baseLayerId())));
}

void GLCanvas::setCursor(GLOX::Cursor const &cursor)
{
    GLOX::Cursor const wanted = cursor.isValid() ? cursor : GLOX::Cursor();
    if (wanted == d->ownCursor) return;
    d->ownCursor = wanted;
    d->updateCursor();
}

void GLCanvas::unsetCursor() { setCursor(GLOX::Cursor()); }
bool GLCanvas::hasCursor() const { return d->ownCursor.isValid(); }
GLOX::Cursor GLCanvas::getCursor() const { return d->ownCursor; }

ViewInfo GLCanvas::getViewInfo() const { return d->server.getViewInfo(); }

GLCanvas::Rect GLCanvas::getMargins() const { return d->server.getMargins(); }
void GLCanvas::setMargins(Rect const &margins)
{
    if (view::isFinite(margins)) d->server.setMargins(margins);
}

GLCanvas::Point GLCanvas::getViewExtents() const
{
    ViewInfo v = getViewInfo();
    return {v.viewWidth, v.viewHeight};
}

GLCanvas::Rect GLCanvas::getSceneRectInView() const { return view::visibleSceneRect(getViewInfo()); }
GLCanvas::Rect GLCanvas::getSceneRect() const { return getViewInfo().sceneRect; }
double GLCanvas::getScale() const { return getViewInfo().scale; }

GLCanvas::Rect GLCanvas::viewRectToSceneRect(Rect const &r) const { return view::viewToScene(getViewInfo(), r); }
GLCanvas::Rect GLCanvas::sceneRectToViewRect(Rect const &r) const { return view::sceneToView(getViewInfo(), r); }
GLCanvas::Point GLCanvas::viewPointToScenePoint(Point const &p) const { return view::viewToScene(getViewInfo(), p); }
GLCanvas::Point GLCanvas::scenePointToViewPoint(Point const &p) const { return view::sceneToView(getViewInfo(), p); }

void GLCanvas::setMarquee(Rect const &rect)
{
    if (view::isFinite(rect)) d->server.setMarquee(rect);
}

void GLCanvas::setScale(double scale) { d->post(view::setScale(getViewInfo(), scale)); }

void GLCanvas::setScaleAroundScenePoint(double scale, Point const &p)
{
    d->post(view::setScaleAroundScenePoint(getViewInfo(), scale, p));
}

void GLCanvas::showSceneRect(Rect const &rect) { d->post(view::showSceneRect(getViewInfo(), rect)); }

void GLCanvas::showScenePointAtViewPointAtScale(Point const &scenePoint, Point const &viewPoint, double scale)
{
    d->post(view::showScenePointAtViewPoint(getViewInfo(), scenePoint, viewPoint, scale));
}

void GLCanvas::translateScenePointToViewPoint(Point const &scenePoint, Point const &viewPoint)
{
    ViewInfo v = getViewInfo();
    d->post(view::showScenePointAtViewPoint(v, scenePoint, viewPoint, v.scale));
}

void GLCanvas::translate(double dx, double dy) { d->post(view::translate(getViewInfo(), dx, dy)); }

void GLCanvas::setInitialSceneOriginAndScale(Point const &origin, double scale)
{
    ViewInfo v = getViewInfo();
    double w = v.viewWidth < 0 || v.viewHeight < 0 ? 1.0 : v.viewWidth;
    double h = v.viewWidth < 0 || v.viewHeight < 0 ? 1.0 : v.viewHeight;
    ViewRequest const request{scale, origin.x, origin.y, w, h};
    if (!view::isUsable(request)) return;
    d->server.setPendingViewRequest(request);
    d->server.processPendingViewRequest(); // at once, on this thread
}

void GLCanvas::zoomToSceneRect() { d->post(view::zoomToSceneRect(getViewInfo())); }

void GLCanvas::zoomToActualSize() { d->post(view::zoomToActualSize(getViewInfo())); }

} // namespace VOR2
