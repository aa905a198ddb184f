// VOR2.EffectShadow: a blurred, offset copy of a node's silhouette. Of the
// glow kinds only this one publishes MaskedOut: a plain glow's flag stays
// out of a script's reach on purpose.
#include "EffectShadow"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EffectConvert.h"
#include "binding/Package.h"
#include "binding/classes/EffectDistance.h"

namespace VOR2::script {

namespace {

ClassInfo cosEffectShadow()
{
    ClassBuilder c("VOR2.EffectShadow", ClassKind::ReferencedHandle, "VOR2.EffectGlow",
                   "A blurred copy of a node's silhouette, offset by the distance. VOR2.EffectShadow() is black at "
                   "opacity 0.65, distance [2 2], spread 3. Line nodes cast no shadow.");
    c.constructor("", 0, [](Self &, Args const &) {
        GLOX::Holder<EffectShadow> effect(new EffectShadow);
        return fromEffect(effect.get());
    });
    addDistanceProperty(c, "The offset [dx dy] of the shadow in logical units before scaling; whole units.");
    c.property(
        "MaskedOut", "logical scalar",
        "Whether the node's own silhouette is cut from the shadow, so it shows only outside the node.",
        [](Self &s) { return Value::logical(s.object<EffectShadow>()->getIsMaskedOut()); },
        [](Self &s, Value const &v) {
            bool masked = toBool(v);
            s.object<EffectShadow>()->setIsMaskedOut(masked);
        });
    return c.build();
}

ClassRegistration registration("VOR2.EffectShadow", &cosEffectShadow);

} // namespace

} // namespace VOR2::script
