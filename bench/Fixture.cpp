#include "Fixture.h"

#include "GLServices/HostRunLoop.h"
#include <HostRuntime>

namespace bench {

namespace {
std::unique_ptr<Fixture> &current()
{
    static std::unique_ptr<Fixture> f;
    return f;
}
} // namespace

Fixture::Fixture(Workload w, int n) : m_workload(w), m_n(n)
{
    for (System s : {System::VOR2, System::QtBsp, System::QtNoIndex, System::Painter})
        m_scenes[int(s)] = std::make_unique<BuiltScene>(s, shapes(w, n), true);
    // Let Qt and VOR2 settle what adding queued (index, change batches).
    VOR2::HostRuntime::loop().runUntilIdle();
}

Fixture &Fixture::get(Workload w, int n)
{
    std::unique_ptr<Fixture> &f = current();
    if (!f || f->m_workload != w || f->m_n != n) {
        f.reset();
        f.reset(new Fixture(w, n));
    }
    return *f;
}

void Fixture::release() { current().reset(); }

BuiltScene &Fixture::scene(System s) { return *m_scenes[int(s)]; }

} // namespace bench
