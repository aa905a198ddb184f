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

LodScale const *ConstantLodScale::instance()
{
    static ConstantLodScale const s;
    return &s;
}

} // namespace VOR2
