#include <Event>
#include <Error>
#include <GLCanvas>

#include "GLOX/AtomicCounter.h"

namespace VOR2 {

namespace {
std::uint32_t nextSerialNumber()
{
    static GLOX::AtomicCounter counter;
    return std::uint32_t(++counter);
}
} // namespace

Event::Event(EventType type, GLCanvas *canvas)
    : m_scene(canvas ? canvas->getScene() : nullptr), m_canvas(canvas), m_type(type),
      m_serialNumber(nextSerialNumber())
{
}

void Event::accept(EventHandler &handler)
{
    if (!m_consumed) internalAccept(handler);
}

void Event::unrecognized() { throwError(VOR2_UnrecognizedEvent); }

} // namespace VOR2
