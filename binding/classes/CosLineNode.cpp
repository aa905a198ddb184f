// VOR2.LineNode: a straight line with optional end decorations.
#include "LineNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

ClassInfo cosLineNode()
{
    ClassBuilder c("VOR2.LineNode", ClassKind::CopiedHandle, "VOR2.Node",
                   "A straight line, stroked by the node's draw style, with an optional decoration node (an "
                   "arrow head, say) at either end. VOR2.LineNode() or VOR2.LineNode([x1 y1], [x2 y2]).");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(LineNode()); });
    c.constructor("start, end", 2, [](Self &, Args const &a) {
        auto start = toPoint(a[0]), end = toPoint(a[1]);
        return fromNode(LineNode(start, end));
    });
    c.property(
        "Start", "double vector", "The start point [x y] in the node's coordinates.",
        [](Self &s) { return fromPoint(s.node<LineNode>().getStart()); },
        [](Self &s, Value const &v) {
            auto p = toPoint(v);
            s.node<LineNode>().setStart(p);
        });
    c.property(
        "End", "double vector", "The end point [x y] in the node's coordinates.",
        [](Self &s) { return fromPoint(s.node<LineNode>().getEnd()); },
        [](Self &s, Value const &v) {
            auto p = toPoint(v);
            s.node<LineNode>().setEnd(p);
        });
    c.property(
        "StartDecoration", "VOR2.LineEndDecoration", "The decoration at the start, a VOR2.LineEndDecoration value.",
        [](Self &s) { return fromValueOf(s.node<LineNode>().getStartDecoration(), "VOR2.LineEndDecoration"); },
        [](Self &s, Value const &v) {
            auto d = toValueOf<LineEndDecoration>(v, "VOR2.LineEndDecoration");
            s.node<LineNode>().setStartDecoration(d);
        });
    c.property(
        "EndDecoration", "VOR2.LineEndDecoration", "The decoration at the end, a VOR2.LineEndDecoration value.",
        [](Self &s) { return fromValueOf(s.node<LineNode>().getEndDecoration(), "VOR2.LineEndDecoration"); },
        [](Self &s, Value const &v) {
            auto d = toValueOf<LineEndDecoration>(v, "VOR2.LineEndDecoration");
            s.node<LineNode>().setEndDecoration(d);
        });
    return c.build();
}

ClassRegistration registration("VOR2.LineNode", &cosLineNode);

} // namespace

} // namespace VOR2::script
