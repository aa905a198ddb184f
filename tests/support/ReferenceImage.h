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

// Every pixel within `tolerance` per channel of the reference, except at
// most `allowedDifferentPixels` of them.
::testing::AssertionResult matchesReference(QImage const &image, std::string const &name, int tolerance = 2,
                                            int allowedDifferentPixels = 0);

// The path of a reference image, tests/data/<name>.png.
std::string referencePath(std::string const &name);

} // namespace VOR2::test
