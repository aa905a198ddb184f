#pragma once
// The Distance property of the glow kinds that publish it: the offset
// [dx dy] of the halo or shadow in logical units before scaling. The
// library keeps whole units, so a script's numbers are rounded to the
// nearest; a number that is not finite or lies beyond the int range is
// refused ("DPoint:InvalidValue") and changes nothing.

#include "binding/ClassBuilder.h"

namespace VOR2::script {

void addDistanceProperty(ClassBuilder &c, std::string const &help);

} // namespace VOR2::script
