#include <EffectShadow>
#include <SplitLinearLodScale>

namespace VOR2 {

EffectShadow::EffectShadow()
    : EffectGlow(GLOX::Color(0.0, 0.0, 0.0, 0.65), {2, 2}, 3, SplitLinearLodScale::instance())
{
}

bool EffectShadow::renderEffectLine(LineNodeImpl *, QPainter *, QStyleOptionGraphicsItem const *, QWidget *)
{
    return true;
}

GLOX::StringID EffectShadow::getEffectID() const
{
    static GLOX::StringID const id("Shadow");
    return id;
}

char const *EffectShadow::getFullyQualifiedTcosTypeName() const { return "VOR2.EffectShadow"; }

} // namespace VOR2
