#pragma once
// GLOX::Transform: a 2-D affine or projective transform, a thin value over
// QTransform.

#include "GLOX/GLPoint.h"

#include <QTransform>

namespace GLOX {

class Transform {
public:
    Transform() = default;
    Transform(QTransform const &t) : m_t(t) {}
    // Row-major 3x3 coefficients as QTransform names them (m11 .. m33).
    Transform(double m11, double m12, double m13, double m21, double m22, double m23, double m31,
              double m32, double m33)
        : m_t(m11, m12, m13, m21, m22, m23, m31, m32, m33)
    {
    }

    static Transform fromTranslate(double dx, double dy) { return QTransform::fromTranslate(dx, dy); }
    static Transform fromScale(double sx, double sy) { return QTransform::fromScale(sx, sy); }
    static Transform fromRotateDegrees(double a) { return QTransform().rotate(a); }

    QTransform const &toQTransform() const { return m_t; }
    bool isIdentity() const { return m_t.isIdentity(); }
    Transform inverted(bool *invertible = nullptr) const { return m_t.inverted(invertible); }
    GLPoint<double> map(GLPoint<double> const &p) const { return toDPoint(m_t.map(toQPointF(p))); }
    // This transform followed by o.
    Transform operator*(Transform const &o) const { return m_t * o.m_t; }

    bool operator==(Transform const &o) const { return m_t == o.m_t; }
    bool operator!=(Transform const &o) const { return !(m_t == o.m_t); }

private:
    QTransform m_t;
};

} // namespace GLOX
