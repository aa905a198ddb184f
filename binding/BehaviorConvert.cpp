#include "binding/BehaviorConvert.h"

#include "binding/ObjectConvert.h"
#include "binding/Package.h"

#include <algorithm>

namespace VOR2::script {

Value fromBehavior(Behavior *behavior)
{
    if (!behavior) return Value::handle("VOR2.Behavior", 0);
    static std::vector<std::string> const names = packageClassNames();
    std::string name = behavior->getFullyQualifiedTcosTypeName();
    if (std::find(names.begin(), names.end(), name) == names.end()) name = "VOR2.Behavior";
    return BindingRegistry::instance().announceReferenced(behavior, name);
}

Behavior *toBehavior(Value const &v) { return toObject<Behavior>(v, "VOR2.Behavior"); }

} // namespace VOR2::script
