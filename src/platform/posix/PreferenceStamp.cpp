#include "platform/posix/PreferenceStamp.hpp"

#include <cstdint>
#include <ctime>

namespace kestrelfen {

namespace {

constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;

/// Twice the longest tick by which file systems date their changes.
constexpr std::int64_t freshNanoseconds = 20'000'000;

std::int64_t nanoseconds(const timespec& time) {
    return std::int64_t{time.tv_sec} * nanosecondsPerSecond + time.tv_nsec;
}

std::int64_t nowNanoseconds() {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    return nanoseconds(now);
}

} // namespace

PreferenceStamp PreferenceStamp::of(const std::string& path) {
    PreferenceStamp stamp;
    stamp.file_ = FileStamp::of(path);
    stamp.isTooFresh_ = nowNanoseconds() - nanoseconds(stamp.file_.changed) < freshNanoseconds;
    return stamp;
}

} // namespace kestrelfen
