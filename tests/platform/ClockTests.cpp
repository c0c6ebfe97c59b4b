#include "base/CivilTime.hpp"
#include "platform/fake/FakeClock.hpp"
#include "platform/posix/PosixClock.hpp"
#include "platform/posix/Stopwatch.hpp"

#include <gtest/gtest.h>

#include <chrono>
#include <set>

namespace kestrelfen {
namespace {

std::int64_t microsecondsByChrono() {
    using namespace std::chrono;
    return duration_cast<microseconds>(system_clock::now().time_since_epoch()).count();
}

TEST(FakeClock, standsUntilItIsMoved) {
    FakeClock clock;
    EXPECT_EQ(isoTime(clock.now(), 6), "2026-03-09T08:00:00.000000Z");
    EXPECT_EQ(clock.now(), clock.now());
    clock.advance(0.1);
    clock.advance(0.2);
    EXPECT_EQ(clock.now(), FakeClock::beginning + 0.3);
    clock.advanceMicroseconds(-300'001);
    EXPECT_EQ(isoTime(clock.now(), 6), "2026-03-09T07:59:59.999999Z");
    clock.set(Date::distantPast());
    EXPECT_EQ(clock.now(), Date::distantPast());
}

TEST(PosixClock, isTheWallClockInMicroseconds) {
    const PosixClock clock;
    const std::int64_t before = microsecondsByChrono();
    const Date now = clock.now();
    const std::int64_t after = microsecondsByChrono();
    EXPECT_LE(before, now.microseconds());
    EXPECT_LE(now.microseconds(), after);
}

TEST(PosixClock, isFinerThanAMillisecond) {
    const PosixClock clock;
    std::set<std::int64_t> parts;
    for (int reading = 0; reading < 10'000; ++reading) {
        parts.insert(clock.now().microseconds() % 1'000);
    }
    EXPECT_GT(parts.size(), 1U);
}

TEST(Stopwatch, measuresWhatLiesBetweenAndNeverGoesBack) {
    using Steady = std::chrono::steady_clock;
    const auto outer = Steady::now();
    const Stopwatch stopwatch;
    const auto inner = Steady::now();
    double last = 0;
    for (int reading = 0; reading < 1'000; ++reading) {
        const double seconds = stopwatch.seconds();
        ASSERT_GE(seconds, last);
        last = seconds;
    }
    const double atLeast = std::chrono::duration<double>(Steady::now() - inner).count();
    const double reading = stopwatch.seconds();
    EXPECT_GE(reading, atLeast);
    EXPECT_LE(reading, std::chrono::duration<double>(Steady::now() - outer).count());
    EXPECT_GT(reading, 0);
}

} // namespace
} // namespace kestrelfen
