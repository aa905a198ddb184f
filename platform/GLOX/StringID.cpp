#include "GLOX/StringID.h"

#include <mutex>
#include <unordered_set>

namespace GLOX {

namespace {
struct InternTable {
    std::mutex mutex;
    std::unordered_set<std::string> texts; // node-based: element addresses are stable
};
InternTable &table()
{
    static InternTable *t = new InternTable; // never destroyed: ids may outlive static destructors
    return *t;
}
} // namespace

std::string const *StringID::intern(std::string const &text)
{
    InternTable &t = table();
    std::lock_guard<std::mutex> lock(t.mutex);
    return &*t.texts.insert(text).first;
}

StringID::StringID()
{
    static std::string const *const empty = intern(std::string());
    m_text = empty;
}
StringID::StringID(char const *text) : m_text(intern(text ? std::string(text) : std::string())) {}
StringID::StringID(std::string const &text) : m_text(intern(text)) {}

} // namespace GLOX
