#pragma once
// The built scenes that the query, render and server benchmarks share: one
// per system for one workload and size at a time. Asking for another
// workload or size tears the previous ones down first, so at most one set
// lives at a time. Host thread.

#include "Systems.h"

#include <memory>

namespace bench {

class Fixture {
public:
    static Fixture &get(Workload w, int n);
    // Destroys the current set, if any.
    static void release();

    BuiltScene &scene(System s);
    Workload workload() const { return m_workload; }
    int size() const { return m_n; }

private:
    Fixture(Workload w, int n);
    Workload m_workload;
    int m_n;
    std::unique_ptr<BuiltScene> m_scenes[4];
};

} // namespace bench
