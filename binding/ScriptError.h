#pragma once
// VOR2::script::ScriptError: a failure at the script border that is not one
// of the library's catalogue errors: a value of the wrong shape or type, an
// unknown class, property or method. It carries the host's error id
// ("Color:InvalidValue", "VOR2:WrongType") and the text. The gateway raises
// it in the host as an error with that id; nothing has been changed when it
// is thrown, since every argument is converted before the library is called.

#include <stdexcept>
#include <string>

namespace VOR2::script {

class ScriptError : public std::runtime_error {
public:
    ScriptError(std::string id, std::string const &text) : std::runtime_error(text), m_id(std::move(id)) {}
    std::string const &id() const { return m_id; }

private:
    std::string m_id;
};

[[noreturn]] inline void raise(std::string id, std::string const &text) { throw ScriptError(std::move(id), text); }

} // namespace VOR2::script
