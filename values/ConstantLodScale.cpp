#include <ConstantLodScale>

namespace VOR2 {

double ConstantLodScale::scale(double x) const
{
    return 1.0 / x;
}

GLOX::StringID ConstantLodScale::name() const
{
    static GLOX::StringID const id("Constant");
    return id;
}

// f = 1 / s is a constant on-screen size: (0, 1), exact everywhere.
LodReach ConstantLodScale::reachBound() const
{
    return {0.0, 1.0};
}

LodScale const *ConstantLodScale::instance()
{
    static ConstantLodScale const s;
    return &s;
}

} // namespace VOR2
