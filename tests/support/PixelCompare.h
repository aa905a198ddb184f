#pragma once
// Pixel helpers for rendering tests: a transparent ARGB image to paint in,
// and colour comparison with a tolerance per channel.

#include <QColor>
#include <QImage>
#include <gtest/gtest.h>

namespace VOR2::test {

// A premultiplied ARGB image of w by h, fully transparent.
QImage transparentImage(int w, int h);

// Success when every channel of the pixel at (x, y) is within `tolerance`
// of `expected`: EXPECT_TRUE(pixelIs(image, x, y, colour)).
::testing::AssertionResult pixelIs(QImage const &image, int x, int y, QColor const &expected, int tolerance = 2);

} // namespace VOR2::test
