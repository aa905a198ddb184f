// VOR2.EffectGlow: a soft halo around a node; the root of the glow kinds.
#include "EffectGlow"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EffectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosEffectGlow()
{
    ClassBuilder c("VOR2.EffectGlow", ClassKind::ReferencedHandle, "VOR2.Effect",
                   "A soft halo of one colour around a node, outside its silhouette, of the same width on screen "
                   "at every zoom. VOR2.EffectGlow() is pale yellow at opacity 0.75 with a spread of 6. Line and "
                   "text nodes do not glow.");
    c.constructor("", 0, [](Self &, Args const &) {
        GLOX::Holder<EffectGlow> effect(new EffectGlow);
        return fromEffect(effect.get());
    });
    c.property(
        "Color", "double vector", "The colour [red green blue alpha], each from 0 to 1; alpha is the opacity.",
        [](Self &s) { return fromColor(s.object<EffectGlow>()->getColor()); },
        [](Self &s, Value const &v) {
            GLOX::Color color = toColor(v);
            s.object<EffectGlow>()->setColor(color);
        });
    c.property(
        "Opacity", "double scalar", "The opacity from 0 to 1: the colour's alpha.",
        [](Self &s) { return Value::scalar(s.object<EffectGlow>()->getOpacity()); },
        [](Self &s, Value const &v) {
            double opacity = toDouble(v);
            s.object<EffectGlow>()->setOpacity(opacity);
        });
    c.property(
        "Spread", "int32 scalar", "How far the blur reaches, in logical units before the effect's scaling.",
        [](Self &s) { return Value::int32(s.object<EffectGlow>()->getSpread()); },
        [](Self &s, Value const &v) {
            int spread = toInt32(v);
            s.object<EffectGlow>()->setSpread(spread);
        });
    return c.build();
}

ClassRegistration registration("VOR2.EffectGlow", &cosEffectGlow);

} // namespace

} // namespace VOR2::script
