#pragma once
// The enumerations the script border tells by name: one EnumNames
// specialisation each, declared here and listed in EnumTables.cpp, so that
// every class that converts one sees the same table.

#include "AutoSizeMode"
#include "CacheType"
#include "LayoutConstraints"
#include "Stroke"

#include "GLOX/TextAlign.h"

#include <Qt>
#include "binding/EnumNames.h"

namespace VOR2::script {

template <>
std::vector<std::pair<StrokeStyle, char const *>> EnumNames<StrokeStyle>::entries();
template <>
std::vector<std::pair<StrokeCapStyle, char const *>> EnumNames<StrokeCapStyle>::entries();
template <>
std::vector<std::pair<StrokeJoinStyle, char const *>> EnumNames<StrokeJoinStyle>::entries();
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

} // namespace VOR2::script
