#pragma once
// CountRecord: one int record of the global Diagnostics register, looked up
// once. Counting through it takes one uncontended lock instead of a search
// of the register by name, so that it can sit on paths run once per node.

#include <Diagnostics>

namespace VOR2 {

class CountRecord {
public:
    explicit CountRecord(char const *name) : m_record(Diagnostics::global().getAs<int>(name)) {}
    // Does nothing when the name holds a record of another type.
    void add(int delta)
    {
        if (m_record) m_record->add(delta);
    }

private:
    Diagnostics::Record<int> *m_record;
};

} // namespace VOR2
