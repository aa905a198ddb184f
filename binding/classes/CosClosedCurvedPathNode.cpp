// VOR2.ClosedCurvedPathNode: a smooth closed figure.
#include "ClosedCurvedPathNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"
#include "binding/VertexConvert.h"

namespace VOR2::script {

namespace {

ClassInfo cosClosedCurvedPathNode()
{
    ClassBuilder c("VOR2.ClosedCurvedPathNode", ClassKind::CopiedHandle, "VOR2.CurvedPathNode",
                   "A smooth curve through its vertices, closed by a straight side back to the first, filled "
                   "and stroked by the node's draw style. VOR2.ClosedCurvedPathNode() or "
                   "VOR2.ClosedCurvedPathNode(vertices) with a cell of vertices or a 2xn or nx2 array of points.");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(ClosedCurvedPathNode()); });
    c.constructor("vertices", 1, [](Self &, Args const &a) {
        auto vertices = toVertices(a[0]);
        return fromNode(ClosedCurvedPathNode(vertices));
    });
    return c.build();
}

ClassRegistration registration("VOR2.ClosedCurvedPathNode", &cosClosedCurvedPathNode);

} // namespace

} // namespace VOR2::script
