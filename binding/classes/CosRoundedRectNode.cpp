// VOR2.RoundedRectNode: a rectangle with rounded corners.
#include "RoundedRectNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosRoundedRectNode()
{
    ClassBuilder c("VOR2.RoundedRectNode", ClassKind::CopiedHandle, "VOR2.Node",
                   "A rectangle with rounded corners, filled and stroked by the node's draw style. "
                   "VOR2.RoundedRectNode() or VOR2.RoundedRectNode([x y width height], radius).");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(RoundedRectNode()); });
    c.constructor("rect, radius", 2, [](Self &, Args const &a) {
        auto r = toRect(a[0]);
        double radius = toDouble(a[1]);
        return fromNode(RoundedRectNode(r, radius));
    });
    c.property(
        "Rect", "double vector", "The rectangle [x y width height] in the node's coordinates.",
        [](Self &s) { return fromRect(s.node<RoundedRectNode>().getRect()); },
        [](Self &s, Value const &v) {
            auto r = toRect(v);
            s.node<RoundedRectNode>().setRect(r);
        });
    c.property(
        "Radius", "double scalar", "The radius of the corners.",
        [](Self &s) { return Value::scalar(s.node<RoundedRectNode>().getRadius()); },
        [](Self &s, Value const &v) {
            double r = toDouble(v);
            s.node<RoundedRectNode>().setRadius(r);
        });
    return c.build();
}

ClassRegistration registration("VOR2.RoundedRectNode", &cosRoundedRectNode);

} // namespace

} // namespace VOR2::script
