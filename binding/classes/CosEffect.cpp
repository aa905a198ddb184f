// VOR2.Effect: the counted root of the effect family.
#include "Effect"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosEffect()
{
    ClassBuilder c("VOR2.Effect", ClassKind::ReferencedHandle, "",
                   "Something a node paints on top of itself (a glow, a shadow, an outline). Bind one to a node "
                   "with node.Effects.add(effect); the node keeps it, so it paints on after the variable is "
                   "cleared. One effect may be bound to many nodes; a change to it repaints them all.");
    c.staticMethod("getDefaultObject",
                   "The default VOR2.Effect: an object on no effect, whose every call fails as on an empty value.")
        .overload("", 0, [](Self &, Args const &) { return Value::nullObject("VOR2.Effect"); });
    c.method("getEffectType",
             "The id the effect is bound under by default, a char row: 'Glow', 'InnerGlow', 'Shadow', "
             "'InnerShadow', 'ColorOverlay' or 'Stroke'.")
        .overload("", 0, [](Self &s, Args const &) { return Value::string(s.object<Effect>()->getEffectID().str()); });
    return c.build();
}

ClassRegistration registration("VOR2.Effect", &cosEffect);

} // namespace

} // namespace VOR2::script
