#include "platform/posix/PosixClock.hpp"

#include <ctime>

namespace kestrelfen {

Date PosixClock::now() const {
    timespec time{};
    clock_gettime(CLOCK_REALTIME, &time);
    return Date::fromMicroseconds(std::int64_t{time.tv_sec} * 1'000'000 + time.tv_nsec / 1'000);
}

} // namespace kestrelfen
