#pragma once
// The package "VOR2": its classes in registration order, each built from its
// registration routine when first asked for.
//
// A routine registers itself from its own file:
//   static ClassRegistration registration("VOR2.RectNode", &cosRectNode);
// The order of the package is fixed here, not by the order of those files.

#include "binding/ClassInfo.h"

#include <string>
#include <vector>

namespace VOR2::script {

using ClassRoutine = ClassInfo (*)();

struct ClassRegistration {
    ClassRegistration(char const *name, ClassRoutine routine);
};

// The names of the published classes, in the package's order; classes whose
// routine is not linked in are left out.
std::vector<std::string> packageClassNames();

// The class named `name` ("VOR2.Node"), built on first use; throws
// "VOR2:UnknownClass" for a name the package does not have.
ClassInfo const &classInfo(std::string const &name);

// The property or method `member` of `name` or of its nearest superclass
// that has one; null when none has.
PropertyInfo const *findProperty(std::string const &name, std::string const &member);
MethodInfo const *findMethod(std::string const &name, std::string const &member);

} // namespace VOR2::script
