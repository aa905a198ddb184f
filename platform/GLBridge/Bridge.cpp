#include "GLBridge/Bridge.h"

#include "GLUV/Thread.h"
#include "ut/Assert.h"

#include <QApplication>
#include <QMetaObject>
#include <QObject>
#include <QThread>

#include <atomic>
#include <future>
#include <mutex>
#include <stdexcept>
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
    bool ownThreadEnded = false; // touched by start and stop only
    std::thread thread;
    // The application the bridge took rather than made, while it holds it.
    QApplication *adopted = nullptr;

    // QApplication keeps references to these for its whole life.
    int argc = 1;
    char arg0[5] = {'v', 'o', 'r', '2', '\0'};
    char *argv[2] = {arg0, nullptr};

    void run(std::promise<void> &started);
    void scheduleProcessPosted();
    // On the GUI thread: becomes its GLUV queue's runner, or stops being it.
    void attachCurrentThread();
    void detachCurrentThread();
    // Runs fn on the application's thread and waits a while for it; false,
    // with fn never to run, when the thread did not get to it in time.
    bool runOnApplicationThread(QApplication *app, std::function<void()> fn);
    void adopt(QApplication *app);
};

void Bridge::State::attachCurrentThread()
{
    GLUV::Thread *self = GLUV::Thread::getCurrentThread();
    GLUV::Thread::nameCurrentThread(GUI_THREAD_NAME);
    {
        std::lock_guard<std::mutex> lock(mutex);
        app = qobject_cast<QApplication *>(QCoreApplication::instance());
        runner = new GuiQueueRunner(self, scheduled);
        gui = self;
    }
    self->setWakeUpHandler([this] { scheduleProcessPosted(); });
    if (self->hasPosted()) scheduleProcessPosted();
}

void Bridge::State::detachCurrentThread()
{
    GLUV::Thread::getCurrentThread()->setWakeUpHandler(nullptr);
    std::lock_guard<std::mutex> lock(mutex);
    delete runner;
    app = nullptr;
    runner = nullptr;
    gui = nullptr;
}

bool Bridge::State::runOnApplicationThread(QApplication *application, std::function<void()> fn)
{
    struct Call {
        std::mutex mutex;
        bool cancelled = false;
        std::promise<void> done;
    };
    auto call = std::make_shared<Call>();
    std::future<void> done = call->done.get_future();
    QMetaObject::invokeMethod(application, [call, fn = std::move(fn)] {
        std::lock_guard<std::mutex> lock(call->mutex);
        if (call->cancelled) return;
        fn();
        call->done.set_value();
    }, Qt::QueuedConnection);
    if (done.wait_for(std::chrono::seconds(10)) == std::future_status::ready) return true;
    std::lock_guard<std::mutex> lock(call->mutex);
    if (done.wait_for(std::chrono::seconds(0)) == std::future_status::ready) return true; // ran meanwhile
    call->cancelled = true;
    return false;
}

void Bridge::State::adopt(QApplication *application)
{
    if (application->thread() == QThread::currentThread())
        throw std::logic_error("GLBridge: the calling thread runs the QApplication; the host thread must be "
                               "another thread, beside the GUI thread");
    if (!runOnApplicationThread(application, [this] { attachCurrentThread(); }))
        throw std::logic_error("GLBridge: the QApplication's thread does not run its event loop");
    adopted = application;
}

void Bridge::State::run(std::promise<void> &startedSignal)
{
    QApplication application(argc, argv);
    // The host decides when the GUI thread ends, not the last closed window.
    QApplication::setQuitOnLastWindowClosed(false);
    attachCurrentThread();
    startedSignal.set_value();
    QApplication::exec();
    detachCurrentThread();
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
    if (m_state->thread.joinable() || m_state->adopted) return;
    if (QCoreApplication *existing = QCoreApplication::instance()) {
        auto *application = qobject_cast<QApplication *>(existing);
        if (!application)
            throw std::logic_error("GLBridge: the process runs a QCoreApplication, and widgets need a QApplication");
        m_state->adopt(application);
        return;
    }
    if (m_state->ownThreadEnded)
        throw std::logic_error("GLBridge: the GUI thread cannot start again once stopped: Qt allows one per process");
    std::promise<void> started;
    std::future<void> ready = started.get_future();
    m_state->thread = std::thread([this, &started] { m_state->run(started); });
    ready.wait();
}

void Bridge::stop()
{
    if (QApplication *application = m_state->adopted) {
        m_state->adopted = nullptr;
        if (!m_state->runOnApplicationThread(application, [this] { m_state->detachCurrentThread(); })) {
            // The application's loop has ended: no more wake-ups reach it.
            std::lock_guard<std::mutex> lock(m_state->mutex);
            m_state->app = nullptr;
            m_state->runner = nullptr;
            m_state->gui = nullptr;
        }
        return;
    }
    if (!m_state->thread.joinable()) return;
    {
        std::lock_guard<std::mutex> lock(m_state->mutex);
        ut_assert(!m_state->gui || !m_state->gui->isCurrent());
        // quit() must run on the GUI thread: queued, it runs inside exec().
        if (m_state->app) QMetaObject::invokeMethod(m_state->app, "quit", Qt::QueuedConnection);
    }
    m_state->thread.join();
    m_state->ownThreadEnded = true;
}

bool Bridge::isAdopted() const
{
    return m_state->adopted != nullptr;
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
