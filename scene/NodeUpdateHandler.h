#pragma once
// NodeUpdateHandler: receives a node's change reports. The scene is the
// default handler of its nodes; a composite that caches its subtree takes
// the reports of its descendants instead. Called on the scene's thread,
// synchronously, from within the setter that made the change.

namespace VOR2 {

class NodeImpl;

class NodeUpdateHandler {
public:
    virtual ~NodeUpdateHandler() = default;
    // The node looks different; its geometry is unchanged.
    virtual void nodeRepaintRequired(NodeImpl *node) = 0;
    // The node's bounds or outline changed.
    virtual void nodeGeometryChanged(NodeImpl *node) = 0;
    // The node's position changed; nothing inside it did.
    virtual void nodeMoved(NodeImpl *node) = 0;
};

} // namespace VOR2
