#pragma once
// The marquee's selection rule, run in full at every move of the band,
// over any kind of item so that it can be tried on its own. `Model` tells
// and changes the state of an item:
//   bool isSelected(N), bool isSelectable(N), bool accepts(N) (the tool's
//   own test for an item under the band), void setSelected(N, bool).
//
// 1. Each item of `selected` (the selection now) that is neither under the
//    band (`hit`) nor in `initial` (the selection when the drag began) is
//    deselected: the band picked it up earlier and has left it.
// 2. Each item of `hit` that the model accepts is selected, unless it is
//    selected already or belongs to `initial`. One it refuses is
//    deselected when it is selectable and selected, even if it belongs to
//    `initial`.
// So members of `initial` stay selected unless refused, and what the band
// covers ends up selected. Membership is searched from the end of each
// list. Lists are taken by value: step 1 changes the selection they were
// read from.

#include "GLOX/Containers.h"

namespace VOR2 {

template <typename N, typename Model>
void applyMarqueeRule(GLOX::GList<N> const selected, GLOX::GList<N> const hit, GLOX::GList<N> const &initial,
                      Model &model)
{
    auto holds = [](GLOX::GList<N> const &list, N const &item) { return list.lastIndexOf(item) >= 0; };
    for (N const &item : selected)
        if (!holds(hit, item) && !holds(initial, item)) model.setSelected(item, !model.isSelected(item));
    for (N const &item : hit) {
        if (model.accepts(item)) {
            if (!model.isSelected(item) && !holds(initial, item)) model.setSelected(item, true);
        } else if (model.isSelectable(item) && model.isSelected(item)) {
            model.setSelected(item, false);
        }
    }
}

} // namespace VOR2
