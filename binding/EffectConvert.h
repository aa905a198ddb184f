#pragma once
// Effects and a node's effect list at the border.
//
// An effect is a counted object: fromEffect announces it under its most
// derived script class (VOR2.EffectGlow, ...; VOR2.Effect for a kind the
// package does not publish), and the registry entry holds one reference.
// A node holds its own reference on every effect bound to it, so an effect
// made by a script lives on in its node after the script's variables go.
//
// A node's effect list (VOR2.NodeEffects) has an entry of its own, keyed by
// the list's address and holding a reference on the list, not on the node:
// a variable on the list does not keep a removed node alive, and once the
// node has died the list's operations fail with the library's
// VOR2:EffectReferencesInvalidNode.

#include "Effect"
#include "Node"
#include "NodeEffects"
#include "binding/BindingRegistry.h"
#include "binding/ScriptValue.h"

namespace VOR2::script {

Value fromEffect(Effect *effect);
// The effect of a handle Value of the Effect family; null for the empty
// array. Throws "VOR2:WrongType" for anything else.
Effect *toEffect(Value const &v);

// The effect list of `node` (made on first demand); VOR2_InvalidNode for an
// empty node.
Value fromNodeEffects(Node const &node);
// The list behind a VOR2.NodeEffects receiver.
NodeEffects nodeEffectsOf(Binding &binding);

} // namespace VOR2::script
