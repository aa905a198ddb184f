#pragma once
// VOR2::BoundsImpl: the shape behind a Bounds whose region is not exactly
// its bounding rectangle. Immutable once built: a Bounds may share it with
// its copies, so every operation that would change the region answers a new
// impl instead (which allocates). Operations come in a rectangle variant,
// used when the other operand is a bare rectangle, and a shape variant.

#include "GLOX/Containers.h"
#include "GLOX/GLPoint.h"
#include "GLOX/GLRect.h"
#include "GLOX/Shape.h"
#include "GLOX/Transform.h"

#include <QPainterPath>
#include <memory>

namespace VOR2 {

class BoundsImpl {
public:
    using Ptr = std::shared_ptr<BoundsImpl>;

    virtual ~BoundsImpl() = default;

    // A new impl of the same region. Allocates.
    virtual Ptr clone() const = 0;

    // The smallest rectangle holding the region.
    virtual GLOX::GLRect<double> boundingRect() const = 0;
    // True when the shape has no outline at all.
    virtual bool isEmpty() const = 0;

    virtual bool contains(GLOX::GLPoint<double> const &p) const = 0;
    virtual bool contains(GLOX::GLRect<double> const &r) const = 0;
    virtual bool contains(BoundsImpl const &o) const = 0;

    virtual bool intersects(GLOX::GLRect<double> const &r) const = 0;
    virtual bool intersects(BoundsImpl const &o) const = 0;
    // Whether the square of half-width tolerance around p meets the region;
    // a tolerance not above 0 tests the point alone.
    virtual bool intersects(GLOX::GLPoint<double> const &p, double tolerance) const = 0;

    // New regions; they may be empty. Allocate.
    virtual Ptr intersected(GLOX::GLRect<double> const &r) const = 0;
    virtual Ptr intersected(BoundsImpl const &o) const = 0;
    virtual Ptr united(GLOX::GLRect<double> const &r) const = 0;
    virtual Ptr united(BoundsImpl const &o) const = 0;
    virtual Ptr transformed(GLOX::Transform const &t) const = 0;

    // Same region outline as the rectangle r, or as o.
    virtual bool isEqual(GLOX::GLRect<double> const &r) const = 0;
    virtual bool isEqual(BoundsImpl const &o) const = 0;

    virtual QPainterPath toPainterPath() const = 0;
    virtual GLOX::Shape toShape() const = 0;
    // Rectangles that together cover the region, one per separate piece.
    virtual GLOX::GList<GLOX::GLRect<double>> toRects() const = 0;
};

} // namespace VOR2
