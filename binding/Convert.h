#pragma once
// Conversions of the library's plain values to and from the script border's
// Value. Each to... function checks its input and throws ScriptError (or the
// catalogue's Error where the library has a code for it) without side
// effects; each from... function cannot fail.
//
//   Color      [r g b] or [r g b a], each 0..1          "Color:InvalidValue"
//   DRect      [x y width height]                       "DRect:InvalidValue"
//   DPoint     [x y]                                    "DPoint:InvalidValue"
//   DSize      [width height]                           "DSize:InvalidValue"
//   Transform  3x3, [m11 m21 dx; m12 m22 dy; m13 m23 m33], so that
//              T * [x; y; 1] maps a point                VOR2_Expected3By3
//   points     2xn (columns are points; wins for 2x2) or nx2  VOR2_Expected2By2
//   scalars    double, logical, int32, uint32, char      "VOR2:WrongType"

#include "binding/ScriptValue.h"

#include "GLOX/Color.h"
#include "GLOX/Containers.h"
#include "GLOX/GLPoint.h"
#include "GLOX/GLRect.h"
#include "GLOX/Size.h"
#include "GLOX/StringID.h"
#include "GLOX/Transform.h"

#include <string>
#include <vector>

namespace VOR2::script {

// Throws "VOR2:WrongType": "Expected <typeWord>, got <what v is>".
[[noreturn]] void wrongType(char const *typeWord, Value const &v);

double toDouble(Value const &v);
bool toBool(Value const &v);
std::int32_t toInt32(Value const &v);
std::uint32_t toUInt32(Value const &v);
std::string toString(Value const &v);
GLOX::StringID toStringID(Value const &v);
std::vector<double> toDoubles(Value const &v);

GLOX::Color toColor(Value const &v);
Value fromColor(GLOX::Color const &c);
GLOX::GLRect<double> toRect(Value const &v);
Value fromRect(GLOX::GLRect<double> const &r);
GLOX::GLPoint<double> toPoint(Value const &v);
Value fromPoint(GLOX::GLPoint<double> const &p);
GLOX::Size<double> toSize(Value const &v);
Value fromSize(GLOX::Size<double> const &s);
GLOX::Transform toTransform(Value const &v);
Value fromTransform(GLOX::Transform const &t);
GLOX::GList<GLOX::GLPoint<double>> toPoints(Value const &v);
// Points as a 2xn matrix, one column a point.
Value fromPoints(GLOX::GList<GLOX::GLPoint<double>> const &points);
Value fromStrings(GLOX::GList<GLOX::StringID> const &strings);

} // namespace VOR2::script
