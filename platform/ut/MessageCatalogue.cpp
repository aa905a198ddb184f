#include "ut/MessageCatalogue.h"

#include <map>
#include <mutex>
#include <set>
#include <utility>

namespace ut {

namespace {

struct Entry {
    std::string id;
    std::string text;
};

struct Catalogue {
    std::mutex mutex;
    std::string language = "en";
    std::map<int, Entry> primary;
    std::map<std::pair<std::string, int>, std::string> translated;
    std::set<std::pair<std::string, void const *>> added; // (language or "", table)
};

Catalogue &catalogue()
{
    static Catalogue *c = new Catalogue; // never destroyed: errors may be raised late
    return *c;
}

std::string textAt(char const *const *texts, int i)
{
    return texts && texts[i] ? std::string(texts[i]) : std::string();
}

bool addOnce(Catalogue &c, std::string const &language, ut_message_table const *table)
{
    return c.added.insert({language, static_cast<void const *>(table)}).second;
}

} // namespace

void setLanguage(std::string const &language)
{
    Catalogue &c = catalogue();
    std::lock_guard<std::mutex> lock(c.mutex);
    c.language = language;
}

std::string language()
{
    Catalogue &c = catalogue();
    std::lock_guard<std::mutex> lock(c.mutex);
    return c.language;
}

std::optional<Message> findMessage(int code, std::string const &language)
{
    Catalogue &c = catalogue();
    std::lock_guard<std::mutex> lock(c.mutex);
    auto entry = c.primary.find(code);
    if (entry == c.primary.end()) return std::nullopt;
    Message m;
    m.code = code;
    m.id = entry->second.id;
    auto translated = c.translated.find({language, code});
    if (translated != c.translated.end()) {
        m.text = translated->second;
        m.language = language;
    } else {
        m.text = entry->second.text;
        m.language = "en";
    }
    return m;
}

std::optional<Message> findMessage(int code)
{
    return findMessage(code, language());
}

int registeredTableCount()
{
    Catalogue &c = catalogue();
    std::lock_guard<std::mutex> lock(c.mutex);
    return int(c.added.size());
}

} // namespace ut

bool ut_mem_add_primary_message_table(ut_message_table const *table)
{
    if (!table || !table->codes) return false;
    ut::Catalogue &c = ut::catalogue();
    std::lock_guard<std::mutex> lock(c.mutex);
    if (!ut::addOnce(c, std::string(), table)) return false;
    for (int i = 0; i < table->count; ++i)
        c.primary[table->codes[i]] = {ut::textAt(table->ids, i), ut::textAt(table->texts, i)};
    return true;
}

bool ut_mem_add_language(char const *language, ut_message_table const *table)
{
    if (!language || !*language || !table || !table->codes) return false;
    ut::Catalogue &c = ut::catalogue();
    std::lock_guard<std::mutex> lock(c.mutex);
    if (!ut::addOnce(c, language, table)) return false;
    for (int i = 0; i < table->count; ++i)
        if (table->texts && table->texts[i]) c.translated[{language, table->codes[i]}] = table->texts[i];
    return true;
}
