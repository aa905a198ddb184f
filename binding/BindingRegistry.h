#pragma once
// VOR2::script::BindingRegistry: the script host's view of library objects.
// Each library object that script values refer to has one entry, found by
// the object's address and named by an id; every script object of that
// library object carries the id. Whoever fetches the object, however often,
// meets the same entry, and the entry holds the one reference the script
// side has on the object:
//
//   copied handles (the Node family)  a Node handle: the node lives while its
//                                     scene, a parent or the entry holds it;
//                                     once removed, every call on the entry
//                                     fails with VOR2_InvalidNode
//   referenced objects (Scene, Effect a counted reference
//   and its kinds, Behavior, ...)
//   host-owned objects (Viewer)       only a pointer: the library owns it and
//                                     retracts it when it goes first
//   copied values (Shape, Cursor)     the entry owns its own copy, shared by
//                                     the script objects of that entry: every
//                                     fetch from the library makes a new one
//   wrappable objects (Viewer,        a pointer, as host-owned ones; the
//   GLCanvas)                         object hears when its first script
//                                     value appears and its last one goes
//                                     (GLOX::Wrappable), and retracts itself
//                                     through the hook the registry installs
//
// The entry counts its live script objects: announce adds one (the gateway
// makes a script object for every handle Value it hands out), release takes
// one away, and the last release drops the reference and the entry.
// retract(address) is the library's notice that an object died first: its
// entry stays for the script objects still around, but refers to nothing,
// and the next call through it fails.
//
// Host thread only; counts are plain.

#include "Node"
#include "binding/ScriptValue.h"

#include "GLOX/Holder.h"
#include "GLOX/ReferencedTemplate.h"
#include "GLOX/Wrappable.h"

#include <any>
#include <cstdint>
#include <memory>
#include <functional>
#include <string>
#include <unordered_map>

namespace VOR2::script {

using Referenced = GLOX::ReferencedTemplate<unsigned int>;

struct Binding {
    std::uint64_t id = 0;
    std::string className;
    void const *address = nullptr;
    Node node;
    GLOX::Holder<Referenced> referenced;
    void *owned = nullptr;
    // A std::shared_ptr<T> for a copied value; empty otherwise.
    std::any copied;
    // Set with owned for a Wrappable; owned is then its address.
    GLOX::Wrappable *wrappable = nullptr;
    int scriptObjects = 0;
    bool isLive() const { return node.isValid() || referenced || owned || copied.has_value(); }
};

class BindingRegistry {
public:
    static BindingRegistry &instance();
    // Removes the retract hook: a Wrappable that dies later tells nobody.
    ~BindingRegistry();

    // A handle Value for `node`, of the script class of its kind; the empty
    // array of "VOR2.Node" for an empty handle.
    Value announceNode(Node const &node);
    // The script class of a node's kind: its type name, except that the
    // closed linear path is published as "VOR2.ClosedLinearPathNodes", with
    // a final s (deliberate: the published name and the library's type name
    // differ); "VOR2.Node" for an empty handle.
    static std::string scriptClassOf(Node const &node);
    // A handle Value on a new entry that owns `value`: a copied handle, one
    // entry per call.
    template <class T>
    Value announceCopied(T value, std::string const &className)
    {
        auto owned = std::make_shared<T>(std::move(value));
        Binding &b = add(owned.get(), className);
        b.copied = owned;
        ++b.scriptObjects;
        return Value::handle(b.className, b.id);
    }
    // A handle Value for a counted object; `className` is its script class.
    // A null pointer gives the empty array of that class.
    Value announceReferenced(Referenced *object, std::string const &className);
    // A handle Value for an object the library owns (no reference taken).
    Value announceOwned(void *object, std::string const &className);
    // The same for a Wrappable: it hears scriptAttached when its entry is
    // made and scriptDetached when the entry goes, and a Wrappable that dies
    // first retracts itself. Its script class's methods reach it through
    // Self::object<T>(), by dynamic_cast.
    Value announceOwned(GLOX::Wrappable *object, std::string const &className);

    // The entry of a live id, or throws "VOR2:InvalidObject" for an id that
    // has no entry (a script value outliving the registry's reset).
    Binding &find(std::uint64_t id);
    void release(std::uint64_t id);
    void retract(void const *address);

    std::size_t size() const { return m_byId.size(); }
    // True when the object at `address` has a live entry.
    bool contains(void const *address) const { return m_byAddress.count(address) != 0; }

    // Test hook: drops every entry and its references.
    void clear();

private:
    Binding *findByAddress(void const *address);
    Binding &add(void const *address, std::string const &className);

    std::uint64_t m_nextId = 1;
    std::unordered_map<std::uint64_t, Binding> m_byId;
    std::unordered_map<void const *, std::uint64_t> m_byAddress;
};

} // namespace VOR2::script
