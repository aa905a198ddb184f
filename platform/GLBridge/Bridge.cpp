#include "GLBridge/Bridge.h"

#include "GLUV/Thread.h"
#include "ut/Assert.h"

#include <QApplication>
#include <QMetaObject>
#include <QObject>

#include <atomic>
#include <future>
#include <mutex>
#include <thread>

namespace GLBridge {

namespace {

// Lives on the GUI thread; its slot runs the thread's GLUV queue. It is
// invoked by name, so the call that crosses threads through Qt's queue
// carries no data of ours: the queue itself is handed over by GLUV's lock.
class GuiQueueRunner : public QObject {
    Q_OBJECT

public:
    GuiQueueRunner(GLUV::Thread *gui, std::atomic<bool> &scheduled) : m_gui(gui), m_scheduled(scheduled) {}

public slots:
    void runQueue()
    {
        m_scheduled = false;
        m_gui->processPosted();
    }

private:
    GLUV::Thread *const m_gui;
    std::atomic<bool> &m_scheduled;
};

} // namespace

struct Bridge::State {
    // Guards app, runner and gui, which the GUI thread sets and clears.
    mutable std::mutex mutex;
    QApplication *app = nullptr;
    GuiQueueRunner *runner = nullptr;
    GLUV::Thread *gui = nullptr;
    // True while a call of processPosted waits in the Qt queue.
    std::atomic<bool> scheduled{false};
    bool started = false; // touched by start only
    std::thread thread;

    // QApplication keeps references to these for its whole life.
    int argc = 1;
    char arg0[5] = {'v', 'o', 'r', '2', '\0'};
    char *argv[2] = {arg0, nullptr};

    void run(std::promise<void> &started);
    void scheduleProcessPosted();
};

void Bridge::State::run(std::promise<void> &startedSignal)
{
    GLUV::Thread *self = GLUV::Thread::getCurrentThread();
    GLUV::Thread::nameCurrentThread(GUI_THREAD_NAME);
    QApplication application(argc, argv);
    // The host decides when the GUI thread ends, not the last closed window.
    QApplication::setQuitOnLastWindowClosed(false);
    GuiQueueRunner queueRunner(self, scheduled);
    {
        std::lock_guard<std::mutex> lock(mutex);
        app = &application;
        runner = &queueRunner;
        gui = self;
    }
    self->setWakeUpHandler([this] { scheduleProcessPosted(); });
    startedSignal.set_value();
    if (self->hasPosted()) scheduleProcessPosted();

    QApplication::exec();

    self->setWakeUpHandler(nullptr);
    std::lock_guard<std::mutex> lock(mutex);
    app = nullptr;
    runner = nullptr;
    gui = nullptr;
}

// Any thread: one queued call into the Qt loop runs the whole GLUV queue, so
// a second one is not queued while the first waits.
void Bridge::State::scheduleProcessPosted()
{
    if (scheduled.exchange(true)) return;
    std::lock_guard<std::mutex> lock(mutex);
    if (!runner) {
        scheduled = false;
        return;
    }
    QMetaObject::invokeMethod(runner, "runQueue", Qt::QueuedConnection);
}

Bridge::Bridge() : m_state(std::make_unique<State>()) {}

Bridge::~Bridge() = default;

void Bridge::start()
{
    if (m_state->thread.joinable()) return;
    ut_assert(!m_state->started); // no second GUI thread in one process
    m_state->started = true;
    std::promise<void> started;
    std::future<void> ready = started.get_future();
    m_state->thread = std::thread([this, &started] { m_state->run(started); });
    ready.wait();
}

void Bridge::stop()
{
    if (!m_state->thread.joinable()) return;
    {
        std::lock_guard<std::mutex> lock(m_state->mutex);
        ut_assert(!m_state->gui || !m_state->gui->isCurrent());
        // quit() must run on the GUI thread: queued, it runs inside exec().
        if (m_state->app) QMetaObject::invokeMethod(m_state->app, "quit", Qt::QueuedConnection);
    }
    m_state->thread.join();
}

bool Bridge::isRunning() const
{
    return guiThread() != nullptr;
}

GLUV::Thread *Bridge::guiThread() const
{
    std::lock_guard<std::mutex> lock(m_state->mutex);
    return m_state->gui;
}

bool Bridge::runOnGui(std::function<void()> fn, bool wait)
{
    ut_assert(fn);
    GLUV::Thread *gui = guiThread();
    if (!gui) return false;
    if (!wait) {
        gui->post(std::move(fn));
        return true;
    }
    if (gui->isCurrent()) {
        fn();
        return true;
    }
    // Dropped unrun, the callback destroys the promise: the wait ends with
    // a broken promise.
    auto result = std::make_shared<std::promise<void>>();
    std::future<void> done = result->get_future();
    gui->post([fn = std::move(fn), result] {
        try {
            fn();
            result->set_value();
        } catch (...) {
            result->set_exception(std::current_exception());
        }
    });
    done.wait();
    try {
        done.get();
    } catch (std::future_error const &e) {
        if (e.code() == std::future_errc::broken_promise) return false;
        throw;
    }
    return true;
}

Bridge *getBridge(std::string const &name)
{
    static Bridge *const qt = new Bridge; // never destroyed: the GUI thread may outlive statics
    return name == "qt" ? qt : nullptr;
}

} // namespace GLBridge

#include "Bridge.moc"
