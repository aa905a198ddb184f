#pragma once
// The library's error catalogue: for each code its id, its English text and
// its Japanese text, and the two host message tables made from them (the
// primary one with ids and English texts, and the one for "ja").

#include "Error"

#include "ut/MessageTable.h"

#include <array>

namespace VOR2 {

constexpr int ERROR_FACILITY = 0x6b;
constexpr int ERROR_COUNT = 30;

struct ErrorCatalogueEntry {
    message_code_vor_msg code;
    char const *id;       // "VOR2_InvalidNode"
    char const *english;  // placeholder %s
    char const *japanese; // placeholder %1
};

// Any thread: all entries, in the order of their codes.
std::array<ErrorCatalogueEntry, ERROR_COUNT> const &errorCatalogue();
// Any thread: the entry of code, or null when the catalogue lacks it.
ErrorCatalogueEntry const *findErrorCatalogueEntry(int code);

// Any thread: the tables handed to the host's catalogue. They live as long
// as the process.
ut_message_table const &primaryErrorTable();
ut_message_table const &japaneseErrorTable();

// Any thread: adds both tables to the host's catalogue, once however often
// it is called.
void registerErrorCatalogue();

} // namespace VOR2
