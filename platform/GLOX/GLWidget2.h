#pragma once
// GLOX::GLWidget2: the host-side object behind a native widget. The widget
// lives on the GUI thread; the object lives on the host thread and only
// knows what the widget last told it. Events that the widget broadcasts
// name this object as their source.

#include "GLOX/GLRect.h"

#include <mutex>

namespace GLOX {

class GLWidget2 {
public:
    GLWidget2() = default;
    virtual ~GLWidget2() = default;
    GLWidget2(GLWidget2 const &) = delete;
    GLWidget2 &operator=(GLWidget2 const &) = delete;

    // Any thread. The widget's drawing area in screen coordinates, as the
    // widget last reported it (it reports before each event it sends); an
    // empty rectangle before the first report.
    GLRect<double> getGlobalPosition() const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_globalPosition;
    }
    // The widget's thread.
    void reportGlobalPosition(GLRect<double> const &rect)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_globalPosition = rect;
    }

private:
    mutable std::mutex m_mutex;
    GLRect<double> m_globalPosition;
};

} // namespace GLOX
