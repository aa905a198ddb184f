#pragma once
// CurvedPathNodeImpl: the element shared by the open and closed curved
// paths, a plain Qt item holding the vertices (positions with tangents) in
// the node's own coordinates. The two forms build the curve and draw.
//
// Index checks come first: an index outside [0, count) throws
// VOR2_InvalidCurveIndex and changes nothing. A vertex, point or factor
// holding a NaN, an infinity or a number beyond 1e128, or an edit whose
// result would, changes nothing and reports nothing.
//
// Deliberate differences from the linear paths:
// - scale takes any factor, a negative one mirrors the path; a factor
//   within machine epsilon of 1 changes and reports nothing, as does a
//   translation of squared length within epsilon;
// - the mutators report the geometry change themselves and do not go
//   through an open path's decorations: after editing an open path, call
//   updateDecorations to move them;
// - setVertexPosition, setVertexForwardTangent, setVertexBackwardTangent
//   and the writable vertex() only store: no report and no cache drop, so
//   a batch of them shows after the next reporting mutator or
//   updateDecorations.

#include <Vertex>

#include "GLOX/Containers.h"
#include "scene/TypedNodeImpl.h"

namespace VOR2 {

class CurvedPathNodeImpl : public TypedNodeImpl<QGraphicsItem> {
public:
    static char const *const TYPE_NAME;

    bool isa(char const *typeName) const override;

    GLOX::GVector<Vertex> const &vertices() const { return m_vertices; }
    int numberOfVertices() const { return m_vertices.size(); }
    // The vertex at `index`; both throw for an index out of range. The
    // writable one detaches the vertices first and reports nothing when
    // written through.
    Vertex const &vertex(int index) const;
    Vertex &vertex(int index);

    void append(Vertex const &v);
    void setVertices(GLOX::GVector<Vertex> const &vertices);
    void setVertex(int index, Vertex const &v);
    // Multiplies positions and tangents by `s`.
    void scale(double s);
    // Adds `d` to every position; tangents are relative and stay.
    void translate(QPointF const &d);

    // Store only, see above.
    void setVertexPosition(int index, GLOX::GLPoint<double> const &p);
    void setVertexForwardTangent(int index, GLOX::GLPoint<double> const &t);
    void setVertexBackwardTangent(int index, GLOX::GLPoint<double> const &t);

    bool paintIgnoresPainterState() const override { return true; }

protected:
    // Stores `vertices` and reports, unless a vertex is not usable.
    void assign(GLOX::GVector<Vertex> const &vertices);

private:
    void checkIndex(int index) const;

    GLOX::GVector<Vertex> m_vertices;
};

// True when each point of `v` is usable.
bool isUsable(Vertex const &v);

} // namespace VOR2
