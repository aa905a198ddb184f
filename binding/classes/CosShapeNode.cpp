// VOR2.ShapeNode: a node drawn from a VOR2.Shape.
#include "ShapeNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosShapeNode()
{
    ClassBuilder c("VOR2.ShapeNode", ClassKind::CopiedHandle, "VOR2.Node",
                   "A node drawn from a shape, filled and stroked by its draw style. VOR2.ShapeNode() or "
                   "VOR2.ShapeNode(shape) with a VOR2.Shape.");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(ShapeNode()); });
    c.constructor("shape", 1, [](Self &, Args const &a) {
        auto shape = toCopied<GLOX::Shape>(a[0], "VOR2.Shape");
        return fromNode(ShapeNode(shape));
    });
    c.property(
        "Shape", "VOR2.Shape",
        "A copy of the node's shape, a new VOR2.Shape: change it and assign it back to change the node.",
        [](Self &s) {
            return BindingRegistry::instance().announceCopied(s.node<ShapeNode>().getShape(), "VOR2.Shape");
        },
        [](Self &s, Value const &v) {
            auto shape = toCopied<GLOX::Shape>(v, "VOR2.Shape");
            s.node<ShapeNode>().setShape(shape);
        });
    return c.build();
}

ClassRegistration registration("VOR2.ShapeNode", &cosShapeNode);

} // namespace

} // namespace VOR2::script
