#pragma once
// The id and text of the error a call at the script border throws: a
// ScriptError or the library's catalogue Error; two empty strings when it
// throws none.
#include "Error"
#include "binding/ScriptError.h"

#include <string>
#include <utility>

template <class F>
std::pair<std::string, std::string> errorOf(F &&f)
{
    try {
        f();
    } catch (VOR2::script::ScriptError const &e) {
        return {e.id(), e.what()};
    } catch (VOR2::Error const &e) {
        return {e.id(), e.text()};
    }
    return {"", ""};
}
