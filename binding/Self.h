#pragma once
// VOR2::script::Self: the receiver of a property access or method call at
// the border: a registry entry for the handle kinds, a decoded copy for the
// value kinds, nothing for static methods and constructors.

#include "Error"
#include "Node"
#include "binding/BindingRegistry.h"
#include "binding/ScriptError.h"

#include <any>

namespace VOR2::script {

class Self {
public:
    Self() = default;
    explicit Self(Binding *binding) : m_binding(binding) {}
    explicit Self(std::any *value) : m_value(value) {}

    Binding &binding() const
    {
        if (!m_binding) raise("VOR2:InvalidObject", "The method needs an object");
        return *m_binding;
    }

    // The node of a copied handle, as the handle class T (Node, RectNode,
    // ...). Throws VOR2_InvalidNode when the node is gone or is not a T.
    template <class T = Node>
    T node() const
    {
        T typed(binding().node.getImpl());
        if (!typed.isValid()) throwError(VOR2_InvalidNode);
        return typed;
    }

    // The object of a referenced or host-owned entry as a T; throws
    // "VOR2:InvalidObject" when it is gone or is not a T.
    template <class T>
    T *object() const
    {
        Binding &b = binding();
        T *t = nullptr;
        if (b.referenced) t = dynamic_cast<T *>(b.referenced.get());
        else if (b.wrappable) t = dynamic_cast<T *>(b.wrappable);
        else if (b.owned) t = static_cast<T *>(b.owned);
        if (!t) raise("VOR2:InvalidObject", "The object this value referred to no longer exists");
        return t;
    }

    // The value a copied handle entry owns (Shape, Cursor); changes through
    // it are seen by every script object of the entry. Throws
    // "VOR2:InvalidObject" when the entry holds no T.
    template <class T>
    T &copied() const
    {
        auto const *owned = std::any_cast<std::shared_ptr<T>>(&binding().copied);
        if (!owned || !*owned) raise("VOR2:InvalidObject", "The object this value referred to no longer exists");
        return **owned;
    }

    // The decoded copy of a value kind.
    template <class T>
    T &value() const
    {
        return std::any_cast<T &>(*m_value);
    }

private:
    Binding *m_binding = nullptr;
    std::any *m_value = nullptr;
};

} // namespace VOR2::script
