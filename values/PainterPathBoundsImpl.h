#pragma once
// VOR2::PainterPathBoundsImpl: a BoundsImpl over a QPainterPath, answering
// each operation with QPainterPath's own. The path's fill rule decides what
// is inside. Open paths (lines) are kept: they have an outline but no area.

#include "values/BoundsImpl.h"

namespace VOR2 {

class PainterPathBoundsImpl final : public BoundsImpl {
public:
    explicit PainterPathBoundsImpl(QPainterPath const &path);

    // A new impl over path. Allocates.
    static Ptr make(QPainterPath const &path);

    Ptr clone() const override;
    GLOX::GLRect<double> boundingRect() const override { return m_rect; }
    bool isEmpty() const override;

    bool contains(GLOX::GLPoint<double> const &p) const override;
    bool contains(GLOX::GLRect<double> const &r) const override;
    bool contains(BoundsImpl const &o) const override;

    bool intersects(GLOX::GLRect<double> const &r) const override;
    bool intersects(BoundsImpl const &o) const override;
    bool intersects(GLOX::GLPoint<double> const &p, double tolerance) const override;

    Ptr intersected(GLOX::GLRect<double> const &r) const override;
    Ptr intersected(BoundsImpl const &o) const override;
    Ptr united(GLOX::GLRect<double> const &r) const override;
    Ptr united(BoundsImpl const &o) const override;
    Ptr transformed(GLOX::Transform const &t) const override;

    bool isEqual(GLOX::GLRect<double> const &r) const override;
    bool isEqual(BoundsImpl const &o) const override;

    QPainterPath toPainterPath() const override { return m_path; }
    GLOX::Shape toShape() const override { return GLOX::Shape(m_path); }
    GLOX::GList<GLOX::GLRect<double>> toRects() const override;

private:
    QPainterPath m_path;
    GLOX::GLRect<double> m_rect; // m_path.boundingRect(), computed once
};

// A closed path of the rectangle r.
QPainterPath rectPath(GLOX::GLRect<double> const &r);

} // namespace VOR2
