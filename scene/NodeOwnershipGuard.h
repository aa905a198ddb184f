#pragma once
// NodeOwnershipGuard: the one place where a node's attached reference is
// taken and dropped. An attached node (one with a scene or a parent item)
// holds one reference on itself. Wrap any change of scene or parent in a
// guard: when the outermost guard on a node ends, it compares attachment
// before and after and adds or drops that reference. Nested guards on the
// same node have no effect of their own, so a move between scenes never
// passes through a count of zero. Host thread only.

namespace VOR2 {

class NodeImpl;

class NodeOwnershipGuard {
public:
    explicit NodeOwnershipGuard(NodeImpl *node);
    ~NodeOwnershipGuard();
    NodeOwnershipGuard(NodeOwnershipGuard const &) = delete;
    NodeOwnershipGuard &operator=(NodeOwnershipGuard const &) = delete;

private:
    NodeImpl *m_node;
    bool m_nested;
    bool m_wasAttached;
};

} // namespace VOR2
