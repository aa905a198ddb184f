#include <MomentumController>

#include "tools/MomentumSampling.h"

#include "GLServices/GLService.h"
#include "GLServices/TarvoTimerService.h"
#include "GLUV/Thread.h"

#include <chrono>
#include <cmath>

namespace VOR2 {

static_assert(MomentumController::E == MomentumSampling::E, "one base of decay");

MomentumController::MomentumController() : m_sampling(std::make_unique<MomentumSampling>()) { restartClock(); }

MomentumController::~MomentumController()
{
    disconnectAll();
    if (m_timer) m_timer->stop();
}

MomentumController::Clock MomentumController::now() const
{
    if (GLServices::TarvoTimerService *service = GLServices::GLService<GLServices::TarvoTimerService>::get())
        return service->now().count();
    using namespace std::chrono;
    return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
}

bool MomentumController::sampleLocation(Point const &p)
{
    if (m_isNotifying) return false;
    Clock const elapsed = now() - m_clockStart;
    if (elapsed < 0) {
        // The clock was switched (a manual clock came or went): measure from
        // here on, or every later sample would be refused.
        restartClock();
        return false;
    }
    if (!m_sampling->sample(p, double(elapsed), m_velocityMovingAveragePeriodSec)) return false;
    restartClock();
    return true;
}

void MomentumController::beginMomentumNotifications()
{
    if (m_isNotifying || !m_sampling->hasSamples()) return;
    calculateReleaseVelocity();
    m_isNotifying = true;
    restartClock();
    momentumStartedEmitter.send();
    if (!m_timer) {
        if (GLServices::TarvoTimerService *service = GLServices::GLService<GLServices::TarvoTimerService>::get()) {
            m_timer = service->createTimer();
            m_timer->tick().connect(this, &MomentumController::sendNextVelocityNotification,
                                    GLUV::Thread::getNamedThread("TARVO"));
        }
    }
    if (m_timer)
        m_timer->startRepeating(m_notificationIntervalMillisec);
    else
        endMomentumNotifications(); // nothing would ever tick
}

void MomentumController::endMomentumNotifications()
{
    if (!m_isNotifying) return;
    stopGlide();
}

void MomentumController::applyMultiplierOnReleaseMagnitude(double m) { m_sampling->multiplyMagnitude(m); }

bool MomentumController::hasSamples() const { return m_sampling->hasSamples(); }
double MomentumController::getReleaseMagnitude() const { return m_sampling->releaseMagnitude(); }
MomentumController::Point MomentumController::getReleaseDirection() const { return m_sampling->releaseDirection(); }

void MomentumController::resetSampling()
{
    restartClock();
    m_sampling->reset();
}

void MomentumController::calculateReleaseVelocity() { m_sampling->divideMagnitude(m_velocityConstantDivisor); }

void MomentumController::sendNextVelocityNotification()
{
    double const t = double(now() - m_clockStart) / 1000.0;
    double const v = m_sampling->magnitudeAt(t, m_dragCoefficient);
    // An infinite or NaN magnitude (a divisor of 0) would glide for ever:
    // it ends the glide like a slow one.
    if (std::isfinite(v) && !(v < m_stopVelocity)) {
        // One step per tick; a late tick is not lengthened, the decay
        // follows the clock.
        velocityEmitter.send(m_sampling->releaseDirection() * v);
    } else if (m_isNotifying) {
        stopGlide();
    }
}

void MomentumController::stopGlide()
{
    if (m_timer) m_timer->stop();
    m_isNotifying = false;
    resetSampling();
    momentumEndedEmitter.send();
}

} // namespace VOR2
