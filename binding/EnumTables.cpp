// The names of the library's enumerations at the script border.
#include "binding/EnumTables.h"

namespace VOR2::script {

template <>
std::vector<std::pair<StrokeStyle, char const *>> EnumNames<StrokeStyle>::entries()
{
    return {{NoStroke, "NoStroke"}, {SolidLine, "SolidLine"}, {DashLine, "DashLine"}, {DotLine, "DotLine"},
            {DashDotLine, "DashDotLine"}, {DashDotDotLine, "DashDotDotLine"}};
}

template <>
std::vector<std::pair<StrokeCapStyle, char const *>> EnumNames<StrokeCapStyle>::entries()
{
    return {{FlatCap, "FlatCap"}, {SquareCap, "SquareCap"}, {RoundCap, "RoundCap"}};
}

template <>
std::vector<std::pair<StrokeJoinStyle, char const *>> EnumNames<StrokeJoinStyle>::entries()
{
    return {{MiterJoin, "MiterJoin"}, {BevelJoin, "BevelJoin"}, {RoundJoin, "RoundJoin"}, {SvgMiterJoin, "SvgMiterJoin"}};
}

template <>
std::vector<std::pair<FillStyle, char const *>> EnumNames<FillStyle>::entries()
{
    return {{FillStyle::NoFill, "NoFill"}, {FillStyle::Solid, "Solid"}, {FillStyle::GradientFill, "GradientFill"}};
}

template <>
std::vector<std::pair<GLOX::Gradient::Type, char const *>> EnumNames<GLOX::Gradient::Type>::entries()
{
    using T = GLOX::Gradient::Type;
    return {{T::NoGradient, "NoGradient"}, {T::Linear, "Linear"}, {T::Radial, "Radial"}, {T::Conical, "Conical"}};
}

template <>
std::vector<std::pair<GLOX::Gradient::Spread, char const *>> EnumNames<GLOX::Gradient::Spread>::entries()
{
    using S = GLOX::Gradient::Spread;
    return {{S::Pad, "Pad"}, {S::Reflect, "Reflect"}, {S::Repeat, "Repeat"}};
}

template <>
std::vector<std::pair<GLOX::Gradient::CoordinateMode, char const *>>
EnumNames<GLOX::Gradient::CoordinateMode>::entries()
{
    using M = GLOX::Gradient::CoordinateMode;
    return {{M::Logical, "Logical"},
            {M::StretchToDevice, "StretchToDevice"},
            {M::ObjectBoundingBox, "ObjectBoundingBox"}};
}

template <>
std::vector<std::pair<FontWeight, char const *>> EnumNames<FontWeight>::entries()
{
    return {{FontWeight::Normal, "Normal"}, {FontWeight::Bold, "Bold"}};
}

template <>
std::vector<std::pair<FontStyle, char const *>> EnumNames<FontStyle>::entries()
{
    return {{FontStyle::Normal, "Normal"}, {FontStyle::Italic, "Italic"}};
}

} // namespace VOR2::script
