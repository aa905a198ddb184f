#include "binding/Gateway.h"

#include "binding/BindingRegistry.h"
#include "binding/Convert.h"
#include "binding/Package.h"
#include "binding/ScriptError.h"
#include "binding/Self.h"

#include <optional>

namespace VOR2::script {

namespace {

std::string signatureList(std::string const &name, std::vector<Overload> const &overloads)
{
    std::string list;
    for (Overload const &o : overloads) list += (list.empty() ? "" : " or ") + name + "(" + o.arguments + ")";
    return list;
}

// Tries the overloads that take this many arguments, in order; a conversion
// failure moves on to the next, and the first failure is reported when none
// takes them.
Value choose(std::string const &name, std::vector<Overload> const &overloads, Self &self, Args const &args)
{
    std::optional<ScriptError> first;
    for (Overload const &o : overloads) {
        if (!o.accepts(args.size())) continue;
        try {
            return o.call(self, args);
        } catch (ScriptError const &e) {
            if (!first) first = e;
        }
    }
    if (first) throw *first;
    if (overloads.empty()) raise("VOR2:NotConstructible", name + " cannot be made from a script");
    raise("VOR2:WrongArgumentCount", name + " takes " + signatureList(name, overloads) + ", not " +
                                         std::to_string(args.size()) + " argument(s)");
}

std::string const &stringArg(std::vector<Value> const &args, std::size_t i, char const *what)
{
    if (i >= args.size() || args[i].type() != Value::Type::Char)
        raise("VOR2:WrongType", std::string("The gateway expects ") + what);
    return args[i].text();
}

// Runs `use` on the receiver that `target` names, and gives back the new
// state for a value object (else the empty Value).
template <class F>
Value withTarget(ClassInfo const &, Value const &target, F &&use)
{
    if (target.type() == Value::Type::ValueObject) {
        ClassInfo const &actual = classInfo(target.className());
        std::any value = actual.codec.decode(target.state());
        Self self(&value);
        use(self);
        return actual.codec.encode(value);
    }
    if (target.type() != Value::Type::Handle || target.id() == 0)
        raise("TARVO:tcos_factory:null_self", "Attempt to call a method on an empty value");
    Self self(&BindingRegistry::instance().find(target.id()));
    use(self);
    return Value();
}

Value opNew(std::vector<Value> const &args)
{
    ClassInfo const &info = classInfo(stringArg(args, 0, "a class name"));
    Args rest(args.begin() + 1, args.end());
    if (info.kind == ClassKind::Value && rest.empty())
        return Value::valueObject(info.name, info.codec.encode(info.codec.make()));
    Self none;
    return choose(info.name, info.constructors, none, rest);
}

Value opGet(std::vector<Value> const &args)
{
    std::string const &cls = stringArg(args, 0, "a class name");
    std::string const &name = stringArg(args, 2, "a property name");
    PropertyInfo const *p = findProperty(cls, name);
    if (!p || args.size() != 3) raise("VOR2:UnknownMember", cls + " has no property " + name);
    Value result;
    withTarget(classInfo(cls), args[1], [&](Self &self) { result = p->get(self); });
    return result;
}

Value opSet(std::vector<Value> const &args)
{
    std::string const &cls = stringArg(args, 0, "a class name");
    std::string const &name = stringArg(args, 2, "a property name");
    PropertyInfo const *p = findProperty(cls, name);
    if (!p || args.size() != 4) raise("VOR2:UnknownMember", cls + " has no property " + name);
    if (p->readOnly()) raise("VOR2:ReadOnly", "The property " + name + " of " + cls + " is read-only");
    return withTarget(classInfo(cls), args[1], [&](Self &self) { p->set(self, args[3]); });
}

Value opCall(std::vector<Value> const &args)
{
    std::string const &cls = stringArg(args, 0, "a class name");
    std::string const &name = stringArg(args, 2, "a method name");
    MethodInfo const *m = findMethod(cls, name);
    if (!m || m->isStatic) raise("VOR2:UnknownMember", cls + " has no method " + name);
    Args rest(args.begin() + 3, args.end());
    Value result;
    Value state = withTarget(classInfo(cls), args[1], [&](Self &self) { result = choose(name, m->overloads, self, rest); });
    std::vector<Value> out;
    if (result.type() != Value::Type::Empty) out.push_back(result);
    else if (state.type() == Value::Type::Struct) out = {Value(), state};
    return Value::cell(std::move(out));
}

Value opStatic(std::vector<Value> const &args)
{
    std::string const &cls = stringArg(args, 0, "a class name");
    std::string const &name = stringArg(args, 1, "a method name");
    MethodInfo const *m = findMethod(cls, name);
    if (!m || !m->isStatic) raise("VOR2:UnknownMember", cls + " has no static method " + name);
    Self none;
    Value result = choose(name, m->overloads, none, Args(args.begin() + 2, args.end()));
    std::vector<Value> out;
    if (result.type() != Value::Type::Empty) out.push_back(result);
    return Value::cell(std::move(out));
}

} // namespace

Value gateway(std::string const &op, std::vector<Value> const &args)
{
    if (op == "new") return opNew(args);
    if (op == "get") return opGet(args);
    if (op == "set") return opSet(args);
    if (op == "call") return opCall(args);
    if (op == "static") return opStatic(args);
    if (op == "release") {
        if (args.size() == 1 && args[0].isNumeric() && args[0].numel() == 1)
            BindingRegistry::instance().release(std::uint64_t(args[0].numbers()[0]));
        return Value();
    }
    if (op == "count") return Value::scalar(double(BindingRegistry::instance().size()));
    raise("VOR2:UnknownOperation", "The gateway has no operation " + op);
}

} // namespace VOR2::script
