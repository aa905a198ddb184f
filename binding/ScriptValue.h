#pragma once
// VOR2::script::Value: a value at the script border, in the shapes the
// script host knows: an empty array, a double, logical, int32 or uint32
// matrix, a char row, a handle object (its class and registry id), a value
// object (its class and its fields as a struct), a cell row and a struct,
// and, from the library to the host only, a uint8 array of up to three
// dimensions (the pixels of an image).
// The gateway turns these into the host's own arrays and back; everything
// on the library side of the border sees only this type, so the border's
// conversions can be built and tested without the host.
//
// Matrices keep the host's column-major order: element (r, c) is at
// numbers[c * rows + r].

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace VOR2::script {

class Value {
public:
    enum class Type { Empty, Double, Logical, Int32, UInt32, UInt8, Char, Handle, ValueObject, Cell, Struct };

    Value() = default;

    static Value matrix(std::size_t rows, std::size_t cols, std::vector<double> numbers);
    static Value row(std::vector<double> numbers);
    static Value scalar(double d);
    static Value logical(bool b);
    static Value int32(std::int32_t i);
    static Value uint32(std::uint32_t i);
    static Value string(std::string s);
    // A rows x cols x pages uint8 array, column-major over all three
    // dimensions: element (r, c, p) is at bytes[(p * cols + c) * rows + r].
    static Value bytes(std::size_t rows, std::size_t cols, std::size_t pages, std::vector<std::uint8_t> bytes);
    // A handle object of `className` on registry entry `id`; id 0 is the
    // empty array of that class.
    static Value handle(std::string className, std::uint64_t id);
    // One object of `className` on no entry (not the empty array): the
    // default object of a class, whose every call fails as on an empty
    // value.
    static Value nullObject(std::string className);
    // A value object of `className` whose fields are `state` (a Struct).
    static Value valueObject(std::string className, Value state);
    static Value cell(std::vector<Value> items);
    static Value structure(std::vector<std::pair<std::string, Value>> fields);

    Type type() const { return m_type; }
    bool isEmpty() const { return m_type == Type::Empty || (isNumeric() && m_numbers.empty()); }
    bool isNumeric() const;
    std::size_t rows() const { return m_rows; }
    std::size_t cols() const { return m_cols; }
    std::size_t pages() const { return m_pages; }
    std::size_t numel() const { return m_rows * m_cols * m_pages; }
    std::vector<double> const &numbers() const { return m_numbers; }
    std::vector<std::uint8_t> const &bytes() const { return m_bytes; }
    std::string const &text() const { return m_text; }
    std::string const &className() const { return m_text; }
    std::uint64_t id() const { return m_id; }
    std::vector<Value> const &items() const { return m_items; }
    // Struct fields, in order; the state of a value object.
    std::vector<std::string> const &fieldNames() const { return m_names; }
    Value const *field(std::string const &name) const;
    Value const &state() const { return m_items.front(); }

    // A short description for messages: "1x3 double", "char", "VOR2.Node".
    std::string describe() const;

private:
    Type m_type = Type::Empty;
    std::size_t m_rows = 0, m_cols = 0, m_pages = 1;
    std::vector<double> m_numbers;
    std::vector<std::uint8_t> m_bytes;
    std::string m_text;
    std::uint64_t m_id = 0;
    std::vector<Value> m_items;
    std::vector<std::string> m_names;
};

} // namespace VOR2::script
