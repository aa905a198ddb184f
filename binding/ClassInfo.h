#pragma once
// The class tables: each script class of the package is one ClassInfo, data
// from which the gateway dispatches calls and the generator writes the
// host's class files (properties with their type words, methods with their
// overloads, help texts). Registration routines (binding/classes/Cos*.cpp)
// fill them through ClassBuilder.
//
// Kinds:
//   Value            a plain value; a script value owns a copy, converted
//                    field by field at the border (ValueCodec)
//   CopiedHandle     the Node family, Cursor, Shape: the script object holds
//                    a handle; two script variables on one node see one node
//   ReferencedHandle counted library objects (Scene, Effect, Behavior, ...)
//   HostOwned        the library owns it (Viewer)
//   Custom           a small class of its own over a library object (Canvas,
//                    NodeEffects, Diagnostics)

#include "binding/ScriptValue.h"

#include <any>
#include <functional>
#include <string>
#include <vector>

namespace VOR2::script {

class Self;
using Args = std::vector<Value>;

enum class ClassKind { Value, CopiedHandle, ReferencedHandle, HostOwned, Custom };
char const *kindName(ClassKind kind);

struct PropertyInfo {
    std::string name;
    std::string typeWord;
    std::string help;
    std::function<Value(Self &)> get;
    // Empty for a read-only property.
    std::function<void(Self &, Value const &)> set;
    bool readOnly() const { return !set; }
};

// One argument list of a method or constructor. `arity` is its exact number
// of arguments, or -1 for any number from `minArgs` up.
struct Overload {
    std::string arguments; // "degrees, point", for help and messages
    int arity = 0;
    int minArgs = 0;
    // For a void library member the result is the empty Value.
    std::function<Value(Self &, Args const &)> call;
    bool accepts(std::size_t n) const { return arity < 0 ? int(n) >= minArgs : int(n) == arity; }
};

struct MethodInfo {
    std::string name;
    std::string libraryName; // the member it calls when the name differs
    std::string help;
    bool isStatic = false;
    std::vector<Overload> overloads;
};

// Value kinds: how a T crosses the border. The state is a Struct of fields.
struct ValueCodec {
    std::function<std::any()> make;
    std::function<std::any(Value const &state)> decode;
    std::function<Value(std::any const &)> encode;
};

struct ClassInfo {
    std::string name;
    ClassKind kind = ClassKind::ReferencedHandle;
    std::string superclass; // full script name, empty for none
    std::string help;
    std::vector<Overload> constructors; // none: not constructible from script
    std::vector<PropertyInfo> properties;
    std::vector<MethodInfo> methods;
    ValueCodec codec;

    PropertyInfo const *findProperty(std::string const &n) const;
    MethodInfo const *findMethod(std::string const &n) const;
};

} // namespace VOR2::script
