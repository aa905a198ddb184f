#pragma once
// GLOX::Size: a width and a height.

#include <QSizeF>

namespace GLOX {

template <typename T = double>
struct Size {
    T width{};
    T height{};

    constexpr Size() = default;
    constexpr Size(T w, T h) : width(w), height(h) {}

    T getWidth() const { return width; }
    T getHeight() const { return height; }
    bool isEmpty() const { return !(width > 0) || !(height > 0); }

    bool operator==(Size const &o) const { return width == o.width && height == o.height; }
    bool operator!=(Size const &o) const { return !(*this == o); }
};

inline QSizeF toQSizeF(Size<double> const &s) { return QSizeF(s.width, s.height); }
inline Size<double> toDSize(QSizeF const &s) { return {s.width(), s.height()}; }

} // namespace GLOX
