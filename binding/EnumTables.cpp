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

} // namespace VOR2::script
