// VOR2.LinearPathNode: the editing of paths of straight segments.
#include "LinearPathNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

Value none() { return Value(); }

ClassInfo cosLinearPathNode()
{
    ClassBuilder c("VOR2.LinearPathNode", ClassKind::CopiedHandle, "VOR2.Node",
                   "The editing of paths of straight segments (VOR2.OpenLinearPathNode, "
                   "VOR2.ClosedLinearPathNodes). Points are [x y] in the node's coordinates and are numbered "
                   "from 0; an index outside the points fails with VOR2:InvalidLinearPathIndex and changes "
                   "nothing.");
    c.method("append", "Adds the point [x y] at the end.").overload("point", 1, [](Self &s, Args const &a) {
        auto p = toPoint(a[0]);
        s.node<LinearPathNode>().append(p);
        return none();
    });
    c.method("setPoint", "Moves the point of that index (from 0) to [x y].")
        .overload("index, point", 2, [](Self &s, Args const &a) {
            int index = toInt32(a[0]);
            auto p = toPoint(a[1]);
            s.node<LinearPathNode>().setPoint(index, p);
            return none();
        });
    c.method("getPoint", "The point [x y] of that index (from 0).").overload("index", 1, [](Self &s, Args const &a) {
        int index = toInt32(a[0]);
        return fromPoint(s.node<LinearPathNode>().getPoint(index));
    });
    c.method("setPoints", "Replaces every point: a 2xn array, one column a point, or an nx2 array.")
        .overload("points", 1, [](Self &s, Args const &a) {
            auto points = GLOX::GVector<GLOX::GLPoint<double>>::fromList(toPoints(a[0]));
            s.node<LinearPathNode>().setPoints(points);
            return none();
        });
    c.method("getPoints", "Every point, a 2xn array, one column a point.").overload("", 0, [](Self &s, Args const &) {
        return fromPoints(s.node<LinearPathNode>().getPoints().toList());
    });
    c.method("scale",
             "scale(s) multiplies every point by s about the node's origin (a negative s fails with "
             "VOR2:NegativeLinearPathScale); scale(sx, sy) scales the node's transform.")
        .overload("s", 1,
                  [](Self &s, Args const &a) {
                      double f = toDouble(a[0]);
                      s.node<LinearPathNode>().scale(f);
                      return none();
                  })
        .overload("sx, sy", 2, [](Self &s, Args const &a) {
            double sx = toDouble(a[0]), sy = toDouble(a[1]);
            s.node<LinearPathNode>().scale(sx, sy);
            return none();
        });
    c.method("translate", "translate([dx dy]) moves every point; translate(dx, dy) moves the node's transform.")
        .overload("delta", 1,
                  [](Self &s, Args const &a) {
                      auto d = toPoint(a[0]);
                      s.node<LinearPathNode>().translate(d);
                      return none();
                  })
        .overload("dx, dy", 2, [](Self &s, Args const &a) {
            double dx = toDouble(a[0]), dy = toDouble(a[1]);
            s.node<LinearPathNode>().translate(dx, dy);
            return none();
        });
    return c.build();
}

ClassRegistration registration("VOR2.LinearPathNode", &cosLinearPathNode);

} // namespace

} // namespace VOR2::script
