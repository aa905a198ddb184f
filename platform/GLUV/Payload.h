#pragma once
// GLUV::Payload: what a Packet carries. A plain Payload carries nothing and
// stands for a bare notification; ValuePayload<T> carries one value.
// Payloads are immutable once made and may be shared between threads.

#include <utility>

namespace GLUV {

class Payload {
public:
    Payload() = default;
    virtual ~Payload() = default;
};

template <typename T>
class ValuePayload : public Payload {
public:
    explicit ValuePayload(T v) : m_value(std::move(v)) {}
    T const &value() const { return m_value; }

private:
    T m_value;
};

} // namespace GLUV
