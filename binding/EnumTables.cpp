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
std::vector<std::pair<StrokeInsetType, char const *>> EnumNames<StrokeInsetType>::entries()
{
    return {{Inner, "Inner"}, {Center, "Center"}, {Outer, "Outer"}};
}

template <>
std::vector<std::pair<HorizontalAlignment, char const *>> EnumNames<HorizontalAlignment>::entries()
{
    return {{HorizontalAlignment::Left, "Left"}, {HorizontalAlignment::Center, "Center"},
            {HorizontalAlignment::Right, "Right"}};
}

template <>
std::vector<std::pair<VerticalAlignment, char const *>> EnumNames<VerticalAlignment>::entries()
{
    return {{VerticalAlignment::Top, "Top"}, {VerticalAlignment::Center, "Center"},
            {VerticalAlignment::Bottom, "Bottom"}};
}

} // namespace VOR2::script
