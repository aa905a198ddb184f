// Entry point of the life-cycle tests: nothing is set up, because each test
// is about how a process starts and ends (no runtime, a QApplication of the
// client's own, a second start). So each test needs a process of its own:
// CTest runs them so; run by hand, pass --gtest_filter with one test.

#include <QByteArray>
#include <cstdio>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    if (::testing::UnitTest::GetInstance()->test_to_run_count() > 1 &&
        !::testing::GTEST_FLAG(list_tests)) {
        std::fprintf(stderr, "Each life-cycle test needs a process of its own: choose one with --gtest_filter.\n");
        return 2;
    }
    return RUN_ALL_TESTS();
}
