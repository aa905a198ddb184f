// VOR2.EffectInnerGlow: a soft band inside a node's edge.
#include "EffectInnerGlow"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EffectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosEffectInnerGlow()
{
    ClassBuilder c("VOR2.EffectInnerGlow", ClassKind::ReferencedHandle, "VOR2.EffectGlow",
                   "A soft band of one colour inside a node's silhouette, along its edge; it never leaves the "
                   "node. VOR2.EffectInnerGlow() has the glow's defaults.");
    c.constructor("", 0, [](Self &, Args const &) {
        GLOX::Holder<EffectInnerGlow> effect(new EffectInnerGlow);
        return fromEffect(effect.get());
    });
    return c.build();
}

ClassRegistration registration("VOR2.EffectInnerGlow", &cosEffectInnerGlow);

} // namespace

} // namespace VOR2::script
