// VOR2.Behavior: a tool that belongs to a node.
#include "Behavior"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosBehavior()
{
    ClassBuilder c("VOR2.Behavior", ClassKind::ReferencedHandle, "",
                   "A tool that belongs to a node, such as the resizing by a handle: when its node is pressed it "
                   "takes the input. Reached through node.Behavior.");
    c.property("Node", "VOR2.Node", "The node this behaviour belongs to, or empty.",
               [](Self &s) { return fromNode(s.object<Behavior>()->getNode()); });
    return c.build();
}

ClassRegistration registration("VOR2.Behavior", &cosBehavior);

} // namespace

} // namespace VOR2::script
