#include "binding/ObjectConvert.h"

namespace VOR2::script {

Value fromNode(Node const &node) { return BindingRegistry::instance().announceNode(node); }

Value fromNodes(GLOX::GList<Node> const &nodes)
{
    std::vector<Value> items;
    items.reserve(nodes.size());
    for (Node const &n : nodes) items.push_back(fromNode(n));
    return Value::cell(std::move(items));
}

Node toNode(Value const &v)
{
    if (v.isEmpty() && v.type() != Value::Type::Handle) return Node();
    if (v.type() != Value::Type::Handle) wrongType("VOR2.Node", v);
    if (v.id() == 0) return Node();
    Binding &b = BindingRegistry::instance().find(v.id());
    if (b.referenced || b.owned) wrongType("VOR2.Node", v);
    return b.node;
}

GLOX::GList<Node> toNodes(Value const &v)
{
    GLOX::GList<Node> nodes;
    if (v.type() == Value::Type::Cell) {
        for (Value const &item : v.items()) nodes.append(toNode(item));
    } else if (!v.isEmpty() || v.type() == Value::Type::Handle) {
        Node n = toNode(v);
        if (n.isValid()) nodes.append(n);
    }
    return nodes;
}

} // namespace VOR2::script
