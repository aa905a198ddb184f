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

LodScale const *SelectionNonLinearLodScale::instance()
{
    static SelectionNonLinearLodScale const s;
    return &s;
}

} // namespace VOR2
