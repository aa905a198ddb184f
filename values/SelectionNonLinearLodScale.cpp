#include <SelectionNonLinearLodScale>

namespace VOR2 {

double SelectionNonLinearLodScale::scale(double x) const
{
    if (x > 1.0) {
        if (!(x < 4.0)) return 2.0 / x;
        return 1.0 / ((x - 1.0) / 3.0 + 1.0);
    }
    if (x > 0.5) return 1.0 / (0.5 + ((x - 0.25) / 0.75) * 0.5);
    return 0.5 / x;
}

GLOX::StringID SelectionNonLinearLodScale::name() const
{
    static GLOX::StringID const id("SelectionNonLinear");
    return id;
}

// In pixels, f * s is 0.5 up to s = 0.5, 1.5 s / (s + 0.5) (from 0.75 to 1)
// up to 1, 3 s / (s + 2) (from 1 to 2) up to 4 and 2 from there on; it
// never passes 2: f <= 2 / s, exact from s = 4 up.
LodReach SelectionNonLinearLodScale::reachBound() const
{
    return {0.0, 2.0};
}

LodScale const *SelectionNonLinearLodScale::instance()
{
    static SelectionNonLinearLodScale const s;
    return &s;
}

} // namespace VOR2
