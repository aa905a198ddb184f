// VOR2.CompositeNode: a node that draws and answers for its children as one.
#include "CompositeNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosCompositeNode()
{
    ClassBuilder c("VOR2.CompositeNode", ClassKind::CopiedHandle, "VOR2.Node",
                   "A node whose children are drawn, hit and selected as parts of one whole. VOR2.CompositeNode().");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(CompositeNode()); });
    return c.build();
}

ClassRegistration registration("VOR2.CompositeNode", &cosCompositeNode);

} // namespace

} // namespace VOR2::script
