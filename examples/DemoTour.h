#pragma once
// The demo's tour of the scene spine: prints what it does.

namespace demo {

void runTour();

} // namespace demo
