#pragma once
// GLOX::ReferencedTemplate: an intrusive reference count. The count starts
// at 0; ref() raises it, unref() lowers it and calls the virtual destroy()
// when it reaches 0. The default destroy() deletes the object. The count is
// of the given type: a plain integer is not thread-safe, and objects counted
// so belong to one thread.

namespace GLOX {

template <typename Count>
class ReferencedTemplate {
public:
    ReferencedTemplate() = default;
    // A copy is a new object: it does not inherit the count.
    ReferencedTemplate(ReferencedTemplate const &) : m_count(0) {}
    ReferencedTemplate &operator=(ReferencedTemplate const &) { return *this; }

    void ref() const { ++m_count; }
    void unref() const
    {
        if (--m_count == 0) const_cast<ReferencedTemplate *>(this)->destroy();
    }
    Count refCount() const { return m_count; }

protected:
    virtual ~ReferencedTemplate() = default;
    // Called once when the count falls to 0.
    virtual void destroy() { delete this; }

private:
    mutable Count m_count{0};
};

} // namespace GLOX
