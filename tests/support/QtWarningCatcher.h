#pragma once
// Catches what Qt prints while it lives: warnings, criticals and fatal
// messages from any thread are kept instead of printed, so that a test can
// fail on them. Debug and info messages pass through to the handler that
// was installed before. One catcher at a time.

#include <QString>
#include <QStringList>
#include <QtGlobal>

namespace VOR2::test {

class QtWarningCatcher {
public:
    QtWarningCatcher();
    ~QtWarningCatcher();
    QtWarningCatcher(QtWarningCatcher const &) = delete;
    QtWarningCatcher &operator=(QtWarningCatcher const &) = delete;

    // The messages caught since construction or the last take, and forgets them.
    QStringList take();

private:
    QtMessageHandler m_previous;
};

} // namespace VOR2::test
