#pragma once
// ClassBuilder: how a registration routine writes its class table entry.
//
//   ClassBuilder c("VOR2.RectNode", ClassKind::CopiedHandle, "VOR2.Node", "A rectangle.");
//   c.constructor("rect", 1, [](Self &, Args const &a) { ... });
//   c.property("Rect", "double vector", "The rectangle [x y width height].", getter, setter);
//   c.method("rotateDegrees", "Turns the node about its origin.")
//    .overload("degrees", 1, [](Self &s, Args const &a) { ...; return Value(); });
//   return c.build();
//
// An overload must convert every argument before it changes anything, so
// that a bad argument (a ScriptError) leaves the library as it was and the
// gateway may try the next overload of the same arity.

#include "binding/ClassInfo.h"
#include "binding/Self.h"

namespace VOR2::script {

class ClassBuilder {
public:
    using Call = std::function<Value(Self &, Args const &)>;
    using Getter = std::function<Value(Self &)>;
    using Setter = std::function<void(Self &, Value const &)>;

    ClassBuilder(std::string name, ClassKind kind, std::string superclass, std::string help);

    // arity -1: minArgs or more, as for overload().
    ClassBuilder &constructor(std::string arguments, int arity, Call call, int minArgs = 0);
    ClassBuilder &property(std::string name, std::string typeWord, std::string help, Getter get, Setter set = {});
    // Starts a method; overload() adds its argument lists.
    ClassBuilder &method(std::string name, std::string help, std::string libraryName = {});
    ClassBuilder &staticMethod(std::string name, std::string help, std::string libraryName = {});
    // Adds an argument list to the last method. arity -1: minArgs or more.
    ClassBuilder &overload(std::string arguments, int arity, Call call, int minArgs = 0);

    template <class T>
    ClassBuilder &valueCodec(std::function<Value(T const &)> encode, std::function<T(Value const &)> decode)
    {
        m_info.codec.make = [] { return std::any(T()); };
        m_info.codec.encode = [encode](std::any const &a) { return encode(std::any_cast<T const &>(a)); };
        m_info.codec.decode = [decode](Value const &state) { return std::any(decode(state)); };
        return *this;
    }

    ClassInfo build() { return std::move(m_info); }

private:
    ClassInfo m_info;
};

// The field `name` of a value object's state, or throws "VOR2:WrongType".
Value const &stateField(Value const &state, char const *name);

} // namespace VOR2::script
