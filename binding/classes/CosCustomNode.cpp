// VOR2.CustomNode: a node painted by the library's own painters.
#include "CustomNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosCustomNode()
{
    ClassBuilder c("VOR2.CustomNode", ClassKind::CopiedHandle, "VOR2.Node",
                   "A node whose geometry and drawing come from a painter in the library, such as the handles "
                   "of a VOR2.ResizeBehavior. VOR2.CustomNode() makes one without a painter: it has no size and "
                   "draws nothing, but can hold children.");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(CustomNode()); });
    return c.build();
}

ClassRegistration registration("VOR2.CustomNode", &cosCustomNode);

} // namespace

} // namespace VOR2::script
