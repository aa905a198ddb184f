#pragma once
// GLOX::Shape: a vector outline, a thin value over QPainterPath.

#include <QPainterPath>

namespace GLOX {

class Shape {
public:
    Shape() = default;
    Shape(QPainterPath const &path) : m_path(path) {}

    QPainterPath const &getPath() const { return m_path; }
    void setPath(QPainterPath const &path) { m_path = path; }
    bool isEmpty() const { return m_path.isEmpty(); }

    bool operator==(Shape const &o) const { return m_path == o.m_path; }
    bool operator!=(Shape const &o) const { return !(m_path == o.m_path); }

private:
    QPainterPath m_path;
};

} // namespace GLOX
