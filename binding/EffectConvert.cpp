#include "binding/EffectConvert.h"

#include "binding/ObjectConvert.h"
#include "binding/Package.h"
#include "effects/NodeEffectsImpl.h"

#include <algorithm>

namespace VOR2::script {

namespace {

// The script class of an effect: its own type name when the package
// publishes that class, else the nearest one that is (the base).
std::string scriptClassOf(Effect const &effect)
{
    static std::vector<std::string> const names = packageClassNames();
    std::string name = effect.getFullyQualifiedTcosTypeName();
    return std::find(names.begin(), names.end(), name) != names.end() ? name : "VOR2.Effect";
}

} // namespace

Value fromEffect(Effect *effect)
{
    if (!effect) return Value::handle("VOR2.Effect", 0);
    return BindingRegistry::instance().announceReferenced(effect, scriptClassOf(*effect));
}

Effect *toEffect(Value const &v) { return toObject<Effect>(v, "VOR2.Effect"); }

Value fromNodeEffects(Node const &node)
{
    NodeEffects effects = node.getEffects();
    NodeEffectsImplBase *list = effects.getImpl();
    return BindingRegistry::instance().announceReferenced(list, NodeEffects::getFullyQualifiedTcosTypeName());
}

NodeEffects nodeEffectsOf(Binding &binding)
{
    auto *list = dynamic_cast<NodeEffectsImpl *>(binding.referenced.get());
    if (!list) raise("VOR2:InvalidObject", "The object this value referred to no longer exists");
    return NodeEffects(list);
}

} // namespace VOR2::script
