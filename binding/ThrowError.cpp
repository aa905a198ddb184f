#include "Error"

#include "binding/ErrorCatalogue.h"
#include "ut/MessageCatalogue.h"

#include <cstdio>

namespace VOR2 {

namespace {

// The code's text in the current language, English when that language has
// none.
std::string catalogueText(message_code_vor_msg code)
{
    registerErrorCatalogue();
    if (std::optional<ut::Message> message = ut::findMessage(code)) return message->text;
    char buffer[48];
    std::snprintf(buffer, sizeof buffer, "Unknown VOR2 error 0x%x", unsigned(code));
    return buffer;
}

// Replaces each placeholder (%s or %1) in one pass, so that an argument
// holding such a token stays as it is.
std::string fillPlaceholder(std::string const &text, std::string const &arg)
{
    std::string filled;
    filled.reserve(text.size() + arg.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 1 < text.size() && (text[i + 1] == 's' || text[i + 1] == '1')) {
            filled += arg;
            ++i;
        } else {
            filled += text[i];
        }
    }
    return filled;
}

} // namespace

void throwError(message_code_vor_msg code)
{
    throw Error(code, catalogueText(code));
}

void throwError(message_code_vor_msg code, std::string const &arg)
{
    throw Error(code, fillPlaceholder(catalogueText(code), arg));
}

} // namespace VOR2
