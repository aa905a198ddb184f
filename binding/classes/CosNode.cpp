// VOR2.Node: the copied handle at the root of the node family.
#include "Behavior"
#include "ClosedLinearPathNode"
#include "Scene"
#include "binding/BehaviorConvert.h"
#include "binding/ClassBuilder.h"
#include "binding/CursorConvert.h"
#include "binding/EffectConvert.h"
#include "binding/EnumTables.h"
#include "binding/ImageConvert.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

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

// The library's type name for a script class name, with or without the
// package prefix.
std::string libraryTypeName(std::string name)
{
    if (name.rfind("VOR2.", 0) != 0) name = "VOR2." + name;
    if (name == "VOR2.ClosedLinearPathNodes") return ClosedLinearPathNode::staticGetFullyQualifiedTcosTypeName();
    return name;
}

using BoolGetter = bool (Node::*)() const;
using BoolSetter = void (Node::*)(bool) const;

void flag(ClassBuilder &c, char const *name, char const *help, BoolGetter get, BoolSetter set)
{
    c.property(
        name, "logical scalar", help, [get](Self &s) { return Value::logical((s.node().*get)()); },
        [set](Self &s, Value const &v) {
            bool b = toBool(v);
            (s.node().*set)(b);
        });
}

using DoubleGetter = double (Node::*)() const;
using DoubleSetter = void (Node::*)(double) const;

void number(ClassBuilder &c, char const *name, char const *help, DoubleGetter get, DoubleSetter set)
{
    c.property(
        name, "double scalar", help, [get](Self &s) { return Value::scalar((s.node().*get)()); },
        [set](Self &s, Value const &v) {
            double d = toDouble(v);
            (s.node().*set)(d);
        });
}

// A method of one tag argument that returns nothing, or the nodes found.
using TagAction = void (Node::*)(GLOX::StringID const &) const;
using TagQuery = GLOX::GList<Node> (Node::*)(GLOX::StringID const &) const;

void tagAction(ClassBuilder &c, char const *name, char const *help, TagAction action)
{
    c.method(name, help).overload("tag", 1, [action](Self &s, Args const &a) {
        auto tag = toStringID(a[0]);
        (s.node().*action)(tag);
        return none();
    });
}

void tagQuery(ClassBuilder &c, char const *name, char const *help, char const *library, TagQuery query)
{
    c.method(name, help, library).overload("tag", 1, [query](Self &s, Args const &a) {
        auto tag = toStringID(a[0]);
        return fromNodes((s.node().*query)(tag));
    });
}

// z-order: the node itself, or the static form over a list of nodes.
using ZSelf = void (Node::*)() const;
using ZList = void (*)(GLOX::GList<Node> const &);
using ZSelfRef = void (Node::*)(Node const &) const;
using ZListRef = void (*)(GLOX::GList<Node> const &, Node const &);

void zOrder(ClassBuilder &c, char const *name, char const *help, ZSelf self, ZList list)
{
    c.method(name, help)
        .overload("", 0,
                  [self](Self &s, Args const &) {
                      (s.node().*self)();
                      return none();
                  })
        .overload("nodes", 1, [list](Self &, Args const &a) {
            auto nodes = toNodes(a[0]);
            list(nodes);
            return none();
        });
}

void zOrderRef(ClassBuilder &c, char const *name, char const *help, ZSelfRef self, ZListRef list)
{
    c.method(name, help)
        .overload("ref", 1,
                  [self](Self &s, Args const &a) {
                      Node ref = toNode(a[0]);
                      (s.node().*self)(ref);
                      return none();
                  })
        .overload("nodes, ref", 2, [list](Self &, Args const &a) {
            auto nodes = toNodes(a[0]);
            Node ref = toNode(a[1]);
            list(nodes, ref);
            return none();
        });
}

