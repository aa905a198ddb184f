#pragma once
// LayoutItem: the side of a node that a parent's layout arranges. A plain
// node carries no layout constraints; containers and their children add
// them.

namespace VOR2 {

class LayoutItem {
public:
    virtual ~LayoutItem() = default;
};

} // namespace VOR2
