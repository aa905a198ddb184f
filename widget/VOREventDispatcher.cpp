#include "widget/VOREventDispatcher.h"

#include "GLServices/EventManagement.h"
#include "GLServices/GLService.h"
#include "GLServices/TarvoTimerService.h"
#include "ut/Assert.h"
#include "widget/TimeoutPayload.h"

#include <QCoreApplication>
#include <QThread>

#include <atomic>
#include <mutex>

namespace VOR2 {

namespace {

std::atomic<VOREventDispatcher *> s_instance{nullptr};

// The process-wide wake-up record: the host callback, made on first use,
// and whether it waits in the host loop.
struct WakeUpRecord {
    std::once_flag made;
    GLServices::EventManagement::Callback callback;
    std::atomic<bool> posted{false};
};

WakeUpRecord &wakeUpRecord()
{
    static WakeUpRecord *const record = new WakeUpRecord; // outlives every thread
    return *record;
}

// Runs on the host thread from the host loop. The flag is cleared first, so
// that an event posted during delivery schedules another callback.
void deliverPostedEvents()
{
    wakeUpRecord().posted = false;
    QCoreApplication::sendPostedEvents(nullptr, 0);
    // Outside any event loop, sendPostedEvents(nullptr, 0) keeps back the
    // deleteLater requests made outside event handling (Qt waits for an
    // event loop level that never comes here); asking for deferred deletes
    // by name delivers them.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

VOREventDispatcher *VOREventDispatcher::install()
{
    if (!s_instance) {
        QAbstractEventDispatcher *existing = QThread::currentThread()->eventDispatcher();
        if (existing) return nullptr;
    }
    static std::once_flag once;
    std::call_once(once, [] {
        auto *dispatcher = new VOREventDispatcher;
        QThread::currentThread()->setEventDispatcher(dispatcher);
        s_instance = dispatcher;
    });
    VOREventDispatcher *dispatcher = s_instance;
    ut_assert(dispatcher && QThread::currentThread()->eventDispatcher() == dispatcher);
    dispatcher->wakeUp();
    return dispatcher;
}

VOREventDispatcher *VOREventDispatcher::instance()
{
    return s_instance;
}

VOREventDispatcher::VOREventDispatcher() = default;

VOREventDispatcher::~VOREventDispatcher()
{
    VOREventDispatcher *self = this;
    s_instance.compare_exchange_strong(self, nullptr);
    qDeleteAll(payloadsById);
}

bool VOREventDispatcher::processEvents(QEventLoop::ProcessEventsFlags)
{
    return false;
}

bool VOREventDispatcher::hasPendingEvents()
{
    return false;
}

void VOREventDispatcher::registerSocketNotifier(QSocketNotifier *) {}

void VOREventDispatcher::unregisterSocketNotifier(QSocketNotifier *) {}

void VOREventDispatcher::registerTimer(int timerId, int interval, Qt::TimerType timerType, QObject *object)
{
    GLServices::TarvoTimerService *service = GLServices::GLService<GLServices::TarvoTimerService>::get();
    ut_assert(service);
    infoByObject.insert(object, TimerInfo(timerId, interval, timerType));
    objectsById.insert(timerId, object);
    std::shared_ptr<GLServices::TarvoTimer> timer = service->createTimer();
    auto *payload = new TimeoutPayload(object, timerId);
    timersById.insert(timerId, timer);
    payloadsById.insert(timerId, payload);
    timer->tick().connect(payload, &TimeoutPayload::timeout);
    timer->startRepeating(interval);
}

bool VOREventDispatcher::unregisterTimer(int timerId)
{
    QObject *object = objectsById.value(timerId);
    if (!object) return false;
    // The timer may be ticking right now (a timer killed from its own
    // timerEvent): stopping and dropping it and its payload is safe then.
    if (std::shared_ptr<GLServices::TarvoTimer> timer = timersById.take(timerId)) timer->stop();
    delete payloadsById.take(timerId);
    objectsById.remove(timerId);
    for (auto it = infoByObject.find(object); it != infoByObject.end() && it.key() == object; ++it) {
        if (it->timerId == timerId) {
            infoByObject.erase(it);
            return true;
        }
    }
    return false;
}

bool VOREventDispatcher::unregisterTimers(QObject *object)
{
    bool removed = false;
    for (TimerInfo const &info : infoByObject.values(object)) removed |= unregisterTimer(info.timerId);
    infoByObject.remove(object);
    return removed;
}

QList<QAbstractEventDispatcher::TimerInfo> VOREventDispatcher::registeredTimers(QObject *object) const
{
    return infoByObject.values(object);
}

int VOREventDispatcher::remainingTime(int timerId)
{
    std::shared_ptr<GLServices::TarvoTimer> timer = timersById.value(timerId);
    return timer ? timer->remainingTime() : -1;
}

void VOREventDispatcher::wakeUp()
{
    WakeUpRecord &record = wakeUpRecord();
    if (record.posted.exchange(true)) return;
    GLServices::EventManagement *events = GLServices::GLService<GLServices::EventManagement>::get();
    if (!events) {
        record.posted = false;
        return;
    }
    std::call_once(record.made, [&] { record.callback = events->createCallback(&deliverPostedEvents); });
    events->postCallback(record.callback);
}

void VOREventDispatcher::interrupt() {}

void VOREventDispatcher::flush() {}

} // namespace VOR2
