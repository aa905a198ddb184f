#pragma once
// The drag threshold of the selection tool, in whole widget pixels: a
// pointer has left its press once the distance between the two positions,
// each truncated to integers, is at least DRAG_THRESHOLD_PIXELS after its
// square root is truncated too. So (2, 0) and (2, 2) are far enough and
// (1, 1), at 1.41, is not. Pure; any thread.

#include "GLOX/GLPoint.h"

namespace VOR2 {

constexpr int DRAG_THRESHOLD_PIXELS = 2;

bool hasLeftPress(GLOX::GLPoint<double> const &press, GLOX::GLPoint<double> const &now);

} // namespace VOR2
