// VOR2.OpenCurvedPathNode: a smooth curve with optional end decorations.
#include "OpenCurvedPathNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"
#include "binding/VertexConvert.h"

namespace VOR2::script {

namespace {

ClassInfo cosOpenCurvedPathNode()
{
    ClassBuilder c("VOR2.OpenCurvedPathNode", ClassKind::CopiedHandle, "VOR2.CurvedPathNode",
                   "A smooth curve through its vertices, stroked by the node's draw style, with an optional "
                   "decoration node (an arrow head, say) at either end. VOR2.OpenCurvedPathNode() or "
                   "VOR2.OpenCurvedPathNode(vertices) with a cell of vertices or a 2xn or nx2 array of points.");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(OpenCurvedPathNode()); });
    c.constructor("vertices", 1, [](Self &, Args const &a) {
        auto vertices = toVertices(a[0]);
        return fromNode(OpenCurvedPathNode(vertices));
    });
    c.property(
        "StartDecoration", "VOR2.LineEndDecoration",
        "The decoration at the first vertex, a VOR2.LineEndDecoration value; its node becomes the path's child.",
        [](Self &s) {
            return fromValueOf(s.node<OpenCurvedPathNode>().getStartDecoration(), "VOR2.LineEndDecoration");
        },
        [](Self &s, Value const &v) {
            auto d = toValueOf<LineEndDecoration>(v, "VOR2.LineEndDecoration");
            s.node<OpenCurvedPathNode>().setStartDecoration(d);
        });
    c.property(
        "EndDecoration", "VOR2.LineEndDecoration",
        "The decoration at the last vertex, a VOR2.LineEndDecoration value; its node becomes the path's child.",
        [](Self &s) {
            return fromValueOf(s.node<OpenCurvedPathNode>().getEndDecoration(), "VOR2.LineEndDecoration");
        },
        [](Self &s, Value const &v) {
            auto d = toValueOf<LineEndDecoration>(v, "VOR2.LineEndDecoration");
            s.node<OpenCurvedPathNode>().setEndDecoration(d);
        });
    return c.build();
}

ClassRegistration registration("VOR2.OpenCurvedPathNode", &cosOpenCurvedPathNode);

} // namespace

} // namespace VOR2::script