void addProperties(ClassBuilder &c)
{
    c.property("Scene", "VOR2.Scene", "The scene that holds the node, or empty.", [](Self &s) {
        Scene *scene = s.node().getScene();
        return BindingRegistry::instance().announceReferenced(scene, "VOR2.Scene");
    });
    c.property("Children", "VOR2.Node vector", "The node's children, a cell of nodes, bottom first.",
               [](Self &s) { return fromNodes(s.node().getChildren()); });
    c.property("Effects", "VOR2.NodeEffects",
               "The effects the node paints on top of itself; the same object however often it is fetched.",
               [](Self &s) { return fromNodeEffects(s.node()); });
    c.property(
        "Behavior", "VOR2.Behavior", "The node's behaviour (such as a VOR2.ResizeBehavior), or empty.",
        [](Self &s) { return fromBehavior(s.node().getBehavior()); },
        [](Self &s, Value const &v) {
            Behavior *b = toObject<Behavior>(v, "VOR2.Behavior");
            b ? s.node().setBehavior(b) : s.node().clearBehavior();
        });
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
        "ScenePosition", "double vector", "The position [x y] in scene coordinates.",
        [](Self &s) { return fromPoint(s.node().getScenePosition()); },
        [](Self &s, Value const &v) {
            auto p = toPoint(v);
            s.node().setScenePosition(p);
        });
    c.property(
        "DrawStyle", "VOR2.DrawStyle",
        "The node's stroke, fill and anti-aliasing, a VOR2.DrawStyle value: change a copy and assign it back.",
        [](Self &s) { return fromValueOf(s.node().getDrawStyle(), "VOR2.DrawStyle"); },
        [](Self &s, Value const &v) {
            auto style = toValueOf<DrawStyle>(v, "VOR2.DrawStyle");
            s.node().setDrawStyle(style);
        });
    c.property(
        "Transform", "double matrix",
        "The node's transform, a 3x3 matrix T with T * [x; y; 1] the point in the parent's coordinates.",
        [](Self &s) { return fromTransform(s.node().getTransform()); },
        [](Self &s, Value const &v) {
            auto t = toTransform(v);
            s.node().setTransform(t);
        });
    flag(c, "Movable", "Whether the user may drag the node.", &Node::isMovable, &Node::setMovable);
    flag(c, "Selectable", "Whether the node can be selected.", &Node::isSelectable, &Node::setSelectable);
    flag(c, "Selected", "Whether the node is selected (only a selectable node takes it).", &Node::isSelected,
         &Node::setSelected);
    flag(c, "Visible", "Whether the node and its children are drawn.", &Node::isVisible, &Node::setVisible);
    flag(c, "ClipsChildren", "Whether the children are clipped to the node's shape.", &Node::isClipsChildren,
         &Node::setClipsChildren);
    number(c, "Opacity", "The opacity from 0 (transparent) to 1 (opaque).", &Node::getOpacity, &Node::setOpacity);
    number(c, "ZValue", "The stacking value among siblings; higher is drawn on top.", &Node::getZValue,
           &Node::setZValue);
    c.property("BoundingRect", "double vector", "The bounding rectangle [x y width height] in the node's coordinates.",
               [](Self &s) { return fromRect(s.node().getBoundingRect()); });
    c.property("Width", "double scalar", "The width of the bounding rectangle.",
               [](Self &s) { return Value::scalar(s.node().getWidth()); });
    c.property("Height", "double scalar", "The height of the bounding rectangle.",
               [](Self &s) { return Value::scalar(s.node().getHeight()); });
    c.property(
        "CacheType", "char vector", "How the node caches its painting: 'None', 'Self' or 'ChildrenTree'.",
        [](Self &s) { return fromEnum(s.node().getCacheType()); },
        [](Self &s, Value const &v) {
            auto type = toEnum<CacheType>(v);
            s.node().setCacheType(type);
        });
    c.property(
        "Cursor", "VOR2.Cursor",
        "The cursor shown over the node, or empty; set a VOR2.Cursor or a cursor name, or [] to remove it.",
        [](Self &s) {
            Node n = s.node();
            return n.hasCursor() ? fromCursor(n.getCursor()) : Value::handle("VOR2.Cursor", 0);
        },
        [](Self &s, Value const &v) {
            GLOX::Cursor cursor = toCursor(v);
            s.node().setCursor(cursor);
        });
}

