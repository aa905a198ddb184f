#include "GLOX/Wrappable.h"

namespace GLOX {

namespace {
Wrappable::RetractHook s_retractHook = nullptr;
} // namespace

Wrappable::~Wrappable()
{
    if (s_retractHook) s_retractHook(this);
}

void Wrappable::setRetractHook(RetractHook hook) { s_retractHook = hook; }

} // namespace GLOX
