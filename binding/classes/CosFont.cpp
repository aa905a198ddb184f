// VOR2.Font: a font by family, weight, style and size.
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/EnumTables.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

#include "GLOX/Font.h"

namespace VOR2::script {

namespace {

using GLOX::Font;

// The font keeps its weight and style as flags; these adapters give and
// take them as the names Normal and Bold, Normal and Italic.
Value weightOf(Font const &f) { return fromEnum(f.bold() ? FontWeight::Bold : FontWeight::Normal); }
Value styleOf(Font const &f) { return fromEnum(f.italic() ? FontStyle::Italic : FontStyle::Normal); }

Font withFamily(Font const &f, std::string family)
{
    return Font(std::move(family), f.pointSize(), f.bold(), f.italic());
}
Font withSize(Font const &f, double points) { return Font(f.family(), points, f.bold(), f.italic()); }
Font withWeight(Font const &f, FontWeight w)
{
    return Font(f.family(), f.pointSize(), w == FontWeight::Bold, f.italic());
}
Font withStyle(Font const &f, FontStyle s) { return Font(f.family(), f.pointSize(), f.bold(), s == FontStyle::Italic); }

Value encodeFont(Font const &f)
{
    return Value::structure({{"Family", Value::string(f.family())},
                             {"Weight", weightOf(f)},
                             {"Style", styleOf(f)},
                             {"Size", Value::scalar(f.pointSize())}});
}

Font decodeFont(Value const &state)
{
    return Font(toString(stateField(state, "Family")), toDouble(stateField(state, "Size")),
                toEnum<FontWeight>(stateField(state, "Weight")) == FontWeight::Bold,
                toEnum<FontStyle>(stateField(state, "Style")) == FontStyle::Italic);
}

ClassInfo cosFont()
{
    ClassBuilder c("VOR2.Font", ClassKind::Value, "",
                   "A font: family name, weight, style and size in points. VOR2.Font() is DejaVu Sans of 10 "
                   "points; VOR2.Font(family, size[, weight[, style]]).");
    c.valueCodec<Font>(&encodeFont, &decodeFont);
    c.constructor("family, size[, weight[, style]]", -1, [](Self &, Args const &a) {
        if (a.size() > 4) raise("VOR2:WrongArgumentCount", "VOR2.Font takes at most 4 arguments");
        std::string family = toString(a[0]);
        double size = toDouble(a[1]);
        bool bold = a.size() > 2 && toEnum<FontWeight>(a[2]) == FontWeight::Bold;
        bool italic = a.size() > 3 && toEnum<FontStyle>(a[3]) == FontStyle::Italic;
        return fromValueOf(Font(family, size, bold, italic), "VOR2.Font");
    }, 2);
    c.property(
        "Family", "char", "The family name, such as 'DejaVu Sans'.",
        [](Self &s) { return Value::string(s.value<Font>().family()); },
        [](Self &s, Value const &v) { s.value<Font>() = withFamily(s.value<Font>(), toString(v)); });
    c.property(
        "Weight", "char", "Normal or Bold.", [](Self &s) { return weightOf(s.value<Font>()); },
        [](Self &s, Value const &v) { s.value<Font>() = withWeight(s.value<Font>(), toEnum<FontWeight>(v)); });
    c.property(
        "Style", "char", "Normal or Italic.", [](Self &s) { return styleOf(s.value<Font>()); },
        [](Self &s, Value const &v) { s.value<Font>() = withStyle(s.value<Font>(), toEnum<FontStyle>(v)); });
    c.property(
        "Size", "double scalar", "The size in points.",
        [](Self &s) { return Value::scalar(s.value<Font>().pointSize()); },
        [](Self &s, Value const &v) { s.value<Font>() = withSize(s.value<Font>(), toDouble(v)); });
    return c.build();
}

ClassRegistration registration("VOR2.Font", &cosFont);

} // namespace

} // namespace VOR2::script
