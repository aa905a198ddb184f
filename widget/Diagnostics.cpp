#include "Diagnostics"

#include "ut/Assert.h"

#include <charconv>
#include <climits>

namespace VOR2 {

Diagnostics *Diagnostics::m_globalInstance = nullptr;

Diagnostics::RecordAbs::~RecordAbs() = default;

Diagnostics::Diagnostics() = default;

Diagnostics::~Diagnostics()
{
    for (auto &entry : m_records) delete entry.second;
}

Diagnostics &Diagnostics::global()
{
    // Never destroyed: nodes that die during static destruction still count.
    static std::once_flag once;
    std::call_once(once, [] { m_globalInstance = new Diagnostics; });
    return *m_globalInstance;
}

Diagnostics::RecordAbs *Diagnostics::findOrMake(std::string const &name, RecordAbs *(*make)())
{
    std::lock_guard<std::mutex> lock(m_mutex);
    auto it = m_records.find(name);
    if (it == m_records.end()) it = m_records.emplace(name, make()).first;
    return it->second;
}

Diagnostics::RecordAbs *Diagnostics::get(std::string const &name)
{
    return findOrMake(name, []() -> RecordAbs * { return new Record<int>; });
}

Diagnostics::RecordMap Diagnostics::getRecords() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_records;
}

void Diagnostics::setLastDisplayedTime(std::uint64_t time)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_lastDisplayedTime = time;
}

std::uint64_t Diagnostics::lastDisplayedTime() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_lastDisplayedTime;
}

template <class Name>
void Diagnostics::addTo(Name const &name, int delta)
{
    RecordAbs *record = nullptr;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        auto it = m_records.find(name);
        if (it == m_records.end()) it = m_records.emplace(std::string(name), new Record<int>).first;
        record = it->second;
    }
    switch (record->kind()) {
    case Kind::Int:
        static_cast<Record<int> *>(record)->add(delta);
        break;
    case Kind::Double:
        static_cast<Record<double> *>(record)->add(delta);
        break;
    case Kind::String:
        ut_assert_text(false, "a number is added to a string record", __FILE__, __LINE__);
    }
}

template <class Name>
int Diagnostics::intValueOf(Name const &name) const
{
    RecordAbs *record = nullptr;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        auto it = m_records.find(name);
        if (it == m_records.end()) return 0;
        record = it->second;
    }
    switch (record->kind()) {
    case Kind::Int:
        return static_cast<Record<int> *>(record)->value();
    case Kind::Double: {
        double const v = static_cast<Record<double> *>(record)->value();
        if (!(v > double(INT_MIN))) return v == v ? INT_MIN : 0; // NaN gives 0
        return v < double(INT_MAX) ? int(v) : INT_MAX;
    }
    case Kind::String:
        break;
    }
    return 0;
}

void Diagnostics::add(char const *name, int delta)
{
    global().addTo(name, delta);
}

void Diagnostics::add(std::string const &name, int delta)
{
    global().addTo(name, delta);
}

int Diagnostics::intValue(char const *name)
{
    return global().intValueOf(name);
}

int Diagnostics::intValue(std::string const &name)
{
    return global().intValueOf(name);
}

std::string Diagnostics::convertToString(double value)
{
    char buffer[32];
    auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
    return std::string(buffer, result.ptr);
}

std::string Diagnostics::convertToString(int value)
{
    return std::to_string(value);
}

std::string Diagnostics::convertToString(std::string const &value)
{
    return value;
}

} // namespace VOR2
