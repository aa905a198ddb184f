#include "Error"

#include "binding/ErrorCatalogue.h"

namespace VOR2 {

namespace {
// "VOR2_InvalidNode" becomes "VOR2:InvalidNode".
std::string scriptId(int code)
{
    ErrorCatalogueEntry const *entry = findErrorCatalogueEntry(code);
    if (!entry) return std::string();
    std::string id = entry->id;
    id[id.find('_')] = ':';
    return id;
}
} // namespace

Error::Error(message_code_vor_msg code, std::string const &text)
    : std::runtime_error(text), m_code(code), m_id(scriptId(code)), m_text(text)
{
}

Error::~Error() = default;

std::string Error::catalogueId() const
{
    ErrorCatalogueEntry const *entry = findErrorCatalogueEntry(m_code);
    return entry ? std::string(entry->id) : std::string();
}

} // namespace VOR2
