#pragma once
// The enumerations the script border tells by name: one EnumNames
// specialisation each, declared here and listed in EnumTables.cpp, so that
// every class that converts one sees the same table.

#include "Alignment"
#include "EffectStroke"
#include "Stroke"
#include "binding/EnumNames.h"

namespace VOR2::script {

template <>
std::vector<std::pair<StrokeStyle, char const *>> EnumNames<StrokeStyle>::entries();
template <>
std::vector<std::pair<StrokeCapStyle, char const *>> EnumNames<StrokeCapStyle>::entries();
template <>
std::vector<std::pair<StrokeJoinStyle, char const *>> EnumNames<StrokeJoinStyle>::entries();
template <>
std::vector<std::pair<StrokeInsetType, char const *>> EnumNames<StrokeInsetType>::entries();
template <>
std::vector<std::pair<HorizontalAlignment, char const *>> EnumNames<HorizontalAlignment>::entries();
template <>
std::vector<std::pair<VerticalAlignment, char const *>> EnumNames<VerticalAlignment>::entries();

} // namespace VOR2::script
