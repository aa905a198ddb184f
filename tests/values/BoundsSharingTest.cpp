// Copies share shapes without ever seeing each other's changes, and work on
// bare rectangles never touches the heap. Allocations are counted by
// replacing the global operator new of this test program.

#include <Bounds>
#include <Ellipse>

#include <gtest/gtest.h>
#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<long> g_allocations{0};
}

void *operator new(std::size_t size)
{
    ++g_allocations;
    if (void *p = std::malloc(size ? size : 1)) return p;
    throw std::bad_alloc();
}
void operator delete(void *p) noexcept { std::free(p); }
void operator delete(void *p, std::size_t) noexcept { std::free(p); }

using namespace VOR2;
using Rect = GLOX::GLRect<double>;
using Pt = GLOX::GLPoint<double>;

TEST(BoundsSharing, ChangingACopyLeavesItsSource)
{
    Bounds const source(Ellipse(Rect(0, 0, 10, 10)));
    QPainterPath const before = source.asQPainterPath();

    Bounds moved = source;
    moved.transform(GLOX::Transform::fromTranslate(50, 0));
    Bounds cut = source;
    cut &= Bounds(Rect(5, 0, 10, 10));
    Bounds grown = source;
    grown |= Bounds(Ellipse(Rect(5, 0, 10, 10)));
    Bounds flat = source;
    flat.simplifyToRect();

    EXPECT_EQ(source.asQPainterPath(), before);
    EXPECT_EQ(source.boundingRect(), Rect(0, 0, 10, 10));
    EXPECT_TRUE(source.contains(Pt(2, 5)));
    EXPECT_FALSE(source.contains(Pt(0.5, 0.5)));
    EXPECT_FALSE(source.contains(Pt(12, 5)));
    EXPECT_TRUE(moved.contains(Pt(55, 5)));
    EXPECT_FALSE(cut.contains(Pt(2, 5)));
    EXPECT_TRUE(grown.contains(Pt(12, 5)));
    EXPECT_TRUE(flat.contains(Pt(0.5, 0.5)));
}

TEST(BoundsSharing, RectanglesAndCopiesDoNotAllocate)
{
    Bounds const shape(Ellipse(Rect(0, 0, 10, 10)));
    Bounds a(Rect(0, 0, 10, 10));
    Bounds const b(QRectF(5, 5, 10, 10));

    long const start = g_allocations.load();
    Bounds copy = shape; // shares the shape
    a &= b;
    a |= Bounds(Rect(5, 5, 5, 10));
    a.unionWith(Bounds(Rect(6, 6, 1, 1)));
    bool const hits = a.intersectsWith(b) && a.contains(Bounds(Rect(6, 6, 1, 1))) && a.contains(Pt(6, 6)) &&
                      a.intersectsWith(Pt(4, 6), 1.0);
    a.transform(GLOX::Transform::fromScale(2, 3));
    a.transform(GLOX::Transform::fromTranslate(1, 1));
    Bounds const c = a.unionedWith(Bounds()).intersectedWith(Bounds(Rect(0, 0, 100, 100)));
    bool const same = c == a && copy == shape;
    long const used = g_allocations.load() - start;

    EXPECT_EQ(used, 0);
    EXPECT_TRUE(hits);
    EXPECT_TRUE(same);
    EXPECT_EQ(a.boundingRect(), Rect(11, 16, 10, 30));
    EXPECT_TRUE(a.isOnlyRect());

    // The counter does see a shape being made.
    long const before = g_allocations.load();
    Bounds rotated = Bounds(Rect(0, 0, 1, 1)).transformed(GLOX::Transform::fromRotateDegrees(10));
    EXPECT_GT(g_allocations.load(), before);
    EXPECT_FALSE(rotated.isOnlyRect());
}
