// The windows of a native program: showing a canvas as a window and running
// the host loop until the user has closed them all.

#include <GLCanvas>
#include <HostRuntime>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <atomic>

namespace VOR2 {

namespace {
// Windows shown by showWindow and not closed since.
std::atomic<int> s_shownWindows{0};

// GUI thread: lives with a window; counts it out when it closes or dies, and
// wakes the host loop so that runWhileWindowsShown looks again.
class WindowWatcher : public QObject {
public:
    explicit WindowWatcher(QWidget *window) : QObject(window) { window->installEventFilter(this); }
    ~WindowWatcher() override { countOut(); }

    void countIn()
    {
        if (m_counted) return;
        m_counted = true;
        ++s_shownWindows;
    }
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::Close) countOut();
        return false;
    }

private:
    void countOut()
    {
        if (!m_counted) return;
        m_counted = false;
        --s_shownWindows;
        if (HostRuntime::isRunning()) HostRuntime::loop().quit();
    }
    bool m_counted = false;
};
} // namespace

bool HostRuntime::showWindow(GLCanvas &canvas, int width, int height, std::string const &title)
{
    QPointer<QWidget> widget = canvas.getWidget();
    if (widget.isNull()) return false;
    bool shown = bridge().runOnGui([widget, width, height, title] {
        if (widget.isNull()) return;
        QWidget *window = widget->window();
        if (window == widget) {
            window->resize(width, height);
            window->setWindowTitle(QString::fromStdString(title));
        }
        // Not findChild: the watcher has no meta-object of its own.
        WindowWatcher *watcher = nullptr;
        for (QObject *child : window->children())
            if ((watcher = dynamic_cast<WindowWatcher *>(child))) break;
        if (!watcher) watcher = new WindowWatcher(window);
        watcher->countIn();
        window->show();
    }, true);
    return shown && loop().runUntil([&] { return canvas.getViewExtents().x > 0; }, std::chrono::seconds(5));
}

bool HostRuntime::runWhileWindowsShown(std::chrono::milliseconds timeout)
{
    auto const end = std::chrono::steady_clock::now() + timeout;
    while (s_shownWindows > 0) {
        auto left = std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
        if (left.count() <= 0) return false;
        loop().runUntil([] { return s_shownWindows == 0; }, left);
    }
    return true;
}

} // namespace VOR2
