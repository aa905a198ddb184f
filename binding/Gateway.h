#pragma once
// VOR2::script::gateway: every call from the script host enters here, as an
// operation name and its arguments, all border Values. The host's compiled
// gateway only turns its own arrays into Values and back, and raises the
// errors; so everything else the border does is tested without the host.
//
//   new     class, args...              a new object of class (constructor
//                                       overload chosen by the arguments)
//   get     class, target, property     the property's value
//   set     class, target, property, v  handles: nothing; values: the new
//                                       state of the target
//   call    class, target, method, args...
//                                       handles: a cell, empty for a void
//                                       member, else {result}; values: a cell
//                                       {result} or, for a void member,
//                                       {[], newState}
//   static  class, method, args...      a cell as for call
//   release id                          a script object of entry id went
//   count                               the number of registry entries
//
// `class` is the script class that declares the member or one of its
// subclasses; `target` is a handle Value or a value object. Host thread
// only. Throws ScriptError, or the catalogue's Error from the library.

#include "binding/ScriptValue.h"

#include <string>
#include <vector>

namespace VOR2::script {

Value gateway(std::string const &op, std::vector<Value> const &args);

} // namespace VOR2::script
