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

LodScale const *SplitLinearLodScale::instance()
{
    static SplitLinearLodScale const s;
    return &s;
}

} // namespace VOR2
