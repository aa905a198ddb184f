#pragma once
// GLUV::Packet: the usual argument of a notification signal, a cheap copy of
// a shared, immutable payload. A default Packet carries no payload.

#include "GLUV/Payload.h"

#include <memory>

namespace GLUV {

class Packet {
public:
    Packet() = default;
    explicit Packet(std::shared_ptr<Payload const> payload) : m_payload(std::move(payload)) {}

    // The payload, or null.
    Payload const *payload() const { return m_payload.get(); }
    // The payload as T, or null when there is none or it is of another type.
    template <class T>
    T const *payloadAs() const
    {
        return dynamic_cast<T const *>(m_payload.get());
    }

private:
    std::shared_ptr<Payload const> m_payload;
};

// A packet carrying an empty Payload: a plain notification.
inline Packet makeNotification()
{
    return Packet(std::make_shared<Payload const>());
}

// A packet carrying value in a ValuePayload<T>.
template <typename T>
Packet makeValuePacket(T value)
{
    return Packet(std::make_shared<ValuePayload<T> const>(std::move(value)));
}

} // namespace GLUV
