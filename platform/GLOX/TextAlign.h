#pragma once
// GLOX::TextHAlign and GLOX::TextVAlign: where a text stands around its
// anchor point, as values that carry any integer (a value that names no
// alignment is kept, and the code that uses it decides how to reject it).
// Each value has a string name; fromName answers an invalid value (-1) for
// a name that is none of them.
//
//   TextHAlign  0 "LEFT_TEXT"      1 "H_CENTER_TEXT"  2 "RIGHT_TEXT"
//   TextVAlign  0 "BASELINE_TEXT"  1 "TOP_TEXT"       2 "V_CENTER_TEXT"
//               3 "BOTTOM_TEXT"    4 "BOTTOM_BASELINE_TEXT"

#include <cstring>
#include <string>

namespace GLOX {

namespace detail {
template <int N>
struct AlignNames {
    char const *names[N];
    char const *name(int v) const { return v >= 0 && v < N ? names[v] : ""; }
    int value(std::string const &s) const
    {
        for (int i = 0; i < N; ++i)
            if (s == names[i]) return i;
        return -1;
    }
};
} // namespace detail

class TextHAlign {
public:
    enum Value { LEFT_TEXT = 0, H_CENTER_TEXT = 1, RIGHT_TEXT = 2 };

    TextHAlign() = default;
    TextHAlign(int value) : m_value(value) {}

    int value() const { return m_value; }
    // The string name, or "" for a value that names no alignment.
    char const *name() const { return names().name(m_value); }
    static TextHAlign fromName(std::string const &name) { return TextHAlign(names().value(name)); }

    bool operator==(TextHAlign const &o) const { return m_value == o.m_value; }
    bool operator!=(TextHAlign const &o) const { return m_value != o.m_value; }

private:
    static detail::AlignNames<3> const &names()
    {
        static detail::AlignNames<3> const n{{"LEFT_TEXT", "H_CENTER_TEXT", "RIGHT_TEXT"}};
        return n;
    }
    int m_value = LEFT_TEXT;
};

class TextVAlign {
public:
    enum Value { BASELINE_TEXT = 0, TOP_TEXT = 1, V_CENTER_TEXT = 2, BOTTOM_TEXT = 3, BOTTOM_BASELINE_TEXT = 4 };

    TextVAlign() = default;
    TextVAlign(int value) : m_value(value) {}

    int value() const { return m_value; }
    char const *name() const { return names().name(m_value); }
    static TextVAlign fromName(std::string const &name) { return TextVAlign(names().value(name)); }

    bool operator==(TextVAlign const &o) const { return m_value == o.m_value; }
    bool operator!=(TextVAlign const &o) const { return m_value != o.m_value; }

private:
    static detail::AlignNames<5> const &names()
    {
        static detail::AlignNames<5> const n{
            {"BASELINE_TEXT", "TOP_TEXT", "V_CENTER_TEXT", "BOTTOM_TEXT", "BOTTOM_BASELINE_TEXT"}};
        return n;
    }
    int m_value = BOTTOM_TEXT;
};

} // namespace GLOX
