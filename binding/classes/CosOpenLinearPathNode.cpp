// VOR2.OpenLinearPathNode: a polyline with optional end decorations.
#include "OpenLinearPathNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

ClassInfo cosOpenLinearPathNode()
{
    ClassBuilder c("VOR2.OpenLinearPathNode", ClassKind::CopiedHandle, "VOR2.LinearPathNode",
                   "A polyline through its points, stroked by the node's draw style, with an optional decoration "
                   "node (an arrow head, say) at either end. VOR2.OpenLinearPathNode() or "
                   "VOR2.OpenLinearPathNode(points) with a 2xn or nx2 array.");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(OpenLinearPathNode()); });
    c.constructor("points", 1, [](Self &, Args const &a) {
        auto points = GLOX::GVector<GLOX::GLPoint<double>>::fromList(toPoints(a[0]));
        return fromNode(OpenLinearPathNode(points));
    });
    c.property(
        "StartDecoration", "VOR2.LineEndDecoration",
        "The decoration at the first point, a VOR2.LineEndDecoration value; its node becomes the path's child.",
        [](Self &s) {
            return fromValueOf(s.node<OpenLinearPathNode>().getStartDecoration(), "VOR2.LineEndDecoration");
        },
        [](Self &s, Value const &v) {
            auto d = toValueOf<LineEndDecoration>(v, "VOR2.LineEndDecoration");
            s.node<OpenLinearPathNode>().setStartDecoration(d);
        });
    c.property(
        "EndDecoration", "VOR2.LineEndDecoration",
        "The decoration at the last point, a VOR2.LineEndDecoration value; its node becomes the path's child.",
        [](Self &s) {
            return fromValueOf(s.node<OpenLinearPathNode>().getEndDecoration(), "VOR2.LineEndDecoration");
        },
        [](Self &s, Value const &v) {
            auto d = toValueOf<LineEndDecoration>(v, "VOR2.LineEndDecoration");
            s.node<OpenLinearPathNode>().setEndDecoration(d);
        });
    return c.build();
}

ClassRegistration registration("VOR2.OpenLinearPathNode", &cosOpenLinearPathNode);

} // namespace

} // namespace VOR2::script
