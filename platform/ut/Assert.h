#pragma once
// ut_assert: the assertion for programmer errors, with the condition's text,
// the source file and the line. A failed assertion calls the assertion
// handler and then throws ut::AssertionError; the default handler does
// nothing, so by default the exception is what the caller sees. A handler may
// end the process instead (abort) or report somewhere before the throw.
//
// All of it may be used from any thread.

#include <stdexcept>
#include <string>

namespace ut {

// What a failed assertion throws. what() reads
// "Assertion failed: <condition> (<file>:<line>)".
class AssertionError : public std::logic_error {
public:
    AssertionError(std::string condition, std::string file, int line);
    ~AssertionError() override;

    std::string const &condition() const { return m_condition; }
    std::string const &file() const { return m_file; }
    int line() const { return m_line; }

private:
    std::string m_condition;
    std::string m_file;
    int m_line;
};

// Called with the failed condition, file and line before the throw.
using AssertHandler = void (*)(char const *condition, char const *file, int line);

// Installs handler (null: the default) and returns the one it replaces.
AssertHandler setAssertHandler(AssertHandler handler);

} // namespace ut

// Reports a failed assertion: calls the handler, then throws
// ut::AssertionError. Null texts are taken as empty.
[[noreturn]] void ut_assert_failed(char const *conditionText, char const *file, int line);

// The explicit form: fails with text as the condition's text when cond is
// false.
inline void ut_assert_text(bool cond, char const *text, char const *file, int line)
{
    if (!cond) ut_assert_failed(text, file, line);
}

#define ut_assert(cond) ((cond) ? static_cast<void>(0) : ut_assert_failed(#cond, __FILE__, __LINE__))
