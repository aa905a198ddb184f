#include <LodScale>

#include <ConstantInLodScale>
#include <ConstantLodScale>
#include <ConstantOutLodScale>
#include <SelectionNonLinearLodScale>
#include <SplitLinearLodScale>

namespace VOR2 {

double LodScale::scale(double) const
{
    return 1.0;
}

GLOX::StringID LodScale::name() const
{
    static GLOX::StringID const id("None");
    return id;
}

// f = 1 grows with the scene alone: (1, 0), exact everywhere.
LodReach LodScale::reachBound() const
{
    return {1.0, 0.0};
}

LodScale const *LodScale::instance()
{
    static LodScale const s;
    return &s;
}

LodScale const *LodScale::byName(GLOX::StringID const &name)
{
    LodScale const *const all[] = {
        LodScale::instance(),          ConstantLodScale::instance(),
        SplitLinearLodScale::instance(), ConstantOutLodScale::instance(),
        ConstantInLodScale::instance(), SelectionNonLinearLodScale::instance(),
    };
    for (LodScale const *s : all)
        if (s->name() == name) return s;
    return nullptr;
}

} // namespace VOR2
