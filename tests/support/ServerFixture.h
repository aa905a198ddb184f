#pragma once
// A scene shown through one layer stack and its scene server, without a
// canvas: the server's layer images, the dirty rectangle it announces, and
// a second view of the same scene. Host thread; the loop runs by settle().

#include <HostRuntime>
#include <LayerStack>
#include <Scene>

#include "GLServices/HostRunLoop.h"
#include "support/PixelCompare.h"
#include "widget/LayerPainter.h"
#include "widget/SceneServer.h"

#include <QPainter>
#include <gtest/gtest.h>

namespace VOR2::test {

class ServerFixture : public ::testing::Test {
protected:
    void SetUp() override
    {
        scene = Scene::createScene();
        stack.insertLayer(0, GLOX::Holder<Layer>(new Layer(scene.get(), LayerStack::baseLayerId())));
        server.setLayerStack(&stack);
    }
    void TearDown() override { server.setLayerStack(nullptr); }

    void show(double scale, double x, double y, double w = 100, double h = 100)
    {
        server.setPendingViewRequest({scale, x, y, w, h});
        server.processPendingViewRequest();
    }
    // The host loop runs until idle: the scene's queued update reaches the
    // server.
    void settle() { HostRuntime::loop().runUntilIdle(); }
    QImage &layerImage(int i = 0) { return server.rendering().layers[size_t(i)]->image; }
    QRectF takeDirty()
    {
        Rendering::Locker lock(server.rendering());
        QRectF d = server.rendering().dirty;
        server.rendering().dirty = QRectF();
        return d;
    }

    // What the viewer would show of the whole view.
    QImage composed(int w = 100, int h = 100)
    {
        QImage view = transparentImage(w, h);
        QPainter painter(&view);
        Rendering::Locker lock(server.rendering());
        paintLayers(&painter, server.rendering(), QRect(0, 0, w, h));
        return view;
    }

    // A second canvas's stack and server, showing the same scene.
    struct OtherView {
        LayerStack stack;
        SceneServer server;
        OtherView(Scene *scene, ViewRequest const &view)
        {
            stack.insertLayer(0, GLOX::Holder<Layer>(new Layer(scene, LayerStack::baseLayerId())));
            server.setLayerStack(&stack);
            server.setPendingViewRequest(view);
            server.processPendingViewRequest();
        }
        ~OtherView() { server.setLayerStack(nullptr); }
    };

    GLOX::Holder<Scene> scene;
    LayerStack stack;
    SceneServer server;
};

} // namespace VOR2::test
