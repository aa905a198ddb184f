// The library's entry points for a script host, with C linkage.
//
// initialize_vor: once per process (a guard), on the thread that is to be the
// host thread: registers the error catalogue, publishes the package and
// starts the two threads (HostRuntime: the widget bridge "qt" makes the GUI
// thread or joins an existing QApplication, and the event dispatcher is
// installed on this thread, last of all).
// terminate_vor and TVTerminate_vor: once, whichever is called first: close
// the open viewers, then stop the threads. The package stays published.

#include "HostRuntime"
#include "Viewer"
#include "binding/EntryPoints.h"
#include "binding/ErrorCatalogue.h"
#include "binding/HostLoop.h"
#include "binding/Package.h"

#include "GLServices/HostRunLoop.h"

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <string>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>
#include <stdexcept>

namespace {

bool g_initialized = false;
bool g_terminated = false;

} // namespace

extern "C" {

void initialize_vor(GLOX::ErrorHolder &errors)
{
    if (g_initialized) return;
    g_initialized = true;
    try {
        VOR2::registerErrorCatalogue();
        (void)VOR2::script::packageClassNames();
        if (!VOR2::HostRuntime::isRunning()) VOR2::HostRuntime::start();
    } catch (std::exception const &e) {
        errors.message = e.what();
    }
}

void TVInitialize_vor()
{
    GLOX::ErrorHolder errors;
    initialize_vor(errors);
}

void terminate_vor()
{
    if (g_terminated) return;
    g_terminated = true;
    VOR2::Viewer::closeOpenViewers();
    VOR2::HostRuntime::stop();
}

void TVTerminate_vor() { terminate_vor(); }

HostFunctionTableHeader const *QueryTVFcnTable_vor()
{
    static HostFunctionTableHeader header{QueryTVFcns_vor(), 0x20261123u, 0x00000001u, 0x6b};
    return &header;
}

char const *QueryTVFcns_vor()
{
    // The library offers no host functions: the buffer holds only filler.
    static char const buffer[] = "XPADDINGXPADDINGXPADDINGXPADDING";
    return buffer;
}

} // extern "C"

namespace VOR2::script {

void startHostLoop()
{
    // A host started without a display still gets a working library, drawing
    // offscreen, instead of Qt aborting the host's process.
    if (!std::getenv("DISPLAY") && !std::getenv("WAYLAND_DISPLAY") && !std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 0);
    if (!std::getenv("XDG_RUNTIME_DIR")) {
        std::string dir = "/tmp/runtime-" + std::to_string(getuid());
        mkdir(dir.c_str(), 0700);
        setenv("XDG_RUNTIME_DIR", dir.c_str(), 0);
    }
    GLOX::ErrorHolder errors;
    initialize_vor(errors);
    if (!errors.message.empty()) throw std::runtime_error(errors.message);
}

void runHostLoopFor(double seconds)
{
    if (!HostRuntime::isRunning()) return;
    // In steps, so that a host thread with a Qt dispatcher of its own gets
    // its Qt events between them.
    auto const end = std::chrono::steady_clock::now() +
                     std::chrono::milliseconds(seconds > 0 ? static_cast<long long>(seconds * 1000.0) : 0);
    do {
        HostRuntime::processHostQtEvents();
        HostRuntime::loop().runFor(std::chrono::milliseconds(10));
    } while (std::chrono::steady_clock::now() < end);
    HostRuntime::processHostQtEvents();
}

void runHostLoopWhileNoInput(int inputFd, double maxSeconds)
{
    if (!HostRuntime::isRunning()) return;
    auto hasInput = [inputFd] {
        pollfd p{inputFd, POLLIN, 0};
        return poll(&p, 1, 0) != 0;
    };
    auto const end = std::chrono::steady_clock::now() +
                     std::chrono::milliseconds(maxSeconds > 0 ? static_cast<long long>(maxSeconds * 1000.0) : 0);
    do {
        HostRuntime::processHostQtEvents();
        HostRuntime::loop().runUntil(hasInput, std::chrono::milliseconds(10));
    } while (!hasInput() && std::chrono::steady_clock::now() < end);
}

void runHostLoopUntilIdle()
{
    if (!HostRuntime::isRunning()) return;
    HostRuntime::processHostQtEvents();
    HostRuntime::loop().runUntilIdle();
    HostRuntime::processHostQtEvents();
}

} // namespace VOR2::script
