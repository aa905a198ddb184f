#pragma once
// The anchoring arithmetic of layout, apart from any node: where one item
// goes when its container's layout rectangle changes from `lastRect` to
// `rect`. Pure; any thread.
//
// The change in width is shared equally among the set flags of Left, Right
// and FlexibleWidth: FlexibleWidth adds its share to the width, Right adds
// its share to x, Left's share goes nowhere. So Left alone pins the left
// side, Right alone moves the item by the whole change, Left with Right
// moves it by half (it stays centred), Left with FlexibleWidth stretches it
// by half. Height likewise with Top, Bottom and FlexibleHeight.
//
// Deliberate: a container's first layout measures from the all-zero
// lastRect it starts with, so an item constrained before that moves or
// grows by the container's whole size.

#include "GLOX/GLRect.h"

#include <cstdint>

namespace VOR2 {

// The bit of the constraint mask for a LayoutConstraints value.
constexpr std::uint32_t layoutBit(int constraint) { return std::uint32_t(1) << constraint; }

// True when every field of `r` is exactly 0.
bool isAllZero(GLOX::GLRect<double> const &r);

// The item's new rectangle in its container's coordinates, from its current
// one `item`, its constraint mask and the container's rectangle now and at
// the last layout.
GLOX::GLRect<double> anchoredItemRect(std::uint32_t constraints, GLOX::GLRect<double> const &rect,
                                      GLOX::GLRect<double> const &lastRect, GLOX::GLRect<double> item);

} // namespace VOR2
