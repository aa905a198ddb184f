#pragma once
// Enumerations at the script border are told by name. EnumNames<E> lists
// the names of E in a specialisation of entries() (in binding/EnumTables.cpp
// or next to the class that uses it); toEnum and fromEnum look them up in two
// maps built once, on first use: name to value and value to name.
//
// toEnum of a string that is not a name, or of anything but a char row,
// throws the catalogue's VOR2_ExpectedEnumValue with the names joined by
// ", " in its placeholder. fromEnum of a value with no name gives "Invalid".

#include "Error"
#include "binding/ScriptValue.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace VOR2::script {

template <class E>
struct EnumNames {
    static std::vector<std::pair<E, char const *>> entries();
};

template <class E>
class EnumTable {
public:
    static EnumTable const &instance()
    {
        static EnumTable const table;
        return table;
    }
    std::map<std::string, E> byName;
    std::map<E, std::string> byValue;
    std::string joined;

private:
    EnumTable()
    {
        for (auto const &[value, name] : EnumNames<E>::entries()) {
            byName.emplace(name, value);
            byValue.emplace(value, name);
            joined += (joined.empty() ? "" : ", ") + std::string(name);
        }
    }
};

template <class E>
E toEnum(Value const &v)
{
    EnumTable<E> const &table = EnumTable<E>::instance();
    if (v.type() == Value::Type::Char) {
        auto it = table.byName.find(v.text());
        if (it != table.byName.end()) return it->second;
    }
    throwError(VOR2_ExpectedEnumValue, table.joined);
}

template <class E>
Value fromEnum(E e)
{
    EnumTable<E> const &table = EnumTable<E>::instance();
    auto it = table.byValue.find(e);
    return Value::string(it == table.byValue.end() ? "Invalid" : it->second);
}

} // namespace VOR2::script
