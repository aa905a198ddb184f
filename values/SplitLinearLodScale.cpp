#include <SplitLinearLodScale>

#include <algorithm>

namespace VOR2 {

double SplitLinearLodScale::scale(double x) const
{
    if (!(x > 1.0)) return x; // NaN lands here and passes through
    double const t = 1.0 + (x + 1.0) / 11.0;
    return std::min(t, 2.0) / x;
}

GLOX::StringID SplitLinearLodScale::name() const
{
    static GLOX::StringID const id("SplitLinear");
    return id;
}

// In pixels, f * s is s^2 <= 1 up to s = 1, then min(1 + (s + 1) / 11, 2),
// which climbs to 2 at s = 10 and stays there: f <= 2 / s, exact from
// s = 10 up. The line through the middle piece, 1 / 11 + (12 / 11) / s, is
// also a bound but grows with the scene without limit when zoomed in.
LodReach SplitLinearLodScale::reachBound() const
{
    return {0.0, 2.0};
}

LodScale const *SplitLinearLodScale::instance()
{
    static SplitLinearLodScale const s;
    return &s;
}

} // namespace VOR2