void addTransformMethods(ClassBuilder &c)
{
    c.method("rotateDegrees", "Turns the node by the angle in degrees about its origin.")
        .overload("degrees", 1, [](Self &s, Args const &a) {
            double d = toDouble(a[0]);
            s.node().rotateDegrees(d);
            return none();
        });
    c.method("rotateRadians", "Turns the node by the angle in radians about its origin.")
        .overload("radians", 1, [](Self &s, Args const &a) {
            double r = toDouble(a[0]);
            s.node().rotateRadians(r);
            return none();
        });
    c.method("rotateDegreesAroundPoint", "Turns the node by the angle in degrees about the point [x y].")
        .overload("degrees, point", 2, [](Self &s, Args const &a) {
            double d = toDouble(a[0]);
            auto p = toPoint(a[1]);
            s.node().rotateDegreesAroundPoint(d, p);
            return none();
        });
    c.method("rotateRadiansAroundPoint", "Turns the node by the angle in radians about the point [x y].")
        .overload("radians, point", 2, [](Self &s, Args const &a) {
            double r = toDouble(a[0]);
            auto p = toPoint(a[1]);
            s.node().rotateRadiansAroundPoint(r, p);
            return none();
        });
    c.method("scale", "Scales the node's transform by s, or by sx and sy.")
        .overload("s", 1,
                  [](Self &s, Args const &a) {
                      double f = toDouble(a[0]);
                      s.node().scale(f);
                      return none();
                  })
        .overload("sx, sy", 2, [](Self &s, Args const &a) {
            double sx = toDouble(a[0]), sy = toDouble(a[1]);
            s.node().scale(sx, sy);
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
}

void addTreeMethods(ClassBuilder &c)
{
    c.method("unparent", "Takes the node from its parent to the top level of its scene.")
        .overload("", 0, [](Self &s, Args const &) {
            s.node().unparent();
            return none();
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
    tagAction(c, "addTag", "Adds the tag (a char row) to the node.", &Node::addTag);
    tagAction(c, "removeTag", "Removes the tag from the node.", &Node::removeTag);
    c.method("removeAllTags", "Removes every tag of the node.").overload("", 0, [](Self &s, Args const &) {
        s.node().removeAllTags();
        return none();
    });
    c.method("hasTag", "True when the node has the tag.").overload("tag", 1, [](Self &s, Args const &a) {
        auto tag = toStringID(a[0]);
        return Value::logical(s.node().hasTag(tag));
    });
    c.method("tags", "The node's tags, a cell of char rows.", "getTags").overload("", 0, [](Self &s, Args const &) {
        return fromStrings(s.node().getTags());
    });
    tagQuery(c, "childrenWithTag", "The children that have the tag, a cell of nodes.", "getChildrenWithTag",
             &Node::getChildrenWithTag);
    tagQuery(c, "descendantsWithTag", "The descendants that have the tag, a cell of nodes.",
             "getDescendantsWithTag", &Node::getDescendantsWithTag);
    zOrder(c, "toTop",
           "Puts the node above its siblings; toTop(nodes) does so for a cell of siblings, which keep their "
           "stacking order among themselves (the node called on moves only if it is among them).",
           &Node::toTop, &Node::toTop);
    zOrder(c, "toBottom",
           "Puts the node below its siblings; toBottom(nodes) does so for a cell of siblings, which keep their "
           "stacking order among themselves.",
           &Node::toBottom, &Node::toBottom);
    zOrderRef(c, "ensureAbove",
              "Moves the node above the sibling ref unless it is already; ensureAbove(nodes, ref) does so for a "
              "cell of siblings.",
              &Node::ensureAbove, &Node::ensureAbove);
    zOrderRef(c, "ensureBelow",
              "Moves the node below the sibling ref unless it is already; ensureBelow(nodes, ref) does so for a "
              "cell of siblings.",
              &Node::ensureBelow, &Node::ensureBelow);
    zOrderRef(c, "placeAbove",
              "Puts the node just above the sibling ref; placeAbove(nodes, ref) puts a cell of siblings there, "
              "keeping their stacking order among themselves.",
              &Node::placeAbove, &Node::placeAbove);
    zOrderRef(c, "placeBelow",
              "Puts the node just below the sibling ref; placeBelow(nodes, ref) puts a cell of siblings there, "
              "keeping their stacking order among themselves.",
              &Node::placeBelow, &Node::placeBelow);
}

void addOtherMethods(ClassBuilder &c)
{
    c.staticMethod("getDefaultObject",
                   "The default VOR2.Node: an object on no node, whose every call fails as on an empty value.")
        .overload("", 0, [](Self &, Args const &) { return Value::nullObject("VOR2.Node"); });
    c.method("clearBehavior", "Takes the behaviour from the node.").overload("", 0, [](Self &s, Args const &) {
        s.node().clearBehavior();
        return none();
    });
    c.method("hasCursor", "True when the node has a cursor of its own.").overload("", 0, [](Self &s, Args const &) {
        return Value::logical(s.node().hasCursor());
    });
    c.method("unsetCursor", "Removes the node's cursor.").overload("", 0, [](Self &s, Args const &) {
        s.node().unsetCursor();
        return none();
    });
    c.method("isOfType",
             "True when the node is of the class named (such as 'VOR2.TextNode' or 'TextNode') or derives from it.")
        .overload("className", 1, [](Self &s, Args const &a) {
            std::string type = libraryTypeName(toString(a[0]));
            return Value::logical(s.node().isa(type.c_str()));
        });
    c.method("setLayoutConstraintFlag",
             "Sets or clears one anchor of the node in its parent's layout: 'None', 'Left', 'Top', 'Right', "
             "'Bottom', 'FlexibleWidth' or 'FlexibleHeight'.")
        .overload("constraint, on", 2, [](Self &s, Args const &a) {
            auto constraint = toEnum<LayoutConstraints>(a[0]);
            bool on = toBool(a[1]);
            s.node().setLayoutConstraintFlag(constraint, on);
            return none();
        });
    c.method("getLayoutConstraintFlag", "True when the anchor (a name as for setLayoutConstraintFlag) is set.")
        .overload("constraint", 1, [](Self &s, Args const &a) {
            auto constraint = toEnum<LayoutConstraints>(a[0]);
            return Value::logical(s.node().getLayoutConstraintFlag(constraint));
        });
    c.method("hasFocus", "True when the node has the keyboard focus.").overload("", 0, [](Self &s, Args const &) {
        return Value::logical(s.node().hasFocus());
    });
    c.method("setFocus", "Gives the node the keyboard focus (editable text takes it).")
        .overload("", 0, [](Self &s, Args const &) {
            s.node().setFocus();
            return none();
        });
    c.method("clearFocus", "Takes the keyboard focus from the node.").overload("", 0, [](Self &s, Args const &) {
        s.node().clearFocus();
        return none();
    });
    c.method("render",
             "An image of the node at scale pixels per unit, with one transparent pixel of border: a height x "
             "width x 4 uint8 array of red, green, blue and alpha (imshow(img(:,:,1:3)) shows it). cacheType "
             "'None' or 'Self' draws the node alone, 'ChildrenTree' with its children. Empty for a scale that "
             "is not positive or an image too large to make.")
        .overload("cacheType, scale", 2, [](Self &s, Args const &a) {
            auto type = toEnum<CacheType>(a[0]);
            double scale = toDouble(a[1]);
            return fromImage(s.node().render(type, scale));
        });
}

ClassInfo cosNode()
{
    ClassBuilder c("VOR2.Node", ClassKind::CopiedHandle, "",
                   "A node of a scene: the common handle of every node kind. Two variables on one node see one "
                   "node; a node in a scene lives on when its variables are cleared, and a removed node's "
                   "variables fail with VOR2:InvalidNode.");
    addProperties(c);
    addTransformMethods(c);
    addTreeMethods(c);
    addOtherMethods(c);
    return c.build();
}

ClassRegistration registration("VOR2.Node", &cosNode);

} // namespace

} // namespace VOR2::script
