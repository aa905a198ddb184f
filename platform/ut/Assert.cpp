#include "ut/Assert.h"

#include <atomic>

namespace ut {

namespace {
std::atomic<AssertHandler> g_handler{nullptr};

std::string describe(std::string const &condition, std::string const &file, int line)
{
    return "Assertion failed: " + condition + " (" + file + ":" + std::to_string(line) + ")";
}
} // namespace

AssertionError::AssertionError(std::string condition, std::string file, int line)
    : std::logic_error(describe(condition, file, line)), m_condition(std::move(condition)),
      m_file(std::move(file)), m_line(line)
{
}

AssertionError::~AssertionError() = default;

AssertHandler setAssertHandler(AssertHandler handler)
{
    return g_handler.exchange(handler);
}

} // namespace ut

void ut_assert_failed(char const *conditionText, char const *file, int line)
{
    char const *condition = conditionText ? conditionText : "";
    char const *path = file ? file : "";
    if (ut::AssertHandler handler = ut::g_handler.load()) handler(condition, path, line);
    throw ut::AssertionError(condition, path, line);
}
