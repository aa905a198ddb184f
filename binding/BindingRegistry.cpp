#include "binding/BindingRegistry.h"

#include "ClosedLinearPathNode"
#include "binding/ScriptError.h"

#include <cstring>

namespace VOR2::script {

BindingRegistry &BindingRegistry::instance()
{
    // Never destroyed: entries still alive when the process exits (a script
    // error left them unwrapped, or the host exits without clearing its
    // variables) would drop nodes after the library's own tables are gone.
    // So the retract hook, once installed, stays valid to the end too.
    static BindingRegistry *const registry = new BindingRegistry;
    static bool const hooked = [] {
        GLOX::Wrappable::setRetractHook([](GLOX::Wrappable const *w) { instance().retract(w); });
        return true;
    }();
    (void)hooked;
    return *registry;
}

BindingRegistry::~BindingRegistry() { GLOX::Wrappable::setRetractHook(nullptr); }

Binding *BindingRegistry::findByAddress(void const *address)
{
    auto it = m_byAddress.find(address);
    if (it == m_byAddress.end()) return nullptr;
    Binding &b = m_byId.at(it->second);
    // A node that died since keeps its entry for the script objects that
    // remain, but a new node at the same address is another object.
    if (!b.isLive()) {
        m_byAddress.erase(it);
        b.address = nullptr;
        return nullptr;
    }
    return &b;
}

Binding &BindingRegistry::add(void const *address, std::string const &className)
{
    std::uint64_t id = m_nextId++;
    Binding &b = m_byId[id];
    b.id = id;
    b.className = className;
    b.address = address;
    m_byAddress[address] = id;
    return b;
}

std::string BindingRegistry::scriptClassOf(Node const &node)
{
    if (!node.isValid()) return "VOR2.Node";
    char const *type = node.getFullyQualifiedTcosTypeName();
    if (std::strcmp(type, ClosedLinearPathNode::staticGetFullyQualifiedTcosTypeName()) == 0)
        return "VOR2.ClosedLinearPathNodes";
    return type;
}

Value BindingRegistry::announceNode(Node const &node)
{
    if (!node.isValid()) return Value::handle("VOR2.Node", 0);
    NodeImpl *impl = node.getImpl();
    Binding *b = findByAddress(impl);
    if (!b) {
        b = &add(impl, scriptClassOf(node));
        b->node = node;
    }
    ++b->scriptObjects;
    return Value::handle(b->className, b->id);
}

Value BindingRegistry::announceReferenced(Referenced *object, std::string const &className)
{
    if (!object) return Value::handle(className, 0);
    Binding *b = findByAddress(object);
    if (!b) {
        b = &add(object, className);
        b->referenced = GLOX::Holder<Referenced>(object);
    }
    ++b->scriptObjects;
    return Value::handle(b->className, b->id);
}

Value BindingRegistry::announceOwned(void *object, std::string const &className)
{
    if (!object) return Value::handle(className, 0);
    Binding *b = findByAddress(object);
    if (!b) {
        b = &add(object, className);
        b->owned = object;
    }
    ++b->scriptObjects;
    return Value::handle(b->className, b->id);
}

Value BindingRegistry::announceOwned(GLOX::Wrappable *object, std::string const &className)
{
    if (!object) return Value::handle(className, 0);
    Binding *b = findByAddress(object);
    if (!b) {
        b = &add(object, className);
        b->owned = object;
        b->wrappable = object;
        object->scriptAttached();
    }
    ++b->scriptObjects;
    return Value::handle(b->className, b->id);
}

Binding &BindingRegistry::find(std::uint64_t id)
{
    auto it = m_byId.find(id);
    if (it == m_byId.end()) raise("VOR2:InvalidObject", "The object this value referred to no longer exists");
    return it->second;
}

void BindingRegistry::release(std::uint64_t id)
{
    auto it = m_byId.find(id);
    if (it == m_byId.end() || --it->second.scriptObjects > 0) return;
    Binding dying = std::move(it->second);
    if (dying.address) m_byAddress.erase(dying.address);
    m_byId.erase(it);
    // The references go last, after the maps are consistent: dropping a node
    // or a scene may run code that announces other objects, and a Wrappable
    // told it has no script value left may end itself.
    if (dying.wrappable) dying.wrappable->scriptDetached();
}

void BindingRegistry::retract(void const *address)
{
    auto it = m_byAddress.find(address);
    if (it == m_byAddress.end()) return;
    Binding &b = m_byId.at(it->second);
    b.address = nullptr;
    b.owned = nullptr;
    b.wrappable = nullptr;
    b.referenced.reset();
    b.copied.reset();
    b.node = Node();
    m_byAddress.erase(it);
}

void BindingRegistry::clear()
{
    std::unordered_map<std::uint64_t, Binding> dying;
    dying.swap(m_byId);
    m_byAddress.clear();
}

} // namespace VOR2::script
