#pragma once
// VOR2::VOREventDispatcher: Qt's event dispatcher for the host thread, where
// no Qt event loop ever runs. It waits for nothing itself: Qt's timers
// become host timers (GLServices::TarvoTimerService) and the wake-ups of
// posted events become callbacks of the host loop
// (GLServices::EventManagement), so QObjects living on the host thread get
// their timer events and posted events (queued calls, deleteLater, the
// changed() signal of QGraphicsScene) whenever the host loop runs.
//
// One per process, installed for the host thread by install(). Qt calls
// every operation on the host thread, except wakeUp, which any thread may
// call. Socket notifiers are not supported: registering one does nothing.
// processEvents does nothing and answers false, so a QEventLoop opened on
// the host thread would spin; open none there.

#include "GLServices/TarvoTimer.h"

#include <QAbstractEventDispatcher>
#include <QHash>
#include <QMultiHash>

#include <memory>

namespace VOR2 {

class TimeoutPayload;

class VOREventDispatcher : public QAbstractEventDispatcher {
    Q_OBJECT

public:
    // Host thread, after the QApplication exists: creates the dispatcher on
    // the first call and installs it for the calling thread; later calls,
    // from the same thread, return the same one. Events posted to the thread
    // before it was installed are delivered at the host loop's next run.
    // A thread that has a Qt dispatcher of its own already (the interpreter
    // thread of a host with a Qt GUI, a QThread) keeps it, since Qt cannot
    // replace it: install() then returns null, and whoever runs the host loop
    // there also runs that dispatcher (HostRuntime::processHostQtEvents).
    static VOREventDispatcher *install();
    // Any thread: the installed dispatcher, or null.
    static VOREventDispatcher *instance();

    // Deleted only by Qt, should the host thread end.
    ~VOREventDispatcher() override;

    bool processEvents(QEventLoop::ProcessEventsFlags flags) override;
    bool hasPendingEvents() override;
    void registerSocketNotifier(QSocketNotifier *notifier) override;
    void unregisterSocketNotifier(QSocketNotifier *notifier) override;
    // Starts a host timer that sends object a QTimerEvent with timerId every
    // interval milliseconds. Needs a current TarvoTimerService.
    void registerTimer(int timerId, int interval, Qt::TimerType timerType, QObject *object) override;
    // Stops the timer; false when the id is unknown.
    bool unregisterTimer(int timerId) override;
    // Stops all timers of object; false when it had none.
    bool unregisterTimers(QObject *object) override;
    QList<TimerInfo> registeredTimers(QObject *object) const override;
    // Milliseconds until the timer's next event, -1 when the id is unknown.
    int remainingTime(int timerId) override;
    // Any thread: makes the host loop deliver the thread's posted events at
    // its next chance. At most one such callback waits at a time; a
    // wake-up while it waits adds nothing, since it delivers everything
    // posted until it runs. Without a current EventManagement, nothing
    // happens.
    void wakeUp() override;
    void interrupt() override;
    void flush() override;

private:
    VOREventDispatcher();

    QHash<int, std::shared_ptr<GLServices::TarvoTimer>> timersById;
    QHash<int, TimeoutPayload *> payloadsById; // owned
    QHash<int, QObject *> objectsById;
    QMultiHash<QObject *, TimerInfo> infoByObject;
};

} // namespace VOR2
