#pragma once
// GLOX::Holder: a counted pointer on an object with ref() and unref(), such
// as a ReferencedTemplate. Copying a Holder adds a reference; destroying or
// resetting it drops one.

#include <cstddef>
#include <utility>

namespace GLOX {

template <typename T>
class Holder {
public:
    Holder() = default;
    Holder(std::nullptr_t) {}
    Holder(T *p) : m_p(p) { if (m_p) m_p->ref(); }
    Holder(Holder const &o) : Holder(o.m_p) {}
    Holder(Holder &&o) noexcept : m_p(std::exchange(o.m_p, nullptr)) {}
    template <typename U>
    Holder(Holder<U> const &o) : Holder(o.get()) {}
    ~Holder() { if (m_p) m_p->unref(); }

    Holder &operator=(Holder o) noexcept { std::swap(m_p, o.m_p); return *this; }

    T *get() const { return m_p; }
    T *operator->() const { return m_p; }
    T &operator*() const { return *m_p; }
    explicit operator bool() const { return m_p != nullptr; }
    void reset() { Holder().swap(*this); }
    void swap(Holder &o) noexcept { std::swap(m_p, o.m_p); }

    bool operator==(Holder const &o) const { return m_p == o.m_p; }
    bool operator!=(Holder const &o) const { return m_p != o.m_p; }

private:
    T *m_p = nullptr;
};

} // namespace GLOX
