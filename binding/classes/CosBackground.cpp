// VOR2.Background: what a view paints behind its scene.
#include "Background"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

// The image placement has no property of its own; it rides in the state so
// that a background read from a view and assigned back keeps it.
Value encodeBackground(Background const &b)
{
    return Value::structure({{"Color", fromColor(b.getColor())},
                             {"Gradient", fromValueOf(b.getGradient(), "VOR2.Gradient")},
                             {"Image", Value::string(b.getImage())},
                             {"ImagePlacement", Value::scalar(b.getImagePlacement())}});
}

Background decodeBackground(Value const &state)
{
    Background b;
    b.setColor(toColor(stateField(state, "Color")));
    b.setGradient(toValueOf<GLOX::Gradient>(stateField(state, "Gradient"), "VOR2.Gradient"));
    b.setImage(toString(stateField(state, "Image")));
    b.setImagePlacement(toUInt32(stateField(state, "ImagePlacement")));
    return b;
}

// A method without arguments on the background.
template <class F>
void method0(ClassBuilder &c, char const *name, char const *help, F f)
{
    c.method(name, help).overload("", 0, [f](Self &s, Args const &) { return f(s.value<Background>()); });
}

ClassInfo cosBackground()
{
    ClassBuilder c("VOR2.Background", ClassKind::Value, "",
                   "What a view paints behind its scene: a colour, a gradient and an image file, each of which may "
                   "be absent. VOR2.Background(color), VOR2.Background(gradient) or VOR2.Background(imagePath).");
    c.valueCodec<Background>(&encodeBackground, &decodeBackground);
    // One argument: a colour, else a gradient, else an image's path.
    c.constructor("color", 1,
                  [](Self &, Args const &a) { return fromValueOf(Background(toColor(a[0])), "VOR2.Background"); });
    c.constructor("gradient", 1, [](Self &, Args const &a) {
        return fromValueOf(Background(toValueOf<GLOX::Gradient>(a[0], "VOR2.Gradient")), "VOR2.Background");
    });
    c.constructor("imagePath", 1, [](Self &, Args const &a) {
        if (a[0].type() != Value::Type::Char) wrongType("char", a[0]);
        return fromValueOf(Background(a[0].text()), "VOR2.Background");
    });
    c.property(
        "Color", "double vector",
        "The colour [red green blue alpha], each from 0 to 1; a colour of alpha 0 counts as none.",
        [](Self &s) { return fromColor(s.value<Background>().getColor()); },
        [](Self &s, Value const &v) { s.value<Background>().setColor(toColor(v)); });
    c.property(
        "Gradient", "VOR2.Gradient", "The gradient (a VOR2.Gradient); one of no type counts as none.",
        [](Self &s) { return fromValueOf(s.value<Background>().getGradient(), "VOR2.Gradient"); },
        [](Self &s, Value const &v) {
            s.value<Background>().setGradient(toValueOf<GLOX::Gradient>(v, "VOR2.Gradient"));
        });
    c.property(
        "Image", "char", "The path of an image file, tiled from the top-left corner; '' for none.",
        [](Self &s) { return Value::string(s.value<Background>().getImage()); },
        [](Self &s, Value const &v) { s.value<Background>().setImage(toString(v)); });
    method0(c, "hasColor", "True when the background has a colour (of alpha above 0).",
            [](Background &b) { return Value::logical(b.hasColor()); });
    method0(c, "hasGradient", "True when the background has a gradient.",
            [](Background &b) { return Value::logical(b.hasGradient()); });
    method0(c, "hasImage", "True when the background has an image.",
            [](Background &b) { return Value::logical(b.hasImage()); });
    method0(c, "clearColor", "Removes the colour.", [](Background &b) {
        b.clearColor();
        return Value();
    });
    method0(c, "clearGradient", "Removes the gradient.", [](Background &b) {
        b.clearGradient();
        return Value();
    });
    method0(c, "clearImage", "Removes the image.", [](Background &b) {
        b.clearImage();
        return Value();
    });
    return c.build();
}

ClassRegistration registration("VOR2.Background", &cosBackground);

} // namespace

} // namespace VOR2::script
