// VOR2.Ellipse: an ellipse by its bounding rectangle.
#include "Ellipse"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

Value encodeEllipse(Ellipse const &e) { return Value::structure({{"Rect", fromRect(e.rect())}}); }

Ellipse decodeEllipse(Value const &state) { return Ellipse(toRect(stateField(state, "Rect"))); }

ClassInfo cosEllipse()
{
    ClassBuilder c("VOR2.Ellipse", ClassKind::Value, "",
                   "An ellipse, given by the rectangle it fills. VOR2.Ellipse([x y width height]).");
    c.valueCodec<Ellipse>(&encodeEllipse, &decodeEllipse);
    c.constructor("rect", 1, [](Self &, Args const &a) { return fromValueOf(Ellipse(toRect(a[0])), "VOR2.Ellipse"); });
    c.property(
        "Rect", "double vector", "The bounding rectangle [x y width height].",
        [](Self &s) { return fromRect(s.value<Ellipse>().rect()); },
        [](Self &s, Value const &v) { s.value<Ellipse>().setRect(toRect(v)); });
    return c.build();
}

ClassRegistration registration("VOR2.Ellipse", &cosEllipse);

} // namespace

} // namespace VOR2::script
