// VOR2.Stroke: the stroke value.
#include "Stroke"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EnumTables.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

Value encodeStroke(Stroke const &s)
{
    return Value::structure({{"Color", fromColor(s.color())},
                             {"Width", Value::scalar(s.logicalWidth())},
                             {"CapStyle", fromEnum(s.capStyle())},
                             {"JoinStyle", fromEnum(s.joinStyle())},
                             {"Style", fromEnum(s.style())}});
}

Stroke decodeStroke(Value const &state)
{
    Stroke s;
    s.setColor(toColor(stateField(state, "Color")));
    s.setLogicalWidth(toDouble(stateField(state, "Width")));
    s.setCapStyle(toEnum<StrokeCapStyle>(stateField(state, "CapStyle")));
    s.setJoinStyle(toEnum<StrokeJoinStyle>(stateField(state, "JoinStyle")));
    s.setStyle(toEnum<StrokeStyle>(stateField(state, "Style")));
    return s;
}

ClassInfo cosStroke()
{
    ClassBuilder c("VOR2.Stroke", ClassKind::Value, "",
                   "How a node's outline is drawn: colour, width, caps, joins, dash style and scale function. "
                   "A value: a copy changed leaves the original as it was.");
    c.valueCodec<Stroke>(&encodeStroke, &decodeStroke);
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
    return c.build();
}

ClassRegistration registration("VOR2.Stroke", &cosStroke);

} // namespace

} // namespace VOR2::script
