#pragma once
// MomentumSampling: the arithmetic behind MomentumController, without clock,
// timer or signals. It is fed pointer locations with the time since the
// previous one and keeps a duration-weighted moving average of the speed
// over a sliding window, and the direction of the last non-zero speed. After
// release, magnitudeAt(t) is the displacement per tick t seconds later, an
// exponential decay of the release magnitude. Plain value; any thread.

#include "GLOX/GLPoint.h"

namespace VOR2 {

class MomentumSampling {
public:
    using Point = GLOX::GLPoint<double>;

    // The base of the decay: deliberately this truncated value, not the
    // exact e, so that glide lengths stay the same to the last digit.
    static constexpr double E = 2.718281828;

    // Feeds location p, seen elapsedMs after the previous sample (or the
    // reset). A sample less than one millisecond after the previous one is
    // dropped: its speed cannot be measured; false then, and nothing
    // changes. The first sample only starts the window. A sample longer than
    // the window replaces the average altogether.
    bool sample(Point const &p, double elapsedMs, double windowSec);

    // Back to no samples; the last location stays.
    void reset();
    // Turns the averaged speed into the release magnitude.
    void divideMagnitude(double divisor) { m_releaseMagnitude /= divisor; }
    void multiplyMagnitude(double m) { m_releaseMagnitude *= m; }

    // The displacement per tick tSec seconds after the release.
    double magnitudeAt(double tSec, double dragCoefficient) const;
    // The displacement vector per tick tSec seconds after the release.
    Point velocityAt(double tSec, double dragCoefficient) const
    {
        return m_releaseDirection * magnitudeAt(tSec, dragCoefficient);
    }

    bool hasSamples() const { return m_hasSamples; }
    // Seconds that the average covers; 0.0 before the first sample.
    double sampledPeriod() const { return m_sampledPeriod; }
    Point const &lastLocation() const { return m_lastLocation; }
    // Unit direction of the last non-zero speed, or (0, 0).
    Point const &releaseDirection() const { return m_releaseDirection; }
    double releaseMagnitude() const { return m_releaseMagnitude; }

private:
    double m_sampledPeriod = 0.0;
    Point m_lastLocation;
    Point m_releaseDirection;
    double m_releaseMagnitude = 0.0;
    bool m_hasSamples = false;
};

} // namespace VOR2
