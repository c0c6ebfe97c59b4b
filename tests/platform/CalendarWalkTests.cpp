#include "platform/CalendarOracle.hpp"
#include "platform/CalendarSubjects.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace kestrelfen {
namespace {

template <typename Subject>
class CalendarWalk : public testing::Test {
  protected:
    /// Asks one and the same calendar for every sample, in this order.
    void expectAllRight(const std::vector<CalendarSample>& samples) {
        for (const CalendarSample& sample : samples) {
            subject_.setZone(sample.zone);
            const Calendar& calendar = subject_.calendar();
            const std::string where = sample.zone + " at " + isoTime(sample.date, 6);
            ASSERT_EQ(isoTime(calendar.startOfDay(sample.date), 6), isoTime(sample.startOfDay, 6)) << where;
            ASSERT_EQ(isoTime(calendar.startOfDay(sample.date, sample.days), 6),
                      isoTime(sample.startOfOtherDay, 6))
                << where << " and " << sample.days << " days";
        }
    }

    Subject subject_;
};

TYPED_TEST_SUITE(CalendarWalk, CalendarSubjects);

TYPED_TEST(CalendarWalk, everyDayBeginsAtItsFirstSecond) {
    this->expectAllRight(calendarSamples());
}

TYPED_TEST(CalendarWalk, theOrderOfAskingMakesNoDifference) {
    auto samples = calendarSamples();
    std::sort(samples.begin(), samples.end(), [](const auto& one, const auto& other) {
        return std::pair(one.zone, one.date) < std::pair(other.zone, other.date);
    });
    this->expectAllRight(samples);
    std::reverse(samples.begin(), samples.end());
    this->expectAllRight(samples);
}

TYPED_TEST(CalendarWalk, switchingTheZoneBetweenAnyTwoQuestionsMakesNoDifference) {
    auto samples = calendarSamples();
    std::mt19937 random(5);
    std::shuffle(samples.begin(), samples.end(), random);
    this->expectAllRight(samples);
}

TYPED_TEST(CalendarWalk, whatIsRememberedOfOneDateIsNeverWrongForItsNeighbours) {
    std::mt19937_64 random(6);
    std::uniform_int_distribution<std::int64_t> distance(-200'000'000'000, 200'000'000'000);
    TypeParam fresh;
    for (const CalendarSample& sample : calendarSamples()) {
        this->subject_.setZone(sample.zone);
        fresh.setZone(sample.zone);
        this->subject_.calendar().startOfDay(sample.date);
        const Date neighbour = Date::fromMicroseconds(sample.date.microseconds() + distance(random));
        const Calendar& calendar = fresh.calendar();
        ASSERT_EQ(isoTime(this->subject_.calendar().startOfDay(neighbour), 6),
                  isoTime(calendar.startOfDay(calendar.civilTime(neighbour).day), 6))
            << sample.zone << " at " << isoTime(neighbour, 6);
    }
}

} // namespace
} // namespace kestrelfen
