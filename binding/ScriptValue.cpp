#include "binding/ScriptValue.h"

namespace VOR2::script {

Value Value::matrix(std::size_t rows, std::size_t cols, std::vector<double> numbers)
{
    Value v;
    v.m_type = Type::Double;
    v.m_rows = rows;
    v.m_cols = cols;
    v.m_numbers = std::move(numbers);
    return v;
}

Value Value::row(std::vector<double> numbers)
{
    std::size_t n = numbers.size();
    return matrix(n ? 1 : 0, n, std::move(numbers));
}

Value Value::scalar(double d) { return matrix(1, 1, {d}); }

Value Value::logical(bool b)
{
    Value v = scalar(b ? 1.0 : 0.0);
    v.m_type = Type::Logical;
    return v;
}

Value Value::int32(std::int32_t i)
{
    Value v = scalar(i);
    v.m_type = Type::Int32;
    return v;
}

Value Value::uint32(std::uint32_t i)
{
    Value v = scalar(i);
    v.m_type = Type::UInt32;
    return v;
}

Value Value::string(std::string s)
{
    Value v;
    v.m_type = Type::Char;
    v.m_rows = 1;
    v.m_cols = s.size();
    v.m_text = std::move(s);
    return v;
}

Value Value::bytes(std::size_t rows, std::size_t cols, std::size_t pages, std::vector<std::uint8_t> bytes)
{
    Value v;
    v.m_type = Type::UInt8;
    v.m_rows = rows;
    v.m_cols = cols;
    v.m_pages = pages;
    v.m_bytes = std::move(bytes);
    return v;
}

Value Value::handle(std::string className, std::uint64_t id)
{
    Value v;
    v.m_type = Type::Handle;
    v.m_rows = v.m_cols = id ? 1 : 0;
    v.m_text = std::move(className);
    v.m_id = id;
    return v;
}

Value Value::nullObject(std::string className)
{
    Value v = handle(std::move(className), 0);
    v.m_rows = v.m_cols = 1;
    return v;
}

Value Value::valueObject(std::string className, Value state)
{
    Value v;
    v.m_type = Type::ValueObject;
    v.m_rows = v.m_cols = 1;
    v.m_text = std::move(className);
    v.m_items.push_back(std::move(state));
    return v;
}

Value Value::cell(std::vector<Value> items)
{
    Value v;
    v.m_type = Type::Cell;
    v.m_rows = items.empty() ? 0 : 1;
    v.m_cols = items.size();
    v.m_items = std::move(items);
    return v;
}

Value Value::structure(std::vector<std::pair<std::string, Value>> fields)
{
    Value v;
    v.m_type = Type::Struct;
    v.m_rows = v.m_cols = 1;
    for (auto &f : fields) {
        v.m_names.push_back(std::move(f.first));
        v.m_items.push_back(std::move(f.second));
    }
    return v;
}

bool Value::isNumeric() const
{
    return m_type == Type::Double || m_type == Type::Logical || m_type == Type::Int32 || m_type == Type::UInt32;
}

Value const *Value::field(std::string const &name) const
{
    if (m_type != Type::Struct) return nullptr;
    for (std::size_t i = 0; i < m_names.size(); ++i)
        if (m_names[i] == name) return &m_items[i];
    return nullptr;
}

std::string Value::describe() const
{
    std::string size = std::to_string(m_rows) + "x" + std::to_string(m_cols) + " ";
    switch (m_type) {
    case Type::Empty: return "[]";
    case Type::Double: return size + "double";
    case Type::Logical: return size + "logical";
    case Type::Int32: return size + "int32";
    case Type::UInt32: return size + "uint32";
    case Type::UInt8: return size.substr(0, size.size() - 1) + "x" + std::to_string(m_pages) + " uint8";
    case Type::Char: return size + "char";
    case Type::Handle:
    case Type::ValueObject: return m_text;
    case Type::Cell: return size + "cell";
    case Type::Struct: return "struct";
    }
    return "?";
}

} // namespace VOR2::script
