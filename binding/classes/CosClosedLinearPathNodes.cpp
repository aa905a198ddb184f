// VOR2.ClosedLinearPathNodes: a polygon. The script name ends in s, unlike
// the library's type name of the node; both are kept as they are.
#include "ClosedLinearPathNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosClosedLinearPathNodes()
{
    ClassBuilder c("VOR2.ClosedLinearPathNodes", ClassKind::CopiedHandle, "VOR2.LinearPathNode",
                   "A polygon through its points, closed back to the first, filled and stroked by the node's "
                   "draw style. VOR2.ClosedLinearPathNodes() or VOR2.ClosedLinearPathNodes(points) with a 2xn "
                   "or nx2 array.");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(ClosedLinearPathNode()); });
    c.constructor("points", 1, [](Self &, Args const &a) {
        auto points = GLOX::GVector<GLOX::GLPoint<double>>::fromList(toPoints(a[0]));
        return fromNode(ClosedLinearPathNode(points));
    });
    return c.build();
}

ClassRegistration registration("VOR2.ClosedLinearPathNodes", &cosClosedLinearPathNodes);

} // namespace

} // namespace VOR2::script
