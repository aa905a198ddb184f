// VOR2.EffectStroke: an outline drawn as an effect.
#include "EffectStroke"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EffectConvert.h"
#include "binding/EnumTables.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

ClassInfo cosEffectStroke()
{
    ClassBuilder c("VOR2.EffectStroke", ClassKind::ReferencedHandle, "VOR2.Effect",
                   "Outlines a node with a stroke, on the edge of its bounds, inside or outside them; the line is "
                   "always solid. VOR2.EffectStroke() is red at opacity 0.75, width 3, centred on the edge; "
                   "VOR2.EffectStroke(stroke, inset) takes a VOR2.Stroke and 'Inner', 'Center' or 'Outer'.");
    c.constructor("", 0, [](Self &, Args const &) {
        GLOX::Holder<EffectStroke> effect(new EffectStroke);
        return fromEffect(effect.get());
    });
    c.constructor("stroke, inset", 2, [](Self &, Args const &a) {
        auto stroke = toValueOf<Stroke>(a[0], "VOR2.Stroke");
        auto inset = toEnum<StrokeInsetType>(a[1]);
        GLOX::Holder<EffectStroke> effect(new EffectStroke(stroke, inset));
        return fromEffect(effect.get());
    });
    c.property(
        "Inset", "char", "Where the outline lies: 'Inner' (inside the bounds), 'Center' (on the edge) or 'Outer'.",
        [](Self &s) { return fromEnum(s.object<EffectStroke>()->getStrokeInsetType()); },
        [](Self &s, Value const &v) {
            auto inset = toEnum<StrokeInsetType>(v);
            s.object<EffectStroke>()->setStrokeInsetType(inset);
        });
    c.property(
        "Stroke", "VOR2.Stroke", "The stroke: colour, width and scale function (its line style is not used).",
        [](Self &s) { return fromValueOf(s.object<EffectStroke>()->getStroke(), "VOR2.Stroke"); },
        [](Self &s, Value const &v) {
            auto stroke = toValueOf<Stroke>(v, "VOR2.Stroke");
            s.object<EffectStroke>()->setStroke(stroke);
        });
    return c.build();
}

ClassRegistration registration("VOR2.EffectStroke", &cosEffectStroke);

} // namespace

} // namespace VOR2::script
