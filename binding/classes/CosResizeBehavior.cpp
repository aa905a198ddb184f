// VOR2.ResizeBehavior: the behaviour of a resize handle. The handles
// themselves are installed on a node by the static installControls, which
// calls the library's installResizeControls.
#include "ResizeBehavior"
#include "ResizeControls"
#include "binding/BehaviorConvert.h"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EnumTables.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

Value none() { return Value(); }

ClassInfo cosResizeBehavior()
{
    ClassBuilder c("VOR2.ResizeBehavior", ClassKind::ReferencedHandle, "VOR2.Behavior",
                   "Turns a left drag on its node into a new rectangle for the target node (only a RectNode "
                   "changes). VOR2.ResizeBehavior(target, horizontal, vertical) makes one from the target's "
                   "scene for the edges 'Left', 'Center' or 'Right' and 'Top', 'Center' or 'Bottom'; the target "
                   "must be in a scene (VOR2:InvalidScene otherwise). Give it to a node with node.Behavior.");
    c.constructor("target, horizontal, vertical", 3, [](Self &, Args const &a) {
        Node target = toNode(a[0]);
        auto h = toEnum<HorizontalAlignment>(a[1]);
        auto v = toEnum<VerticalAlignment>(a[2]);
        if (!target.isValid()) throwError(VOR2_InvalidNode);
        GLOX::Holder<ResizeBehavior> behavior = ResizeBehavior::create(target, h, v);
        if (!behavior) throwError(VOR2_InvalidScene);
        return fromBehavior(behavior.get());
    });
    c.property(
        "TargetNode", "VOR2.Node", "The node that a drag resizes, held weakly: empty once it is gone.",
        [](Self &s) { return fromNode(s.object<ResizeBehavior>()->getTargetNode()); },
        [](Self &s, Value const &v) {
            Node target = toNode(v);
            s.object<ResizeBehavior>()->setTargetNode(target);
        });
    c.property(
        "MinimumSize", "double vector", "The least [width height] a drag leaves; [20 20] at first.",
        [](Self &s) { return fromPoint(s.object<ResizeBehavior>()->getMinimumSize()); },
        [](Self &s, Value const &v) {
            auto size = toPoint(v);
            s.object<ResizeBehavior>()->setMinimumSize(size);
        });
    c.method("setCorner", "Sets the edges a drag moves: 'Left', 'Center' or 'Right', and 'Top', 'Center' or "
                          "'Bottom' ('Center' moves neither edge on that axis).")
        .overload("horizontal, vertical", 2, [](Self &s, Args const &a) {
            auto h = toEnum<HorizontalAlignment>(a[0]);
            auto v = toEnum<VerticalAlignment>(a[1]);
            s.object<ResizeBehavior>()->setCorner(h, v);
            return none();
        });
    c.staticMethod("installControls",
                   "Puts eight resize handles on a node of a scene, at its corners and the middles of its sides; "
                   "visible false makes handles that draw nothing but still resize. True when they are in place, "
                   "false (and no handles) for a node outside a scene.",
                   "installResizeControls")
        .overload("node", 1,
                  [](Self &, Args const &a) {
                      Node node = toNode(a[0]);
                      if (!node.isValid()) throwError(VOR2_InvalidNode);
                      return Value::logical(installResizeControls(node, true));
                  })
        .overload("node, visible", 2, [](Self &, Args const &a) {
            Node node = toNode(a[0]);
            bool visible = toBool(a[1]);
            if (!node.isValid()) throwError(VOR2_InvalidNode);
            return Value::logical(installResizeControls(node, visible));
        });
    c.staticMethod("removeControls", "Takes a node's resize handles away, with their behaviours.",
                   "removeResizeControls")
        .overload("node", 1, [](Self &, Args const &a) {
            Node node = toNode(a[0]);
            if (!node.isValid()) throwError(VOR2_InvalidNode);
            removeResizeControls(node);
            return none();
        });
    return c.build();
}

ClassRegistration registration("VOR2.ResizeBehavior", &cosResizeBehavior);

} // namespace

} // namespace VOR2::script
