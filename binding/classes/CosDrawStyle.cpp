// VOR2.DrawStyle: a node's stroke and fill as one value.
#include "DrawStyle"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

Value encodeDrawStyle(DrawStyle const &d)
{
    return Value::structure({{"Stroke", fromValueOf(d.stroke(), "VOR2.Stroke")},
                             {"Fill", fromValueOf(d.fill(), "VOR2.Fill")},
                             {"IsAntiAliased", Value::logical(d.isAntiAliased())}});
}

DrawStyle decodeDrawStyle(Value const &state)
{
    return DrawStyle(toValueOf<Stroke>(stateField(state, "Stroke"), "VOR2.Stroke"),
                     toValueOf<Fill>(stateField(state, "Fill"), "VOR2.Fill"),
                     toBool(stateField(state, "IsAntiAliased")));
}

ClassInfo cosDrawStyle()
{
    ClassBuilder c("VOR2.DrawStyle", ClassKind::Value, "",
                   "How a node is drawn: its stroke, its fill and whether edges are anti-aliased. "
                   "VOR2.DrawStyle(stroke, fill) or VOR2.DrawStyle(stroke, fill, isAntiAliased). Nested values "
                   "change in place: style.Stroke.Width = 3.");
    c.valueCodec<DrawStyle>(&encodeDrawStyle, &decodeDrawStyle);
    c.constructor("stroke, fill[, isAntiAliased]", -1, [](Self &, Args const &a) {
        if (a.size() > 3) raise("VOR2:WrongArgumentCount", "VOR2.DrawStyle takes at most 3 arguments");
        Stroke stroke = toValueOf<Stroke>(a[0], "VOR2.Stroke");
        Fill fill = toValueOf<Fill>(a[1], "VOR2.Fill");
        bool antiAliased = a.size() > 2 && toBool(a[2]);
        return fromValueOf(DrawStyle(stroke, fill, antiAliased), "VOR2.DrawStyle");
    }, 2);
    c.property(
        "Stroke", "VOR2.Stroke", "The outline's stroke (a VOR2.Stroke).",
        [](Self &s) { return fromValueOf(s.value<DrawStyle>().stroke(), "VOR2.Stroke"); },
        [](Self &s, Value const &v) { s.value<DrawStyle>().setStroke(toValueOf<Stroke>(v, "VOR2.Stroke")); });
    c.property(
        "Fill", "VOR2.Fill", "The inside's fill (a VOR2.Fill).",
        [](Self &s) { return fromValueOf(s.value<DrawStyle>().fill(), "VOR2.Fill"); },
        [](Self &s, Value const &v) { s.value<DrawStyle>().setFill(toValueOf<Fill>(v, "VOR2.Fill")); });
    c.property(
        "IsAntiAliased", "logical scalar", "Whether edges are drawn anti-aliased.",
        [](Self &s) { return Value::logical(s.value<DrawStyle>().isAntiAliased()); },
        [](Self &s, Value const &v) { s.value<DrawStyle>().setIsAntiAliased(toBool(v)); });
    c.method("getStroke", "The stroke, a VOR2.Stroke (as the Stroke property).", "stroke")
        .overload("", 0, [](Self &s, Args const &) {
            return fromValueOf(s.value<DrawStyle>().stroke(), "VOR2.Stroke");
        });
    return c.build();
}

ClassRegistration registration("VOR2.DrawStyle", &cosDrawStyle);

} // namespace

} // namespace VOR2::script
