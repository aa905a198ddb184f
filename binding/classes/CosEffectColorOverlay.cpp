// VOR2.EffectColorOverlay: a translucent colour over a node.
#include "EffectColorOverlay"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EffectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosEffectColorOverlay()
{
    ClassBuilder c("VOR2.EffectColorOverlay", ClassKind::ReferencedHandle, "VOR2.Effect",
                   "Covers a node's outline with a translucent colour. VOR2.EffectColorOverlay() is red at "
                   "opacity 0.75.");
    c.constructor("", 0, [](Self &, Args const &) {
        GLOX::Holder<EffectColorOverlay> effect(new EffectColorOverlay);
        return fromEffect(effect.get());
    });
    c.property(
        "Color", "double vector", "The colour [red green blue alpha], each from 0 to 1; alpha is the opacity.",
        [](Self &s) { return fromColor(s.object<EffectColorOverlay>()->getColor()); },
        [](Self &s, Value const &v) {
            GLOX::Color color = toColor(v);
            s.object<EffectColorOverlay>()->setColor(color);
        });
    c.property(
        "Opacity", "double scalar", "The opacity from 0 to 1: the colour's alpha.",
        [](Self &s) { return Value::scalar(s.object<EffectColorOverlay>()->getOpacity()); },
        [](Self &s, Value const &v) {
            double opacity = toDouble(v);
            s.object<EffectColorOverlay>()->setOpacity(opacity);
        });
    return c.build();
}

ClassRegistration registration("VOR2.EffectColorOverlay", &cosEffectColorOverlay);

} // namespace

} // namespace VOR2::script
