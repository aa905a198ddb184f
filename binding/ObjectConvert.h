#pragma once
// Library objects at the border: a node, a list of nodes, a counted object.
// from... announces the object to the registry (one entry per object);
// to... finds it there. An empty array stands for no object.

#include "Node"
#include "binding/BindingRegistry.h"
#include "binding/ScriptError.h"
#include "binding/Convert.h"

#include "GLOX/Containers.h"

namespace VOR2::script {

Value fromNode(Node const &node);
Value fromNodes(GLOX::GList<Node> const &nodes);
// A node handle Value (any class of the Node family) or the empty array.
Node toNode(Value const &v);
// A cell of nodes, or one node.
GLOX::GList<Node> toNodes(Value const &v);

// The referenced or host-owned object of a handle Value, as a T; null for the
// empty array. Throws "VOR2:WrongType" naming `className` for anything else.
template <class T>
T *toObject(Value const &v, char const *className)
{
    if (v.isEmpty() && v.type() != Value::Type::Handle) return nullptr;
    if (v.type() != Value::Type::Handle) wrongType(className, v);
    if (v.id() == 0) return nullptr;
    Binding &b = BindingRegistry::instance().find(v.id());
    T *t = nullptr;
    if (b.referenced) t = dynamic_cast<T *>(b.referenced.get());
    else if (b.wrappable) t = dynamic_cast<T *>(b.wrappable);
    else if (b.owned) t = static_cast<T *>(b.owned);
    if (!t) wrongType(className, v);
    return t;
}

// A copy of the value a copied handle Value owns (a Shape, a Cursor).
// Throws "VOR2:WrongType" naming `className` for anything else, the empty
// array included.
template <class T>
T toCopied(Value const &v, char const *className)
{
    if (v.type() != Value::Type::Handle || v.id() == 0) wrongType(className, v);
    auto const *owned = std::any_cast<std::shared_ptr<T>>(&BindingRegistry::instance().find(v.id()).copied);
    if (!owned || !*owned) wrongType(className, v);
    return **owned;
}

} // namespace VOR2::script
