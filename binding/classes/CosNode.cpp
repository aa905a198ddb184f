// VOR2.Node: the copied handle at the root of the node family.
#include "Scene"
#include "binding/ClassBuilder.h"
#include "binding/EffectConvert.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

Value none() { return Value(); }

// A script's remove ends the node for the script: the registry lets go of
// the node and of every descendant, so that they die unless the library
// still holds them, and the script's variables on them fail from then on.
void retractSubtree(Node const &node)
{
    for (Node const &child : node.getChildren()) retractSubtree(child);
    BindingRegistry::instance().retract(node.getImpl());
}

ClassInfo cosNode()
{
    ClassBuilder c("VOR2.Node", ClassKind::CopiedHandle, "",
                   "A node of a scene: the common handle of every node kind. Two variables on one node see one "
                   "node; a node in a scene lives on when its variables are cleared, and a removed node's "
                   "variables fail with VOR2:InvalidNode.");
    c.property(
        "Scene", "VOR2.Scene", "The scene that holds the node, or empty.",
        [](Self &s) {
            Scene *scene = s.node().getScene();
            return BindingRegistry::instance().announceReferenced(scene, "VOR2.Scene");
        });
    c.property("Children", "VOR2.Node vector", "The node's children, a cell of nodes.",
               [](Self &s) { return fromNodes(s.node().getChildren()); });
    c.property("Effects", "VOR2.NodeEffects",
               "The effects the node paints on top of itself; the same object however often it is fetched.",
               [](Self &s) { return fromNodeEffects(s.node()); });
    c.property(
        "Parent", "VOR2.Node", "The parent node, or empty.", [](Self &s) { return fromNode(s.node().getParent()); },
        [](Self &s, Value const &v) {
            Node parent = toNode(v);
            s.node().setParent(parent);
        });
    c.property(
        "Position", "double vector", "The position [x y] in the parent's coordinates.",
        [](Self &s) { return fromPoint(s.node().getPosition()); },
        [](Self &s, Value const &v) {
            auto p = toPoint(v);
            s.node().setPosition(p);
        });
    c.property(
        "Selectable", "logical scalar", "Whether the node can be selected; false at first.",
        [](Self &s) { return Value::logical(s.node().isSelectable()); },
        [](Self &s, Value const &v) {
            bool b = toBool(v);
            s.node().setSelectable(b);
        });
    c.property(
        "Selected", "logical scalar", "Whether the node is selected.",
        [](Self &s) { return Value::logical(s.node().isSelected()); },
        [](Self &s, Value const &v) {
            bool b = toBool(v);
            s.node().setSelected(b);
        });
    c.method("addTag", "Adds the tag (a char row) to the node.").overload("tag", 1, [](Self &s, Args const &a) {
        auto tag = toStringID(a[0]);
        s.node().addTag(tag);
        return none();
    });
    c.method("hasTag", "True when the node has the tag.").overload("tag", 1, [](Self &s, Args const &a) {
        auto tag = toStringID(a[0]);
        return Value::logical(s.node().hasTag(tag));
    });
    c.method("tags", "The node's tags, a cell of char rows.", "getTags").overload("", 0, [](Self &s, Args const &) {
        return fromStrings(s.node().getTags());
    });
    c.method("remove", "Takes the node out of its scene or parent and destroys it, with its children; every "
                       "variable on them then fails with VOR2:InvalidNode. (Scene.removeNode detaches a node "
                       "and keeps it usable instead.)")
        .overload("", 0, [](Self &s, Args const &) {
            Node node = s.node();
            node.remove();
            retractSubtree(node);
            return none();
        });
    c.method("translate", "Moves the node by [dx dy], or by dx and dy.")
        .overload("delta", 1,
                  [](Self &s, Args const &a) {
                      auto d = toPoint(a[0]);
                      s.node().translate(d);
                      return none();
                  })
        .overload("dx, dy", 2, [](Self &s, Args const &a) {
            double dx = toDouble(a[0]), dy = toDouble(a[1]);
            s.node().translate(dx, dy);
            return none();
        });
    return c.build();
}

ClassRegistration registration("VOR2.Node", &cosNode);

} // namespace

} // namespace VOR2::script
