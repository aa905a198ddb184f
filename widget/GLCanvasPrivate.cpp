#include "widget/GLCanvasPrivate.h"

#include <Scene>

#include "scene/ScenePrivate.h"
#include "widget/QtWidgetFactory.h"

#include <QMetaObject>
#include <QWidget>

namespace VOR2 {

GLCanvasPrivate::GLCanvasPrivate(GLCanvas *c) : canvas(c)
{
    GLUV::Thread *host = GLUV::Thread::getCurrentThread();
    viewRequestPosted.connect(this, [this] { server.processPendingViewRequest(); }, host);
    layerStack.layerAdded.connect(this, [this](int i) { onLayerAdded(i); }, host);
    layerStack.layerRemoved.connect(this, [this](int i) { onLayerRemoved(i); }, host);
    server.setLayerStack(&layerStack);
}

GLCanvasPrivate::~GLCanvasPrivate()
{
    QtWidgetFactory::destroyWidget(widget);
    widget = nullptr;
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
    if (Scene *scene = layerStack.getLayer(index)->getScene())
        scene->getPrivate()->toolOverrideCursorChanged.connect(this, [this] { updateCursor(); },
                                                               GLUV::Thread::getCurrentThread());
    updateCursor();
}

void GLCanvasPrivate::onLayerRemoved(int index)
{
    if (Scene *scene = layerStack.getLayer(index)->getScene())
        scene->getPrivate()->toolOverrideCursorChanged.disconnect(this);
}

void GLCanvasPrivate::updateCursor()
{
    std::optional<QCursor> cursor;
    for (int i = layerStack.getNumLayers() - 1; i >= 0 && !cursor; --i) {
        Scene *scene = layerStack.getLayer(i)->getScene();
        if (scene && scene->hasToolOverrideCursor()) cursor = scene->getToolOverrideCursor().toQCursor();
    }
    if (!widget) return;
    QWidget *w = widget;
    QMetaObject::invokeMethod(w, [w, cursor] { cursor ? w->setCursor(*cursor) : w->unsetCursor(); },
                              Qt::QueuedConnection);
}

} // namespace VOR2
