// VOR2.CurvedPathNode: the editing of smooth paths.
#include "CurvedPathNode"
#include "OpenCurvedPathNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"
#include "binding/VertexConvert.h"

namespace VOR2::script {

namespace {

// The library leaves an open curve's decorations where they were after an
// edit, for a caller that batches edits and then places them once; a script
// has no such call, so each edit from a script places them.
Value edited(CurvedPathNode const &path)
{
    OpenCurvedPathNode open(path.getImpl());
    if (open.isValid()) open.updateDecorations();
    return Value();
}

ClassInfo cosCurvedPathNode()
{
    ClassBuilder c("VOR2.CurvedPathNode", ClassKind::CopiedHandle, "VOR2.Node",
                   "The editing of smooth paths (VOR2.OpenCurvedPathNode, VOR2.ClosedCurvedPathNode). A vertex "
                   "is a VOR2.Vertex, or a point [x y] for one without tangents, in the node's coordinates; "
                   "vertices are numbered from 0, and an index outside them fails with VOR2:InvalidCurveIndex "
                   "and changes nothing.");
    c.method("append", "Adds the vertex at the end.").overload("vertex", 1, [](Self &s, Args const &a) {
        Vertex v = toVertex(a[0]);
        CurvedPathNode path = s.node<CurvedPathNode>();
        path.append(v);
        return edited(path);
    });
    c.method("setVertex", "Replaces the vertex of that index (from 0).")
        .overload("index, vertex", 2, [](Self &s, Args const &a) {
            int index = toInt32(a[0]);
            Vertex v = toVertex(a[1]);
            CurvedPathNode path = s.node<CurvedPathNode>();
            path.setVertex(index, v);
            return edited(path);
        });
    c.method("getVertex", "The vertex of that index (from 0), a VOR2.Vertex.")
        .overload("index", 1, [](Self &s, Args const &a) {
            int index = toInt32(a[0]);
            CurvedPathNode const path = s.node<CurvedPathNode>();
            return fromVertex(path.getVertex(index));
        });
    c.method("setVertices", "Replaces every vertex: a cell of vertices, or the points of a 2xn or nx2 array.")
        .overload("vertices", 1, [](Self &s, Args const &a) {
            auto vertices = toVertices(a[0]);
            CurvedPathNode path = s.node<CurvedPathNode>();
            path.setVertices(vertices);
            return edited(path);
        });
    c.method("getVertices", "Every vertex, a cell of VOR2.Vertex values.").overload("", 0, [](Self &s, Args const &) {
        return fromVertices(s.node<CurvedPathNode>().getVertices());
    });
    c.method("size", "The number of vertices.", "numberOfVertices").overload("", 0, [](Self &s, Args const &) {
        return Value::scalar(s.node<CurvedPathNode>().numberOfVertices());
    });
    c.method("scale",
             "scale(s) multiplies positions and tangents by s about the node's origin (a negative s mirrors "
             "the path); scale(sx, sy) scales the node's transform.")
        .overload("s", 1,
                  [](Self &s, Args const &a) {
                      double f = toDouble(a[0]);
                      CurvedPathNode path = s.node<CurvedPathNode>();
                      path.scale(f);
                      return edited(path);
                  })
        .overload("sx, sy", 2, [](Self &s, Args const &a) {
            double sx = toDouble(a[0]), sy = toDouble(a[1]);
            s.node<CurvedPathNode>().scale(sx, sy);
            return Value();
        });
    c.method("translate", "translate([dx dy]) moves every vertex; translate(dx, dy) moves the node's transform.")
        .overload("delta", 1,
                  [](Self &s, Args const &a) {
                      auto d = toPoint(a[0]);
                      CurvedPathNode path = s.node<CurvedPathNode>();
                      path.translate(d);
                      return edited(path);
                  })
        .overload("dx, dy", 2, [](Self &s, Args const &a) {
            double dx = toDouble(a[0]), dy = toDouble(a[1]);
            s.node<CurvedPathNode>().translate(dx, dy);
            return Value();
        });
    return c.build();
}

ClassRegistration registration("VOR2.CurvedPathNode", &cosCurvedPathNode);

} // namespace

} // namespace VOR2::script
