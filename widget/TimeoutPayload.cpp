#include "widget/TimeoutPayload.h"

#include <QCoreApplication>
#include <QTimerEvent>

namespace VOR2 {

void TimeoutPayload::timeout()
{
    // QObject::timerEvent is protected, so the event goes through sendEvent:
    // a direct, synchronous call of the object's event(), which calls
    // timerEvent, just as Qt's own dispatchers deliver timers (event filters
    // see it too). Nothing is queued. This payload may be destroyed inside
    // the call, so nothing of it is touched afterwards.
    QTimerEvent event(timerId);
    QCoreApplication::sendEvent(object, &event);
}

} // namespace VOR2
