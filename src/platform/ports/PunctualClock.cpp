#include "platform/ports/PunctualClock.hpp"

#include <cmath>

namespace kestrelfen {

namespace {

/// Seconds. Beyond this the clock was set or the machine was held up.
constexpr double punctual = 0.1;

} // namespace

Date PunctualClock::dateOfFiring(Date due) const {
    const Date now = clock_.now();
    return std::abs(now - due) <= punctual ? due : now;
}

void PunctualClock::fireAt(Date date, const std::function<void()>& fire) {
    firing_ = date;
    fire();
    firing_.reset();
}

} // namespace kestrelfen
