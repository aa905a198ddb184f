#include "binding/ClassBuilder.h"

namespace VOR2::script {

char const *kindName(ClassKind kind)
{
    switch (kind) {
    case ClassKind::Value: return "value";
    case ClassKind::CopiedHandle: return "copied handle";
    case ClassKind::ReferencedHandle: return "referenced handle";
    case ClassKind::HostOwned: return "host-side owned";
    case ClassKind::Custom: return "custom";
    }
    return "?";
}

PropertyInfo const *ClassInfo::findProperty(std::string const &n) const
{
    for (auto const &p : properties)
        if (p.name == n) return &p;
    return nullptr;
}

MethodInfo const *ClassInfo::findMethod(std::string const &n) const
{
    for (auto const &m : methods)
        if (m.name == n) return &m;
    return nullptr;
}

ClassBuilder::ClassBuilder(std::string name, ClassKind kind, std::string superclass, std::string help)
{
    m_info.name = std::move(name);
    m_info.kind = kind;
    m_info.superclass = std::move(superclass);
    m_info.help = std::move(help);
}

ClassBuilder &ClassBuilder::constructor(std::string arguments, int arity, Call call, int minArgs)
{
    m_info.constructors.push_back(Overload{std::move(arguments), arity, minArgs, std::move(call)});
    return *this;
}

ClassBuilder &ClassBuilder::property(std::string name, std::string typeWord, std::string help, Getter get,
                                     Setter set)
{
    m_info.properties.push_back(
        PropertyInfo{std::move(name), std::move(typeWord), std::move(help), std::move(get), std::move(set)});
    return *this;
}

ClassBuilder &ClassBuilder::method(std::string name, std::string help, std::string libraryName)
{
    m_info.methods.push_back(MethodInfo{std::move(name), std::move(libraryName), std::move(help), false, {}});
    return *this;
}

ClassBuilder &ClassBuilder::staticMethod(std::string name, std::string help, std::string libraryName)
{
    method(std::move(name), std::move(help), std::move(libraryName));
    m_info.methods.back().isStatic = true;
    return *this;
}

ClassBuilder &ClassBuilder::overload(std::string arguments, int arity, Call call, int minArgs)
{
    m_info.methods.back().overloads.push_back(Overload{std::move(arguments), arity, minArgs, std::move(call)});
    return *this;
}

Value const &stateField(Value const &state, char const *name)
{
    Value const *v = state.field(name);
    if (!v) raise("VOR2:WrongType", std::string("A value's state lacks its field ") + name);
    return *v;
}

} // namespace VOR2::script
