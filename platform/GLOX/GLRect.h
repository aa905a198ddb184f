#pragma once
// GLOX::GLRect: an axis-aligned rectangle given by its top-left corner and
// its size. Width and height are kept as given, never normalised.

#include "GLOX/GLPoint.h"
#include "GLOX/Size.h"

#include <QRectF>
#include <algorithm>
#include <cmath>

namespace GLOX {

template <typename T>
struct GLRect {
    T x{};
    T y{};
    T width{};
    T height{};

    constexpr GLRect() = default;
    constexpr GLRect(T px, T py, T w, T h) : x(px), y(py), width(w), height(h) {}
    GLRect(GLPoint<T> const &topLeft, Size<T> const &size)
        : x(topLeft.x), y(topLeft.y), width(size.width), height(size.height) {}

    T left() const { return x; }
    T top() const { return y; }
    T right() const { return x + width; }
    T bottom() const { return y + height; }
    GLPoint<T> topLeft() const { return {x, y}; }
    GLPoint<T> center() const { return {x + width / 2, y + height / 2}; }
    Size<T> size() const { return {width, height}; }

    // Empty: no area (width or height not positive, NaN included).
    bool isEmpty() const { return !(width > 0) || !(height > 0); }

    // The library's validity rule for cached rectangles: positive, finite
    // extent and a position that is a number.
    bool isValid() const
    {
        return width > 0 && height > 0 && !std::isnan(double(x)) && !std::isnan(double(y)) &&
               !std::isinf(double(width)) && !std::isinf(double(height));
    }

    bool contains(GLPoint<T> const &p) const
    {
        return !isEmpty() && p.x >= x && p.x <= right() && p.y >= y && p.y <= bottom();
    }

    // Edges inclusive; an empty rectangle neither contains nor is contained.
    bool contains(GLRect const &o) const
    {
        return !isEmpty() && !o.isEmpty() && o.x >= x && o.right() <= right() && o.y >= y &&
               o.bottom() <= bottom();
    }

    bool intersects(GLRect const &o) const
    {
        return !isEmpty() && !o.isEmpty() && x < o.right() && o.x < right() && y < o.bottom() &&
               o.y < bottom();
    }

    // Smallest rectangle holding both; an empty operand does not count.
    GLRect united(GLRect const &o) const
    {
        if (o.isEmpty()) return *this;
        if (isEmpty()) return o;
        T l = std::min(x, o.x), t = std::min(y, o.y);
        return {l, t, std::max(right(), o.right()) - l, std::max(bottom(), o.bottom()) - t};
    }

    // Common part, or a zero rectangle when there is none.
    GLRect intersected(GLRect const &o) const
    {
        if (!intersects(o)) return GLRect();
        T l = std::max(x, o.x), t = std::max(y, o.y);
        return {l, t, std::min(right(), o.right()) - l, std::min(bottom(), o.bottom()) - t};
    }

    GLRect translated(T dx, T dy) const { return {x + dx, y + dy, width, height}; }
    GLRect adjusted(T dl, T dt, T dr, T db) const
    {
        return {x + dl, y + dt, width - dl + dr, height - dt + db};
    }

    bool operator==(GLRect const &o) const
    {
        return x == o.x && y == o.y && width == o.width && height == o.height;
    }
    bool operator!=(GLRect const &o) const { return !(*this == o); }
};

inline QRectF toQRectF(GLRect<double> const &r) { return QRectF(r.x, r.y, r.width, r.height); }
inline GLRect<double> toDRect(QRectF const &r) { return {r.x(), r.y(), r.width(), r.height()}; }

} // namespace GLOX
