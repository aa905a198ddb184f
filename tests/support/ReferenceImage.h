#pragma once
// Comparison of a rendered image with a reviewed reference PNG under
// tests/data. Run a test with VOR2_UPDATE_REFERENCES=1 in the environment
// to write its references anew; look at every written PNG before
// committing it. On a mismatch the actual image is written next to the
// test binary as <name>.actual.png.

#include <QImage>
#include <gtest/gtest.h>
#include <string>

namespace VOR2::test {

// Success when the sizes agree and every pixel is within `tolerance` per
// channel of tests/data/<name>.png.
::testing::AssertionResult matchesReference(QImage const &image, std::string const &name, int tolerance = 2);

} // namespace VOR2::test
