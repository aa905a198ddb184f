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

LodScale const *ConstantInLodScale::instance()
{
    static ConstantInLodScale const s;
    return &s;
}

} // namespace VOR2
