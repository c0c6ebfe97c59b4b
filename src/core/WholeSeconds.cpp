#include "core/WholeSeconds.hpp"

#include "base/Fault.hpp"

#include <cmath>

namespace kestrelfen {

namespace {

std::int64_t whole(double rounded) {
    constexpr double end = 9'223'372'036'854'775'808.0;
    if (!(rounded >= -end && rounded < end)) {
        fault("a number of seconds that cannot be written");
    }
    return static_cast<std::int64_t>(rounded);
}

} // namespace

std::int64_t WholeSeconds::nearest(double seconds) {
    return whole(std::round(seconds));
}

std::int64_t WholeSeconds::roundedUp(double seconds) {
    return whole(std::ceil(seconds));
}

} // namespace kestrelfen
