// VOR2.EllipseNode: an ellipse.
#include "EllipseNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

ClassInfo cosEllipseNode()
{
    ClassBuilder c("VOR2.EllipseNode", ClassKind::CopiedHandle, "VOR2.Node",
                   "An ellipse, filled and stroked by the node's draw style. VOR2.EllipseNode(), "
                   "VOR2.EllipseNode(ellipse) with a VOR2.Ellipse, or VOR2.EllipseNode([x y width height]) for "
                   "the ellipse inside that rectangle.");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(EllipseNode()); });
    c.constructor("ellipse", 1, [](Self &, Args const &a) {
        auto e = toValueOf<Ellipse>(a[0], "VOR2.Ellipse");
        return fromNode(EllipseNode(e));
    });
    c.constructor("rect", 1, [](Self &, Args const &a) {
        auto r = toRect(a[0]);
        return fromNode(EllipseNode(Ellipse(r)));
    });
    c.property(
        "Center", "double vector", "The centre [x y] in the node's coordinates; the size stays.",
        [](Self &s) { return fromPoint(s.node<EllipseNode>().getCenter()); },
        [](Self &s, Value const &v) {
            auto p = toPoint(v);
            s.node<EllipseNode>().setCenter(p);
        });
    c.property(
        "Size", "double vector", "The size [width height]; the top-left corner of its rectangle stays.",
        [](Self &s) { return fromSize(s.node<EllipseNode>().getSize()); },
        [](Self &s, Value const &v) {
            auto size = toSize(v);
            s.node<EllipseNode>().setSize(size);
        });
    c.property(
        "Ellipse", "VOR2.Ellipse", "The ellipse, a VOR2.Ellipse value.",
        [](Self &s) { return fromValueOf(s.node<EllipseNode>().getEllipse(), "VOR2.Ellipse"); },
        [](Self &s, Value const &v) {
            auto e = toValueOf<Ellipse>(v, "VOR2.Ellipse");
            s.node<EllipseNode>().setEllipse(e);
        });
    return c.build();
}

ClassRegistration registration("VOR2.EllipseNode", &cosEllipseNode);

} // namespace

} // namespace VOR2::script
