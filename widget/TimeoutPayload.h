#pragma once
// VOR2::TimeoutPayload: the listener that turns the ticks of one host timer
// into timer events for the QObject that registered the Qt timer. Made and
// destroyed by VOREventDispatcher on the host thread.

#include "GLUV/Listener.h"

class QObject;

namespace VOR2 {

class TimeoutPayload : public GLUV::Listener {
public:
    TimeoutPayload(QObject *object, int timerId) : object(object), timerId(timerId) {}
    ~TimeoutPayload() override { disconnectAll(); }

    // Host thread: hands a QTimerEvent with timerId to object at once,
    // without the event queue. The object may unregister the timer, which
    // destroys this payload, from inside the call.
    void timeout();

    QObject *const object;
    int const timerId;
};

} // namespace VOR2
