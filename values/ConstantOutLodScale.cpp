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

LodScale const *ConstantOutLodScale::instance()
{
    static ConstantOutLodScale const s;
    return &s;
}

} // namespace VOR2
