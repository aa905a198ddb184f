#pragma once
// GLOX::GLPoint: a plain 2-D point value.

#include <QPointF>

namespace GLOX {

template <typename T>
struct GLPoint {
    T x{};
    T y{};

    constexpr GLPoint() = default;
    constexpr GLPoint(T px, T py) : x(px), y(py) {}

    T getX() const { return x; }
    T getY() const { return y; }

    GLPoint operator+(GLPoint const &o) const { return {x + o.x, y + o.y}; }
    GLPoint operator-(GLPoint const &o) const { return {x - o.x, y - o.y}; }
    GLPoint operator*(T f) const { return {x * f, y * f}; }
    GLPoint &operator+=(GLPoint const &o) { x += o.x; y += o.y; return *this; }
    GLPoint &operator-=(GLPoint const &o) { x -= o.x; y -= o.y; return *this; }
    bool operator==(GLPoint const &o) const { return x == o.x && y == o.y; }
    bool operator!=(GLPoint const &o) const { return !(*this == o); }
};

inline QPointF toQPointF(GLPoint<double> const &p) { return QPointF(p.x, p.y); }
inline GLPoint<double> toDPoint(QPointF const &p) { return {p.x(), p.y()}; }

} // namespace GLOX
