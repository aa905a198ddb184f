#include "support/QtWarningCatcher.h"

#include <QMutex>
#include <QMutexLocker>

namespace VOR2::test {

namespace {
QMutex caughtLock;
QStringList caught;
QtMessageHandler passOn = nullptr;

void catchMessage(QtMsgType type, QMessageLogContext const &context, QString const &message)
{
    if (type == QtDebugMsg || type == QtInfoMsg) {
        if (passOn) passOn(type, context, message);
        return;
    }
    QMutexLocker lock(&caughtLock);
    caught.append(message);
}
} // namespace

QtWarningCatcher::QtWarningCatcher()
{
    take();
    m_previous = qInstallMessageHandler(catchMessage);
    passOn = m_previous;
}

QtWarningCatcher::~QtWarningCatcher() { qInstallMessageHandler(m_previous); }

QStringList QtWarningCatcher::take()
{
    QMutexLocker lock(&caughtLock);
    QStringList messages;
    messages.swap(caught);
    return messages;
}

} // namespace VOR2::test
