// VOR2.RectNode: a rectangle node.
#include "RectNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosRectNode()
{
    ClassBuilder c("VOR2.RectNode", ClassKind::CopiedHandle, "VOR2.Node",
                   "A rectangle, filled and stroked by the node's draw style. VOR2.RectNode() or "
                   "VOR2.RectNode([x y width height]).");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(RectNode()); });
    c.constructor("rect", 1, [](Self &, Args const &a) {
        auto r = toRect(a[0]);
        return fromNode(RectNode(r));
    });
    c.property(
        "Rect", "double vector", "The rectangle [x y width height] in the node's coordinates.",
        [](Self &s) { return fromRect(s.node<RectNode>().getRect()); },
        [](Self &s, Value const &v) {
            auto r = toRect(v);
            s.node<RectNode>().setRect(r);
        });
    return c.build();
}

ClassRegistration registration("VOR2.RectNode", &cosRectNode);

} // namespace

} // namespace VOR2::script
