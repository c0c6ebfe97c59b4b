#include "core/WholeSeconds.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace kestrelfen {
namespace {

constexpr double firstTooLarge = 9'223'372'036'854'775'808.0;

TEST(WholeSeconds, RoundUpwardOrToTheNearest) {
    struct Row {
        double seconds;
        std::int64_t roundedUp;
        std::int64_t nearest;
    };
    for (const auto& [seconds, roundedUp, nearest] :
         {Row{20, 20, 20}, Row{20.01, 21, 20}, Row{20.5, 21, 21}, Row{0, 0, 0}, Row{-0.2, 0, 0},
          Row{-1.5, -1, -2}, Row{1e15, 1'000'000'000'000'000, 1'000'000'000'000'000}}) {
        EXPECT_EQ(WholeSeconds::roundedUp(seconds), roundedUp) << seconds;
        EXPECT_EQ(WholeSeconds::nearest(seconds), nearest) << seconds;
    }
}

TEST(WholeSeconds, ReachToTheEndsOf64Bits) {
    EXPECT_EQ(WholeSeconds::roundedUp(-firstTooLarge), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(WholeSeconds::nearest(std::nextafter(firstTooLarge, 0)), 9'223'372'036'854'774'784);
}

TEST(WholeSecondsDeathTest, WhatFitsNo64BitsStopsTheProgram) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
    for (const double seconds : {firstTooLarge, -1e19, 1e300, infinity, -infinity, notANumber}) {
        EXPECT_DEATH(WholeSeconds::roundedUp(seconds), "a number of seconds that cannot be written");
        EXPECT_DEATH(WholeSeconds::nearest(seconds), "a number of seconds that cannot be written");
    }
}

} // namespace
} // namespace kestrelfen
