#pragma once
// Value objects inside other values and calls: a Stroke given to a node's
// draw style, a Fill read from one. The conversion is the class's own codec,
// so a nested value crosses the border exactly as a top-level one does.

#include "binding/Convert.h"
#include "binding/Package.h"
#include "binding/ScriptError.h"

#include <any>

namespace VOR2::script {

template <class T>
T toValueOf(Value const &v, char const *className)
{
    if (v.type() != Value::Type::ValueObject || v.className() != className) wrongType(className, v);
    return std::any_cast<T>(classInfo(className).codec.decode(v.state()));
}

template <class T>
Value fromValueOf(T const &t, char const *className)
{
    return Value::valueObject(className, classInfo(className).codec.encode(std::any(t)));
}

} // namespace VOR2::script
