#include <ConstantOutLodScale>

namespace VOR2 {

double ConstantOutLodScale::scale(double x) const
{
    return x > 1.0 ? 1.0 : 1.0 / x;
}

GLOX::StringID ConstantOutLodScale::name() const
{
    static GLOX::StringID const id("ConstantOut");
    return id;
}

// f = max(1, 1 / s), so f <= 1 + 1 / s. Neither part can be smaller: f
// tends to 1 as s grows and to 1 / s as s falls, where the bound is exact
// in the limit; at s = 1 it is twice the factor.
LodReach ConstantOutLodScale::reachBound() const
{
    return {1.0, 1.0};
}

LodScale const *ConstantOutLodScale::instance()
{
    static ConstantOutLodScale const s;
    return &s;
}

} // namespace VOR2
