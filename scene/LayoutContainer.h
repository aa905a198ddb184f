#pragma once
// LayoutContainer: a node that arranges its children. Layout runs after a
// geometry change of the node, when a child is added and when the node
// gets a new parent. A plain node has nothing to arrange; containers
// override layoutContents.

namespace VOR2 {

class LayoutContainer {
public:
    virtual ~LayoutContainer() = default;
    // Arranges the children. Called on the scene's thread; must not change
    // the node's own geometry in a way that reports a change again.
    virtual void layoutContents() {}
};

} // namespace VOR2
