// VOR2.WeakRef: names a node without keeping it alive.
#include "WeakRef"
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"
#include "binding/classes/WeakRefKeys.h"

namespace VOR2::script {

namespace {

// The state is the node's weak key, not the node: a script value holding it
// must not keep the node alive, as a handle in the registry would.
Value encodeWeakRef(WeakRef const &w) { return Value::structure({{"Key", Value::scalar(double(weakRefKey(w)))}}); }

WeakRef decodeWeakRef(Value const &state)
{
    Value const &key = stateField(state, "Key");
    if (!key.isNumeric() || key.numel() != 1 || !(key.numbers()[0] >= 0)) wrongType("weak reference key", key);
    return weakRefOfKey(std::uint64_t(key.numbers()[0]));
}

ClassInfo cosWeakRef()
{
    ClassBuilder c("VOR2.WeakRef", ClassKind::Value, "",
                   "Names a node without keeping it alive: once the node is gone, isValid is false and promote "
                   "gives []. VOR2.WeakRef(node); VOR2.WeakRef() names nothing.");
    c.valueCodec<WeakRef>(&encodeWeakRef, &decodeWeakRef);
    c.constructor("node", 1, [](Self &, Args const &a) { return fromValueOf(WeakRef(toNode(a[0])), "VOR2.WeakRef"); });
    c.property("isValid", "logical scalar", "True while the node lives.",
               [](Self &s) { return Value::logical(s.value<WeakRef>().isValid()); });
    c.method("promote", "The node, as an object of its own class, or [] when it is gone.")
        .overload("", 0, [](Self &s, Args const &) { return fromNode(s.value<WeakRef>().promote()); });
    return c.build();
}

ClassRegistration registration("VOR2.WeakRef", &cosWeakRef);

} // namespace

} // namespace VOR2::script
