// VOR2.Scene: the counted scene. A scene fetched however often is one
// script object on one registry entry, holding one reference.
#include "Background"
#include "DrawStyle"
#include "Scene"
#include "binding/ClassBuilder.h"
#include "binding/CursorConvert.h"
#include "binding/ImageConvert.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

Value none() { return Value(); }

Value announceScene(Scene *scene) { return BindingRegistry::instance().announceReferenced(scene, "VOR2.Scene"); }

// A method that answers a list of nodes for one converted argument.
template <class Arg, class Convert, class Query>
ClassBuilder::Call nodeQuery(Convert convert, Query query)
{
    return [convert, query](Self &s, Args const &a) {
        Arg arg = convert(a[0]);
        return fromNodes((s.object<Scene>()->*query)(arg));
    };
}

ClassInfo cosScene()
{
    ClassBuilder c("VOR2.Scene", ClassKind::ReferencedHandle, "",
                   "A scene of nodes. VOR2.Scene() makes an empty one. Every variable on one scene is the same "
                   "object (==); the scene lives while a variable, a viewer or a canvas holds it.");
    c.constructor("", 0, [](Self &, Args const &) {
        GLOX::Holder<Scene> scene = Scene::createScene();
        return announceScene(scene.get());
    });

    c.property(
        "Background", "VOR2.Background", "The scene's background; renders fill with its colour.",
        [](Self &s) { return fromValueOf(s.object<Scene>()->getBackground(), "VOR2.Background"); },
        [](Self &s, Value const &v) {
            auto background = toValueOf<Background>(v, "VOR2.Background");
            s.object<Scene>()->setBackground(background);
        });
    c.property(
        "PerformanceTracking", "logical scalar", "A flag kept for the client's own measurements.",
        [](Self &s) { return Value::logical(s.object<Scene>()->getTrackingPerformance()); },
        [](Self &s, Value const &v) {
            bool on = toBool(v);
            s.object<Scene>()->setTrackingPerformance(on);
        });
    c.property("CreationDrawStyle", "VOR2.DrawStyle",
               "The draw style that nodes take when first added: the top of the creation style stack.",
               [](Self &s) { return fromValueOf(s.object<Scene>()->getCreationDrawStyle(), "VOR2.DrawStyle"); });
    c.property("ToolOverrideCursor", "VOR2.Cursor",
               "The cursor the tools asked for in the last event; see hasToolOverrideCursor.",
               [](Self &s) { return fromCursor(s.object<Scene>()->getToolOverrideCursor()); });
    c.property(
        "UseNodeSelection", "logical scalar", "Whether a selected node shows the scene's selection outline.",
        [](Self &s) { return Value::logical(s.object<Scene>()->usesNodeSelection()); },
        [](Self &s, Value const &v) {
            bool use = toBool(v);
            s.object<Scene>()->setUseNodeSelection(use);
        });
    c.property(
        "FocusNode", "VOR2.Node",
        "The node with the keyboard focus, or empty. Only a node that takes focus (a text node) gets it; setting [] "
        "clears it.",
        [](Self &s) { return fromNode(s.object<Scene>()->getFocusNode()); },
        [](Self &s, Value const &v) {
            Node node = toNode(v);
            s.object<Scene>()->setFocusNode(node);
        });
    c.property("Bounds", "double vector",
               "The union of the visible nodes' bounds [x y width height] in scene coordinates.",
               [](Self &s) { return fromRect(s.object<Scene>()->getBounds()); });

    c.method("pushCreationDrawStyle", "Puts a draw style on top of the creation style stack.")
        .overload("drawStyle", 1, [](Self &s, Args const &a) {
            auto style = toValueOf<DrawStyle>(a[0], "VOR2.DrawStyle");
            s.object<Scene>()->pushCreationDrawStyle(style);
            return none();
        });
    c.method("popCreationDrawStyle",
             "Takes the top off the creation style stack and returns it; a default style when it is empty.")
        .overload("", 0, [](Self &s, Args const &) {
            return fromValueOf(s.object<Scene>()->popCreationDrawStyle(), "VOR2.DrawStyle");
        });
    c.method("addNode", "Adds a node to the scene at the top level; returns the node.")
        .overload("node", 1, [](Self &s, Args const &a) {
            Node n = toNode(a[0]);
            return fromNode(s.object<Scene>()->addNode(n));
        });
    c.method("removeNode", "Takes a node and its subtree out of the scene and returns it (still usable), or empty "
                           "when it was not in this scene.")
        .overload("node", 1, [](Self &s, Args const &a) {
            Node n = toNode(a[0]);
            return fromNode(s.object<Scene>()->removeNode(n));
        });
    c.method("setSelection", "Selects (on true) or deselects the selectable nodes at the point [x y] or within the "
                             "rectangle [x y width height], in scene coordinates.")
        .overload("point, on", 2,
                  [](Self &s, Args const &a) {
                      auto p = toPoint(a[0]);
                      bool on = toBool(a[1]);
                      s.object<Scene>()->setSelection(p, on);
                      return none();
                  })
        .overload("rect, on", 2, [](Self &s, Args const &a) {
            auto r = toRect(a[0]);
            bool on = toBool(a[1]);
            s.object<Scene>()->setSelection(r, on);
            return none();
        });
    c.method("selection", "The selected nodes, a cell of nodes.", "getAllSelectedNodes")
        .overload("", 0, [](Self &s, Args const &) { return fromNodes(s.object<Scene>()->getAllSelectedNodes()); });
    c.method("nodes", "Every node of the scene, a cell of nodes.", "getAllNodes")
        .overload("", 0, [](Self &s, Args const &) { return fromNodes(s.object<Scene>()->getAllNodes()); });
    c.method("topLevelNodes", "The scene's top-level nodes, a cell of nodes.", "getTopLevelNodes")
        .overload("", 0, [](Self &s, Args const &) { return fromNodes(s.object<Scene>()->getTopLevelNodes()); });
    c.method("nodesWithinRect",
             "The nodes lying wholly inside the rectangle [x y width height] in scene coordinates, a cell.",
             "getNodesWithinRect")
        .overload("rect", 1, nodeQuery<GLOX::GLRect<double>>(&toRect, &Scene::getNodesWithinRect));
    c.method("nodesIntersectingRect",
             "The nodes touching the rectangle [x y width height] in scene coordinates, a cell.",
             "getNodesIntersectingRect")
        .overload("rect", 1, nodeQuery<GLOX::GLRect<double>>(&toRect, &Scene::getNodesIntersectingRect));
    c.method("nodesAtScenePos", "The nodes under the point [x y] in scene coordinates, a cell.",
             "getNodesAtScenePos")
        .overload("point", 1, nodeQuery<GLOX::GLPoint<double>>(&toPoint, &Scene::getNodesAtScenePos));
    c.method("nodesWithTag", "The descendants of the top-level nodes that carry the tag (a char row), a cell.",
             "getNodesWithTag")
        .overload("tag", 1, nodeQuery<GLOX::StringID>(&toStringID, &Scene::getNodesWithTag));
    c.method("clearFocus", "Takes the keyboard focus from its node.").overload("", 0, [](Self &s, Args const &) {
        s.object<Scene>()->clearFocus();
        return none();
    });
    c.method("hasToolOverrideCursor", "True when the tools asked for a cursor of their own in the last event.")
        .overload("", 0, [](Self &s, Args const &) {
            return Value::logical(s.object<Scene>()->hasToolOverrideCursor());
        });
    c.method("render",
             "Renders the scene to an image: an H x W x 4 uint8 array of red, green, blue and alpha (show it with "
             "imshow(img(:, :, 1:3))). One scene unit is one pixel. render() renders the whole scene with a margin of 20 pixels; "
             "render(margin) with that margin; render(margin, source) the rectangle [x y width height] of the "
             "scene. The image is filled with white, then the background colour, before the nodes are drawn.")
        .overload("", 0, [](Self &s, Args const &) { return fromImage(s.object<Scene>()->render()); })
        .overload("margin", 1,
                  [](Self &s, Args const &a) {
                      int margin = toInt32(a[0]);
                      return fromImage(s.object<Scene>()->render(margin));
                  })
        .overload("margin, source", 2, [](Self &s, Args const &a) {
            int margin = toInt32(a[0]);
            auto source = toRect(a[1]);
            return fromImage(s.object<Scene>()->render(margin, source));
        });
    return c.build();
}

ClassRegistration registration("VOR2.Scene", &cosScene);

} // namespace

} // namespace VOR2::script
