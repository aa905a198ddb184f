#pragma once
// GLOX::AtomicCounter: a counter that may be raised and lowered from any
// thread. Usable as the count type of ReferencedTemplate for objects shared
// between threads.

#include <atomic>

namespace GLOX {

class AtomicCounter {
public:
    AtomicCounter(int v = 0) : m_value(v) {}
    AtomicCounter(AtomicCounter const &o) : m_value(o.load()) {}
    AtomicCounter &operator=(int v) { m_value.store(v); return *this; }

    int operator++() { return m_value.fetch_add(1) + 1; }
    int operator--() { return m_value.fetch_sub(1) - 1; }
    int load() const { return m_value.load(); }
    operator int() const { return load(); }
    bool operator==(int v) const { return load() == v; }

private:
    std::atomic<int> m_value;
};

} // namespace GLOX
