// VOR2.ContainerNode: a node that groups its children and lays them out.
#include "ContainerNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosContainerNode()
{
    ClassBuilder c("VOR2.ContainerNode", ClassKind::CopiedHandle, "VOR2.Node",
                   "A node without a look of its own that holds children and lays them out by their layout "
                   "constraint flags when its size changes. VOR2.ContainerNode().");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(ContainerNode()); });
    return c.build();
}

ClassRegistration registration("VOR2.ContainerNode", &cosContainerNode);

} // namespace

} // namespace VOR2::script
