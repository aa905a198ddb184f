// VOR2.Fill: the fill value.
#include "Fill"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EnumTables.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

Value encodeFill(Fill const &f)
{
    return Value::structure({{"Color", fromColor(f.color())},
                             {"Gradient", fromValueOf(f.gradient(), "VOR2.Gradient")},
                             {"Style", fromEnum(f.style())}});
}

Fill decodeFill(Value const &state)
{
    Fill f;
    f.setColor(toColor(stateField(state, "Color")));
    f.setGradient(toValueOf<GLOX::Gradient>(stateField(state, "Gradient"), "VOR2.Gradient"));
    f.setStyle(toEnum<FillStyle>(stateField(state, "Style")));
    return f;
}

ClassInfo cosFill()
{
    ClassBuilder c("VOR2.Fill", ClassKind::Value, "",
                   "How a node's inside is painted: nothing, a solid colour or a gradient. VOR2.Fill() paints "
                   "nothing; VOR2.Fill(color), VOR2.Fill(color, style) or VOR2.Fill(gradient).");
    c.valueCodec<Fill>(&encodeFill, &decodeFill);
    // One argument: a colour, else a gradient.
    c.constructor("color", 1, [](Self &, Args const &a) { return fromValueOf(Fill(toColor(a[0])), "VOR2.Fill"); });
    c.constructor("gradient", 1, [](Self &, Args const &a) {
        return fromValueOf(Fill(toValueOf<GLOX::Gradient>(a[0], "VOR2.Gradient")), "VOR2.Fill");
    });
    c.constructor("color, style", 2, [](Self &, Args const &a) {
        GLOX::Color color = toColor(a[0]);
        FillStyle style = toEnum<FillStyle>(a[1]);
        return fromValueOf(Fill(color, style), "VOR2.Fill");
    });
    c.property(
        "Color", "double vector", "The colour [red green blue alpha], each from 0 to 1, painted when Style is Solid.",
        [](Self &s) { return fromColor(s.value<Fill>().color()); },
        [](Self &s, Value const &v) { s.value<Fill>().setColor(toColor(v)); });
    c.property(
        "Gradient", "VOR2.Gradient", "The gradient (a VOR2.Gradient), painted when Style is GradientFill.",
        [](Self &s) { return fromValueOf(s.value<Fill>().gradient(), "VOR2.Gradient"); },
        [](Self &s, Value const &v) { s.value<Fill>().setGradient(toValueOf<GLOX::Gradient>(v, "VOR2.Gradient")); });
    c.property("IsNoFill", "logical scalar", "True when the style is NoFill, so nothing is painted.",
               [](Self &s) { return Value::logical(s.value<Fill>().isNoFill()); });
    c.property(
        "Style", "char vector", "What is painted: NoFill, Solid (the colour) or GradientFill (the gradient).",
        [](Self &s) { return fromEnum(s.value<Fill>().style()); },
        [](Self &s, Value const &v) { s.value<Fill>().setStyle(toEnum<FillStyle>(v)); });
    return c.build();
}

ClassRegistration registration("VOR2.Fill", &cosFill);

} // namespace

} // namespace VOR2::script
