#include "tools/MomentumSampling.h"

#include <algorithm>
#include <cmath>

namespace VOR2 {

namespace {

// p scaled to length 1, or (0, 0) when it is too short to have a direction.
MomentumSampling::Point normalised(MomentumSampling::Point const &p)
{
    double const len = std::hypot(p.x, p.y);
    if (std::fabs(len) <= 0.0001) return {};
    return {p.x / len, p.y / len};
}

} // namespace

bool MomentumSampling::sample(Point const &p, double elapsedMs, double windowSec)
{
    if (!(elapsedMs >= 1.0)) return false;
    double const dt = elapsedMs / 1000.0;
    double const clampedDt = std::min(dt, windowSec);
    if (m_sampledPeriod == 0.0) {
        m_sampledPeriod = clampedDt;
    } else {
        m_hasSamples = true;
        Point const velocity = (p - m_lastLocation) * (1.0 / dt);
        double const speed = std::hypot(velocity.x, velocity.y);
        if (speed > 0.0) m_releaseDirection = normalised(velocity);
        // The share of the old average still inside the window.
        double const kept = std::min(windowSec - clampedDt, m_sampledPeriod);
        m_sampledPeriod = kept + clampedDt;
        m_releaseMagnitude = (kept * m_releaseMagnitude + clampedDt * speed) / (kept + clampedDt);
    }
    m_lastLocation = p;
    return true;
}

void MomentumSampling::reset()
{
    m_sampledPeriod = 0.0;
    m_hasSamples = false;
    m_releaseMagnitude = 0.0;
    m_releaseDirection = {};
}

double MomentumSampling::magnitudeAt(double tSec, double dragCoefficient) const
{
    return std::pow(E, -(tSec * dragCoefficient)) * m_releaseMagnitude;
}

} // namespace VOR2
