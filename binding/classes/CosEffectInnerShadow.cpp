// VOR2.EffectInnerShadow: a shadow cast inside a node.
#include "EffectInnerShadow"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EffectConvert.h"
#include "binding/Package.h"
#include "binding/classes/EffectDistance.h"

namespace VOR2::script {

namespace {

ClassInfo cosEffectInnerShadow()
{
    ClassBuilder c("VOR2.EffectInnerShadow", ClassKind::ReferencedHandle, "VOR2.EffectGlow",
                   "A shadow cast inside a node, as if the node were a hole lit from the top left. "
                   "VOR2.EffectInnerShadow() is black at opacity 0.65 with a spread of 3.");
    c.constructor("", 0, [](Self &, Args const &) {
        GLOX::Holder<EffectInnerShadow> effect(new EffectInnerShadow);
        return fromEffect(effect.get());
    });
    addDistanceProperty(c, "The offset [dx dy], kept but not drawn: the shadow always falls by the spread.");
    return c.build();
}

ClassRegistration registration("VOR2.EffectInnerShadow", &cosEffectInnerShadow);

} // namespace

} // namespace VOR2::script
