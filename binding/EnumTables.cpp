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
std::vector<std::pair<CacheType, char const *>> EnumNames<CacheType>::entries()
{
    return {{CacheType::None, "None"}, {CacheType::Self, "Self"}, {CacheType::ChildrenTree, "ChildrenTree"}};
}

template <>
std::vector<std::pair<LayoutConstraints, char const *>> EnumNames<LayoutConstraints>::entries()
{
    return {{LayoutConstraints::None, "None"},          {LayoutConstraints::Left, "Left"},
            {LayoutConstraints::Top, "Top"},            {LayoutConstraints::Right, "Right"},
            {LayoutConstraints::Bottom, "Bottom"},      {LayoutConstraints::FlexibleWidth, "FlexibleWidth"},
            {LayoutConstraints::FlexibleHeight, "FlexibleHeight"}};
}

template <>
std::vector<std::pair<AutoSizeMode, char const *>> EnumNames<AutoSizeMode>::entries()
{
    return {{AutoSizeFixed, autoSizeModeName(AutoSizeFixed)}, {AutoSizeExpanding, autoSizeModeName(AutoSizeExpanding)}};
}

template <>
std::vector<std::pair<GLOX::TextHAlign::Value, char const *>> EnumNames<GLOX::TextHAlign::Value>::entries()
{
    using H = GLOX::TextHAlign;
    return {{H::LEFT_TEXT, H(H::LEFT_TEXT).name()},
            {H::H_CENTER_TEXT, H(H::H_CENTER_TEXT).name()},
            {H::RIGHT_TEXT, H(H::RIGHT_TEXT).name()}};
}

template <>
std::vector<std::pair<GLOX::TextVAlign::Value, char const *>> EnumNames<GLOX::TextVAlign::Value>::entries()
{
    using V = GLOX::TextVAlign;
    return {{V::BASELINE_TEXT, V(V::BASELINE_TEXT).name()}, {V::TOP_TEXT, V(V::TOP_TEXT).name()},
            {V::V_CENTER_TEXT, V(V::V_CENTER_TEXT).name()}, {V::BOTTOM_TEXT, V(V::BOTTOM_TEXT).name()},
            {V::BOTTOM_BASELINE_TEXT, V(V::BOTTOM_BASELINE_TEXT).name()}};
}

template <>
std::vector<std::pair<Qt::CursorShape, char const *>> EnumNames<Qt::CursorShape>::entries()
{
    return {{Qt::ArrowCursor, "Arrow"},          {Qt::UpArrowCursor, "UpArrow"},
            {Qt::CrossCursor, "Cross"},          {Qt::WaitCursor, "Wait"},
            {Qt::IBeamCursor, "IBeam"},          {Qt::SizeVerCursor, "SizeVer"},
            {Qt::SizeHorCursor, "SizeHor"},      {Qt::SizeBDiagCursor, "SizeBDiag"},
            {Qt::SizeFDiagCursor, "SizeFDiag"},  {Qt::SizeAllCursor, "SizeAll"},
            {Qt::BlankCursor, "Blank"},          {Qt::SplitVCursor, "SplitV"},
            {Qt::SplitHCursor, "SplitH"},        {Qt::PointingHandCursor, "PointingHand"},
            {Qt::ForbiddenCursor, "Forbidden"},  {Qt::WhatsThisCursor, "WhatsThis"},
            {Qt::BusyCursor, "Busy"},            {Qt::OpenHandCursor, "OpenHand"},
            {Qt::ClosedHandCursor, "ClosedHand"}, {Qt::DragCopyCursor, "DragCopy"},
            {Qt::DragMoveCursor, "DragMove"},    {Qt::DragLinkCursor, "DragLink"}};
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
