// VOR2.Stroke: the stroke value.
#include "Error"
#include "Stroke"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EnumTables.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

// The scale function by its name (None, Constant, SplitLinear, ConstantOut,
// ConstantIn, SelectionNonLinear); an unknown name throws VOR2_UnknownScale.
LodScale const *toScaleFunction(Value const &v)
{
    LodScale const *function = LodScale::byName(toStringID(v));
    if (!function) throwError(VOR2_UnknownScale);
    return function;
}

Value fromScaleFunction(LodScale const *function) { return Value::string(function->name().str()); }

Value encodeStroke(Stroke const &s)
{
    return Value::structure({{"Color", fromColor(s.color())},
                             {"Width", Value::scalar(s.logicalWidth())},
                             {"CapStyle", fromEnum(s.capStyle())},
                             {"JoinStyle", fromEnum(s.joinStyle())},
                             {"Style", fromEnum(s.style())},
                             {"ScaleFunction", fromScaleFunction(s.scaleFunction())}});
}

Stroke decodeStroke(Value const &state)
{
    Stroke s;
    s.setColor(toColor(stateField(state, "Color")));
    s.setLogicalWidth(toDouble(stateField(state, "Width")));
    s.setCapStyle(toEnum<StrokeCapStyle>(stateField(state, "CapStyle")));
    s.setJoinStyle(toEnum<StrokeJoinStyle>(stateField(state, "JoinStyle")));
    s.setStyle(toEnum<StrokeStyle>(stateField(state, "Style")));
    s.setScaleFunction(toScaleFunction(stateField(state, "ScaleFunction")));
    return s;
}

ClassInfo cosStroke()
{
    ClassBuilder c("VOR2.Stroke", ClassKind::Value, "",
                   "How a node's outline is drawn: colour, width, caps, joins, dash style and scale function. "
                   "VOR2.Stroke() is a black hairline; VOR2.Stroke(style), or VOR2.Stroke(color, width[, style[, "
                   "capStyle[, joinStyle[, scaleFunction]]]]) with the names of each property.");
    c.valueCodec<Stroke>(&encodeStroke, &decodeStroke);
    c.constructor("style", 1, [](Self &, Args const &a) {
        return fromValueOf(Stroke(toEnum<StrokeStyle>(a[0])), "VOR2.Stroke");
    });
    // The library's argument list, each argument after the width optional.
    c.constructor("color, width[, style[, capStyle[, joinStyle[, scaleFunction]]]]", -1, [](Self &, Args const &a) {
        if (a.size() > 6) raise("VOR2:WrongArgumentCount", "VOR2.Stroke takes at most 6 arguments");
        GLOX::Color color = toColor(a[0]);
        double width = toDouble(a[1]);
        Stroke s(color, width);
        if (a.size() > 2) s.setStyle(toEnum<StrokeStyle>(a[2]));
        if (a.size() > 3) s.setCapStyle(toEnum<StrokeCapStyle>(a[3]));
        if (a.size() > 4) s.setJoinStyle(toEnum<StrokeJoinStyle>(a[4]));
        if (a.size() > 5) s.setScaleFunction(toScaleFunction(a[5]));
        return fromValueOf(s, "VOR2.Stroke");
    }, 2);
    c.property("IsNoStroke", "logical scalar", "True when the style is NoStroke.",
               [](Self &s) { return Value::logical(s.value<Stroke>().isNoStroke()); });
    c.property(
        "Color", "double vector", "The colour [red green blue alpha], each from 0 to 1.",
        [](Self &s) { return fromColor(s.value<Stroke>().color()); },
        [](Self &s, Value const &v) { s.value<Stroke>().setColor(toColor(v)); });
    c.property(
        "Width", "double scalar", "The logical width; 0 is a hairline of one device pixel.",
        [](Self &s) { return Value::scalar(s.value<Stroke>().logicalWidth()); },
        [](Self &s, Value const &v) { s.value<Stroke>().setLogicalWidth(toDouble(v)); });
    c.property(
        "CapStyle", "char vector", "FlatCap, SquareCap or RoundCap.",
        [](Self &s) { return fromEnum(s.value<Stroke>().capStyle()); },
        [](Self &s, Value const &v) { s.value<Stroke>().setCapStyle(toEnum<StrokeCapStyle>(v)); });
    c.property(
        "JoinStyle", "char vector", "MiterJoin, BevelJoin, RoundJoin or SvgMiterJoin.",
        [](Self &s) { return fromEnum(s.value<Stroke>().joinStyle()); },
        [](Self &s, Value const &v) { s.value<Stroke>().setJoinStyle(toEnum<StrokeJoinStyle>(v)); });
    c.property(
        "Style", "char vector", "NoStroke, SolidLine, DashLine, DotLine, DashDotLine or DashDotDotLine.",
        [](Self &s) { return fromEnum(s.value<Stroke>().style()); },
        [](Self &s, Value const &v) { s.value<Stroke>().setStyle(toEnum<StrokeStyle>(v)); });
    c.property(
        "ScaleFunction", "char vector",
        "How the width follows the zoom: None (scales with the view), Constant (the same on screen), SplitLinear, "
        "ConstantOut, ConstantIn or SelectionNonLinear.",
        [](Self &s) { return fromScaleFunction(s.value<Stroke>().scaleFunction()); },
        [](Self &s, Value const &v) { s.value<Stroke>().setScaleFunction(toScaleFunction(v)); });
    return c.build();
}

ClassRegistration registration("VOR2.Stroke", &cosStroke);

} // namespace

} // namespace VOR2::script
