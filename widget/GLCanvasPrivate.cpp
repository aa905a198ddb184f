#include "widget/GLCanvasPrivate.h"

#include <Scene>

#include "scene/ScenePrivate.h"
#include "widget/GLCanvasEmitters.h"
#include "widget/QtCanvas.h"
#include "widget/QtWidgetFactory.h"


namespace VOR2 {

GLCanvasPrivate::GLCanvasPrivate(GLCanvas *c) : canvas(c)
{
    GLUV::Thread *host = GLUV::Thread::getCurrentThread();
    viewRequestPosted.connect(this, [this] { server.processPendingViewRequest(); }, host);
    layerStack.layerAdded.connect(this, [this](int i) { onLayerAdded(i); }, host);
    layerStack.layerRemoved.connect(this, [this](int i) { onLayerRemoved(i); }, host);
    // Renders and input share one key, so nodes keep one set of caches for
    // this view.
    server.setViewKey(canvas->getKey());
    server.setLayerStack(&layerStack);
}

GLCanvasPrivate::~GLCanvasPrivate()
{
    QtWidgetFactory::destroyWidget(widget);
    disconnectAll();
    server.setLayerStack(nullptr);
}

void GLCanvasPrivate::post(std::optional<ViewRequest> const &request)
{
    if (!request) return;
    server.setPendingViewRequest(*request);
    viewRequestPosted.sendWith(GLUV::SendQueued);
}

void GLCanvasPrivate::onLayerAdded(int index)
{
    if (index == LayerStack::baseLayerIdx()) {
        Scene *base = layerStack.getLayer(index)->getScene();
        dispatcher.reset();
        if (base) dispatcher = std::make_unique<EventDispatcher>(base, canvas->getEmitters());
    }
    if (Scene *scene = layerStack.getLayer(index)->getScene())
        scene->getPrivate()->toolOverrideCursorChanged.connect(this, [this] { updateCursor(); },
                                                               GLUV::Thread::getCurrentThread());
    updateCursor();
}

void GLCanvasPrivate::onLayerRemoved(int index)
{
    if (index == LayerStack::baseLayerIdx()) dispatcher.reset();
    if (Scene *scene = layerStack.getLayer(index)->getScene())
        scene->getPrivate()->toolOverrideCursorChanged.disconnect(this);
}

void GLCanvasPrivate::updateCursor()
{
    GLOX::Cursor cursor;
    for (int i = layerStack.getNumLayers() - 1; i >= 0 && !cursor.isValid(); --i) {
        Scene *scene = layerStack.getLayer(i)->getScene();
        if (scene && scene->hasToolOverrideCursor()) cursor = scene->getToolOverrideCursor();
    }
    if (!cursor.isValid()) cursor = ownCursor;
    canvas->getEmitters().toolCursorChanged.send(cursor);
}

} // namespace VOR2
