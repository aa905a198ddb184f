#pragma once
// GLOX::StringID: an interned string. Equal texts share one entry of a
// process-wide table, so comparison and hashing work on a pointer. The
// default StringID is the empty string. Interning is thread-safe.

#include <QHashFunctions>
#include <string>

namespace GLOX {

class StringID {
public:
    StringID();
    StringID(char const *text);
    StringID(std::string const &text);

    std::string const &str() const { return *m_text; }
    char const *c_str() const { return m_text->c_str(); }
    bool isEmpty() const { return m_text->empty(); }

    bool operator==(StringID const &o) const { return m_text == o.m_text; }
    bool operator!=(StringID const &o) const { return m_text != o.m_text; }
    // Orders by text, so sorted lists of ids are stable across runs.
    bool operator<(StringID const &o) const { return *m_text < *o.m_text; }

    std::string const *key() const { return m_text; }

private:
    static std::string const *intern(std::string const &text);
    std::string const *m_text;
};

inline uint qHash(StringID const &id, uint seed = 0) { return ::qHash(quintptr(id.key()), seed); }

} // namespace GLOX
