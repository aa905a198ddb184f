#include <ConstantInLodScale>

namespace VOR2 {

double ConstantInLodScale::scale(double x) const
{
    return x < 1.0 ? 1.0 : 1.0 / x;
}

GLOX::StringID ConstantInLodScale::name() const
{
    static GLOX::StringID const id("ConstantIn");
    return id;
}

// f = min(1, 1 / s) <= 1 / s: exact from s = 1 up. Below 1 it is one pixel
// where f is s pixels; (1, 0) would instead cost s pixels when zoomed in,
// without limit.
LodReach ConstantInLodScale::reachBound() const
{
    return {0.0, 1.0};
}

LodScale const *ConstantInLodScale::instance()
{
    static ConstantInLodScale const s;
    return &s;
}

} // namespace VOR2
