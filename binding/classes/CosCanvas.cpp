// VOR2.Canvas: the view of a viewer's canvas. The library owns the canvas;
// a script value of it fails cleanly once its viewer has ended.
#include "GLCanvas"
#include "Layer"
#include "Scene"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

#include <string>

namespace VOR2::script {

namespace {

GLCanvas *canvasOf(Self &s) { return s.object<GLCanvas>(); }

// A layer index from a script: a whole number from 0.
int toLayerIndex(Value const &v)
{
    double d = toDouble(v);
    if (!(d >= 0) || d != double(int(d))) raise("VOR2:WrongType", "Expected a layer index: a whole number from 0");
    return int(d);
}

Scene *toScene(Value const &v)
{
    Scene *scene = toObject<Scene>(v, "VOR2.Scene");
    if (!scene) raise("VOR2:WrongType", "Expected a VOR2.Scene, got an empty value");
    return scene;
}

GLOX::Holder<Layer> newLayer(Scene *scene, LayerStack &stack)
{
    return GLOX::Holder<Layer>(new Layer(scene, GLOX::StringID("layer" + std::to_string(stack.getNumLayers()))));
}

void addViewProperties(ClassBuilder &c)
{
    c.property(
        "Scene", "VOR2.Scene", "The scene of the base layer (layer 0), the one that takes input; empty for none.",
        [](Self &s) { return BindingRegistry::instance().announceReferenced(canvasOf(s)->getScene(), "VOR2.Scene"); },
        [](Self &s, Value const &v) {
            Scene *scene = toObject<Scene>(v, "VOR2.Scene");
            canvasOf(s)->setScene(scene);
        });
    c.property(
        "Margins", "double vector", "The margins [left top right bottom] around the scene, in view pixels.",
        [](Self &s) { return fromRect(canvasOf(s)->getMargins()); },
        [](Self &s, Value const &v) {
            auto r = toRect(v);
            canvasOf(s)->setMargins(r);
        });
    c.property("ViewExtents", "double vector", "The size [width height] of the view, in pixels.",
               [](Self &s) { return fromPoint(canvasOf(s)->getViewExtents()); });
    c.property("SceneRectInView", "double vector",
               "The part of the scene the view shows, [x y width height] in scene units.",
               [](Self &s) { return fromRect(canvasOf(s)->getSceneRectInView()); });
    c.property(
        "Scale", "double scalar", "View pixels per scene unit; setting it zooms about the view's centre.",
        [](Self &s) { return Value::scalar(canvasOf(s)->getScale()); },
        [](Self &s, Value const &v) {
            double scale = toDouble(v);
            canvasOf(s)->setScale(scale);
        });
}

void addLayerMethods(ClassBuilder &c)
{
    c.method("appendScene", "Shows the scene in a new layer on top of the others; returns the layer's index (the "
                            "base layer is 0).")
        .overload("scene", 1, [](Self &s, Args const &a) {
            Scene *scene = toScene(a[0]);
            LayerStack &stack = canvasOf(s)->getLayerStack();
            int index = stack.getNumLayers();
            stack.insertLayer(index, newLayer(scene, stack));
            return Value::scalar(index);
        });
    c.method("insertScene", "Shows the scene in a new layer at the index (0 is the base layer, which takes "
                            "input); the layers from there move up.")
        .overload("index, scene", 2, [](Self &s, Args const &a) {
            int index = toLayerIndex(a[0]);
            Scene *scene = toScene(a[1]);
            LayerStack &stack = canvasOf(s)->getLayerStack();
            if (index > stack.getNumLayers()) raise("VOR2:WrongType", "The layer index is beyond the last layer");
            stack.insertLayer(index, newLayer(scene, stack));
            return Value();
        });
    c.method("removeScene", "Removes the lowest layer showing the scene, or the layer at an index; nothing when "
                            "there is none.")
        .overload("scene", 1,
                  [](Self &s, Args const &a) {
                      Scene *scene = toScene(a[0]);
                      LayerStack &stack = canvasOf(s)->getLayerStack();
                      for (int i = 0; i < stack.getNumLayers(); ++i) {
                          if (stack.getLayer(i)->getScene() != scene) continue;
                          stack.removeLayer(i);
                          break;
                      }
                      return Value();
                  })
        .overload("index", 1, [](Self &s, Args const &a) {
            int index = toLayerIndex(a[0]);
            canvasOf(s)->getLayerStack().removeLayer(index);
            return Value();
        });
    c.method("removeAllScenes", "Removes every layer.").overload("", 0, [](Self &s, Args const &) {
        canvasOf(s)->getLayerStack().removeAllLayers();
        return Value();
    });
    c.method("sceneCount", "The number of layers.").overload("", 0, [](Self &s, Args const &) {
        return Value::scalar(canvasOf(s)->getLayerStack().getNumLayers());
    });
}

void addConversions(ClassBuilder &c)
{
    c.method("viewRectToSceneRect", "The scene rectangle [x y width height] under a view rectangle (pixels).")
        .overload("rect", 1, [](Self &s, Args const &a) {
            auto r = toRect(a[0]);
            return fromRect(canvasOf(s)->viewRectToSceneRect(r));
        });
    c.method("sceneRectToViewRect", "The view rectangle [x y width height] (pixels) of a scene rectangle.")
        .overload("rect", 1, [](Self &s, Args const &a) {
            auto r = toRect(a[0]);
            return fromRect(canvasOf(s)->sceneRectToViewRect(r));
        });
    c.method("viewPointToScenePoint", "The scene point [x y] under a view point (pixels from the top left).")
        .overload("point", 1, [](Self &s, Args const &a) {
            auto p = toPoint(a[0]);
            return fromPoint(canvasOf(s)->viewPointToScenePoint(p));
        });
    c.method("scenePointToViewPoint", "The view point [x y] (pixels from the top left) of a scene point.")
        .overload("point", 1, [](Self &s, Args const &a) {
            auto p = toPoint(a[0]);
            return fromPoint(canvasOf(s)->scenePointToViewPoint(p));
        });
}

void addViewChanges(ClassBuilder &c)
{
    c.method("setScaleAroundScenePoint", "Zooms to the scale keeping the scene point [x y] where it is in the "
                                         "view.")
        .overload("scale, point", 2, [](Self &s, Args const &a) {
            double scale = toDouble(a[0]);
            auto p = toPoint(a[1]);
            canvasOf(s)->setScaleAroundScenePoint(scale, p);
            return Value();
        });
    c.method("showSceneRect", "Scrolls and zooms so that the scene rectangle [x y width height] fills the view.")
        .overload("rect", 1, [](Self &s, Args const &a) {
            auto r = toRect(a[0]);
            canvasOf(s)->showSceneRect(r);
            return Value();
        });
    c.method("showScenePointAtViewPointAtScale", "Shows the scene point [x y] at the view point [x y] (pixels) at "
                                                 "the scale.")
        .overload("scenePoint, viewPoint, scale", 3, [](Self &s, Args const &a) {
            auto scenePoint = toPoint(a[0]);
            auto viewPoint = toPoint(a[1]);
            double scale = toDouble(a[2]);
            canvasOf(s)->showScenePointAtViewPointAtScale(scenePoint, viewPoint, scale);
            return Value();
        });
    c.method("translate", "Scrolls the view by dx, dy scene units (the scene moves by -dx, -dy).")
        .overload("dx, dy", 2,
                  [](Self &s, Args const &a) {
                      double dx = toDouble(a[0]);
                      double dy = toDouble(a[1]);
                      canvasOf(s)->translate(dx, dy);
                      return Value();
                  })
        .overload("[dx dy]", 1, [](Self &s, Args const &a) {
            auto d = toPoint(a[0]);
            canvasOf(s)->translate(d);
            return Value();
        });
    c.method("translateScenePointToViewPoint", "Scrolls so that the scene point [x y] is at the view point [x y] "
                                               "(pixels), at the same scale.")
        .overload("scenePoint, viewPoint", 2, [](Self &s, Args const &a) {
            auto scenePoint = toPoint(a[0]);
            auto viewPoint = toPoint(a[1]);
            canvasOf(s)->translateScenePointToViewPoint(scenePoint, viewPoint);
            return Value();
        });
    c.method("zoomToSceneRect", "Zooms and scrolls to show the whole scene, with the margins.")
        .overload("", 0, [](Self &s, Args const &) {
            canvasOf(s)->zoomToSceneRect();
            return Value();
        });
    c.method("zoomToActualSize", "Zooms to scale 1 (one pixel per scene unit).").overload("", 0, [](Self &s, Args const &) {
        canvasOf(s)->zoomToActualSize();
        return Value();
    });
    c.method("setMarquee", "Draws the marquee band on the scene rectangle [x y width height]; [0 0 0 0] ends it.")
        .overload("rect", 1, [](Self &s, Args const &a) {
            auto r = toRect(a[0]);
            canvasOf(s)->setMarquee(r);
            return Value();
        });
}

ClassInfo cosCanvas()
{
    ClassBuilder c("VOR2.Canvas", ClassKind::Custom, "",
                   "A viewer's canvas: the scenes it shows in layers, and the view on them (scale, scrolling, "
                   "margins). Get it from a viewer's Canvas property. View changes are seen at once by the "
                   "properties; the window follows when the host loop runs.");
    addViewProperties(c);
    addLayerMethods(c);
    addConversions(c);
    addViewChanges(c);
    return c.build();
}

ClassRegistration registration("VOR2.Canvas", &cosCanvas);

} // namespace

} // namespace VOR2::script
