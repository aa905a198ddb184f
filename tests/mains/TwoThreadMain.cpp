// Entry point of the test binaries that run the library as a host runs it:
// the test thread is the host thread ("TARVO"), with the host run loop and
// the event dispatcher, and the GUI thread owns the QApplication. Tests pump
// the host loop themselves (HostRuntime::loop()).

#include "GLServices/HostRunLoop.h"
#include <HostRuntime>

#include <QByteArray>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    if (qgetenv("QT_QPA_PLATFORM").isEmpty()) qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    VOR2::HostRuntime::start();
    VOR2::HostRuntime::loop().runUntilIdle(); // what start-up posted
    int const result = RUN_ALL_TESTS();
    VOR2::HostRuntime::stop();
    return result;
}
