#pragma once
// Behaviours at the border: a counted object announced under its most
// derived script class (VOR2.ResizeBehavior, else VOR2.Behavior). The
// registry entry holds one reference; the behaviour's node holds its own.

#include "Behavior"
#include "binding/ScriptValue.h"

namespace VOR2::script {

Value fromBehavior(Behavior *behavior);
// The behaviour of a handle Value of the Behavior family; null for the
// empty array. Throws "VOR2:WrongType" for anything else.
Behavior *toBehavior(Value const &v);

} // namespace VOR2::script
