#include "nodes/CurveBuild.h"

namespace VOR2 {

QPainterPath buildCurve(GLOX::GVector<Vertex> vertices)
{
    int const n = vertices.size();
    for (int i = 1; i + 1 < n; ++i) {
        GLOX::GLPoint<double> const half = (vertices[i + 1].position - vertices[i - 1].position) * 0.5;
        vertices[i].forwardTangent = half;
        vertices[i].backwardTangent = half * -1.0;
    }
    QPainterPath path;
    if (n == 0) return path;
    path.moveTo(GLOX::toQPointF(vertices[0].position));
    for (int i = 1; i < n; ++i) {
        Vertex const &from = vertices[i - 1], &to = vertices[i];
        path.cubicTo(GLOX::toQPointF(from.position + from.forwardTangent * TANGENT_THIRD),
                     GLOX::toQPointF(to.position + to.backwardTangent * TANGENT_THIRD),
                     GLOX::toQPointF(to.position));
    }
    return path;
}

} // namespace VOR2
