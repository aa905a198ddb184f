#pragma once
// Calls through the script border's gateway as the host's class files make
// them, for the tests of the border without the host. The class named in
// each call is the target's own.
#include "binding/Gateway.h"

#include <vector>

namespace gatewaycalls {

using VOR2::script::Value;

inline Value str(char const *s) { return Value::string(s); }

// A new object of `cls`: a handle Value, or a value object.
inline Value make(char const *cls, std::vector<Value> args = {})
{
    args.insert(args.begin(), str(cls));
    return VOR2::script::gateway("new", args);
}

inline Value get(Value const &target, char const *property)
{
    return VOR2::script::gateway("get", {str(target.className().c_str()), target, str(property)});
}

// The cell a call answers: {result}, {} for a void member of a handle, or
// {[], newState} for a method that changes a value.
inline Value callCell(Value const &target, char const *method, std::vector<Value> args = {})
{
    args.insert(args.begin(), {str(target.className().c_str()), target, str(method)});
    return VOR2::script::gateway("call", args);
}

// The result of a call, or the empty Value for a void one.
inline Value callResult(Value const &target, char const *method, std::vector<Value> args = {})
{
    Value out = callCell(target, method, std::move(args));
    return out.items().empty() ? Value() : out.items().front();
}

} // namespace gatewaycalls
