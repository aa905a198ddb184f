#pragma once
// The enumerations the script border tells by name: one EnumNames
// specialisation each, declared here and listed in EnumTables.cpp, so that
// every class that converts one sees the same table.

#include "Alignment"
#include "AutoSizeMode"
#include "CacheType"
#include "EffectStroke"
#include "Fill"
#include "LayoutConstraints"
#include "Stroke"
#include "binding/EnumNames.h"

#include "GLOX/Gradient.h"
#include "GLOX/TextAlign.h"

#include <Qt>

namespace VOR2::script {

template <>
std::vector<std::pair<StrokeStyle, char const *>> EnumNames<StrokeStyle>::entries();
template <>
std::vector<std::pair<StrokeCapStyle, char const *>> EnumNames<StrokeCapStyle>::entries();
template <>
std::vector<std::pair<StrokeJoinStyle, char const *>> EnumNames<StrokeJoinStyle>::entries();
template <>
std::vector<std::pair<FillStyle, char const *>> EnumNames<FillStyle>::entries();
template <>
std::vector<std::pair<GLOX::Gradient::Type, char const *>> EnumNames<GLOX::Gradient::Type>::entries();
template <>
std::vector<std::pair<GLOX::Gradient::Spread, char const *>> EnumNames<GLOX::Gradient::Spread>::entries();
template <>
std::vector<std::pair<GLOX::Gradient::CoordinateMode, char const *>>
EnumNames<GLOX::Gradient::CoordinateMode>::entries();

// A font's weight and style as the script names them; the font itself keeps
// them as its bold and italic flags.
enum class FontWeight { Normal, Bold };
enum class FontStyle { Normal, Italic };
template <>
std::vector<std::pair<FontWeight, char const *>> EnumNames<FontWeight>::entries();
template <>
std::vector<std::pair<FontStyle, char const *>> EnumNames<FontStyle>::entries();
template <>
std::vector<std::pair<CacheType, char const *>> EnumNames<CacheType>::entries();
template <>
std::vector<std::pair<LayoutConstraints, char const *>> EnumNames<LayoutConstraints>::entries();
template <>
std::vector<std::pair<AutoSizeMode, char const *>> EnumNames<AutoSizeMode>::entries();
template <>
std::vector<std::pair<GLOX::TextHAlign::Value, char const *>> EnumNames<GLOX::TextHAlign::Value>::entries();
template <>
std::vector<std::pair<GLOX::TextVAlign::Value, char const *>> EnumNames<GLOX::TextVAlign::Value>::entries();
// The standard cursors, by Qt's names without the word Cursor ("Arrow",
// "PointingHand", ...).
template <>
std::vector<std::pair<Qt::CursorShape, char const *>> EnumNames<Qt::CursorShape>::entries();
template <>
std::vector<std::pair<StrokeInsetType, char const *>> EnumNames<StrokeInsetType>::entries();
template <>
std::vector<std::pair<HorizontalAlignment, char const *>> EnumNames<HorizontalAlignment>::entries();
template <>
std::vector<std::pair<VerticalAlignment, char const *>> EnumNames<VerticalAlignment>::entries();

} // namespace VOR2::script
