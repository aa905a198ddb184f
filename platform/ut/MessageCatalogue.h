#pragma once
// The process-wide message catalogue: primary (English) tables with codes,
// ids and texts, and per-language tables with translated texts for the same
// codes. Texts are looked up by code for the current language, falling back
// to English when that language has no text for the code.
//
// Every function may be called from any thread. Tables are copied when they
// are added, so they need not outlive the call.

#include "ut/MessageTable.h"

#include <optional>
#include <string>

// Adds a primary table. Returns false, and changes nothing, when this table
// (the same object) was added before. A code added again by another table
// takes that table's id and text.
bool ut_mem_add_primary_message_table(ut_message_table const *table);

// Adds the texts of table for language (e.g. "ja"). Returns false, and
// changes nothing, when this table was added before for that language. Ids of
// a language table are ignored: ids come from the primary table.
bool ut_mem_add_language(char const *language, ut_message_table const *table);

namespace ut {

struct Message {
    int code = 0;
    std::string id;
    std::string text;
    std::string language; // the language the text is in
};

// The language of looked-up texts; "en" until set.
void setLanguage(std::string const &language);
std::string language();

// The message for code in the current language, or in English when that
// language has no text for it; nothing when no primary table has the code.
std::optional<Message> findMessage(int code);
// The same for an explicit language.
std::optional<Message> findMessage(int code, std::string const &language);

// How many distinct tables (primary and language ones) have been added.
int registeredTableCount();

} // namespace ut
