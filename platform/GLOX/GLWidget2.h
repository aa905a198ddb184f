#pragma once
// GLOX::GLWidget2: the host-side object behind a native widget. The widget
// lives on the GUI thread; the object lives on the host thread and only
// knows what the widget last told it. Events that the widget broadcasts
// name this object as their source.
//
// Two sets of widget events (WidgetEventCode) steer the widget: the events
// the object consumes, whose native default handling the widget skips (a
// canvas's wheel zooms through its tools instead of scrolling), and the
// events the widget broadcasts to the host. By default nothing is consumed
// and nothing broadcast. Both may be read and written from any thread.

#include "GLOX/GLObject.h"
#include "GLOX/GLRect.h"
#include "GLOX/WidgetEventCode.h"

#include <atomic>
#include <cstdint>
#include <mutex>

namespace GLOX {

class GLWidget2 : public GLObject {
public:
    explicit GLWidget2(StringID const &id = StringID(), GLObject *parent = nullptr) : GLObject(id, parent) {}
    ~GLWidget2() override = default;

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

    void setEventConsumed(WidgetEventCode event, bool consumed) { setBit(m_consumed, event, consumed); }
    bool isEventConsumed(WidgetEventCode event) const { return hasBit(m_consumed, event); }
    void enableEventBroadcasting() { m_broadcast = ~std::uint32_t(0); }
    void disableEventBroadcasting(WidgetEventCode event) { setBit(m_broadcast, event, false); }
    bool isEventBroadcast(WidgetEventCode event) const { return hasBit(m_broadcast, event); }

private:
    static std::uint32_t bit(WidgetEventCode event) { return std::uint32_t(1) << int(event); }
    static void setBit(std::atomic<std::uint32_t> &set, WidgetEventCode event, bool on)
    {
        on ? set.fetch_or(bit(event)) : set.fetch_and(~bit(event));
    }
    static bool hasBit(std::atomic<std::uint32_t> const &set, WidgetEventCode event)
    {
        return (set.load() & bit(event)) != 0;
    }
    static_assert(WIDGET_EVENT_CODE_COUNT <= 32, "one bit per event code");

    mutable std::mutex m_mutex;
    GLRect<double> m_globalPosition;
    std::atomic<std::uint32_t> m_consumed{0};
    std::atomic<std::uint32_t> m_broadcast{0};
};

} // namespace GLOX
