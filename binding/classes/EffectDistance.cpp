#include "binding/classes/EffectDistance.h"

#include "EffectGlow"
#include "binding/Convert.h"

#include <cmath>

namespace VOR2::script {

namespace {

GLOX::GLPoint<int> toDistance(Value const &v)
{
    GLOX::GLPoint<double> p = toPoint(v);
    for (double d : {p.x, p.y})
        if (!(std::fabs(d) < 2147483647.0))
            raise("DPoint:InvalidValue", "DPoint requires exactly two doubles. Ex: rect = [1.0, 2.3]");
    return GLOX::GLPoint<int>(int(std::lround(p.x)), int(std::lround(p.y)));
}

} // namespace

void addDistanceProperty(ClassBuilder &c, std::string const &help)
{
    c.property(
        "Distance", "double vector", help,
        [](Self &s) {
            GLOX::GLPoint<int> const &d = s.object<EffectGlow>()->getDistance();
            return fromPoint(GLOX::GLPoint<double>(d.x, d.y));
        },
        [](Self &s, Value const &v) {
            GLOX::GLPoint<int> d = toDistance(v);
            s.object<EffectGlow>()->setDistance(d);
        });
}

} // namespace VOR2::script
