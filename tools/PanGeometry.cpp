#include "tools/PanGeometry.h"

namespace VOR2::PanGeometry {

Rect panBounds(Rect const &scene, Rect const &view)
{
    double const mx = MARGIN_SHARE * view.width;
    double const my = MARGIN_SHARE * view.height;
    return Rect(scene.x - mx, scene.y - my, scene.width + 2 * mx, scene.height + 2 * my);
}

double limitDelta(double delta, double lo, double hi, double minEdge, double maxEdge)
{
    if (minEdge > lo - delta) {
        if (minEdge <= lo) return lo - minEdge;
        return delta <= 0.0 ? delta : 0.0;
    }
    if (maxEdge < hi - delta) {
        if (maxEdge >= hi) return hi - maxEdge;
        return delta >= 0.0 ? delta : 0.0;
    }
    return delta;
}

PanStep limitPan(Point const &delta, Rect const &view, Rect const &bounds)
{
    PanStep step;
    step.delta.x = limitDelta(delta.x, view.left(), view.right(), bounds.left(), bounds.right());
    step.delta.y = limitDelta(delta.y, view.top(), view.bottom(), bounds.top(), bounds.bottom());
    step.hitX = step.delta.x != delta.x;
    step.hitY = step.delta.y != delta.y;
    return step;
}

} // namespace VOR2::PanGeometry
