#include "core/DailyCounter.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "support/Moments.hpp"

#include <gtest/gtest.h>

#include <limits>

namespace kestrelfen {
namespace {

constexpr std::string_view key = "snoozesPerDay";

class DailyCounterTest : public testing::Test {
  protected:
    std::int64_t used(Date dayStart) const { return DailyCounter::used(preferences, key, dayStart); }
    void increment(Date dayStart) { DailyCounter::increment(preferences, key, dayStart); }

    FakePreferences preferences;
    const Date today = at("00:00:00");
    const Date tomorrow = at("2026-03-10 00:00:00");
};

TEST_F(DailyCounterTest, UsedIsZeroForAKeyThatWasNeverIncremented) {
    EXPECT_EQ(used(today), 0);
    EXPECT_TRUE(preferences.all().empty());
}

TEST_F(DailyCounterTest, IncrementStoresTheDayAndTheSumBesideTheQuota) {
    increment(today);
    increment(today);
    EXPECT_EQ(used(today), 2);
    const std::map<std::string, PreferenceValue> expected{{"snoozesPerDay.count", std::int64_t{2}},
                                                          {"snoozesPerDay.day", today}};
    EXPECT_EQ(preferences.all(), expected);
}

TEST_F(DailyCounterTest, TheDayIsStoredBeforeTheSum) {
    std::vector<std::size_t> sizes;
    const auto subscription = preferences.observe([&] {
        sizes.push_back(preferences.all().size());
        EXPECT_EQ(preferences.date("snoozesPerDay.day"), today);
    });
    increment(today);
    EXPECT_EQ(sizes, (std::vector<std::size_t>{1, 2}));
}

TEST_F(DailyCounterTest, UsedIsZeroAfterADayChangeWithoutAnyWrite) {
    increment(today);
    const auto before = preferences.all();
    EXPECT_EQ(used(tomorrow), 0);
    EXPECT_EQ(preferences.all(), before);
    EXPECT_EQ(used(today), 1);
}

TEST_F(DailyCounterTest, TheFirstIncrementOfANewDayOverwritesTheOldDay) {
    increment(today);
    increment(today);
    increment(tomorrow);
    EXPECT_EQ(used(tomorrow), 1);
    EXPECT_EQ(used(today), 0);
}

TEST_F(DailyCounterTest, TheDayMustBeExactlyTheStoredOne) {
    increment(today);
    EXPECT_EQ(used(today + 0.000001), 0);
    EXPECT_EQ(used(today - 0.000001), 0);
}

TEST_F(DailyCounterTest, ADayThatIsNoDateCountsAsNone) {
    preferences.set("snoozesPerDay.count", 3);
    EXPECT_EQ(used(today), 0);
    preferences.set("snoozesPerDay.day", "2026-03-09");
    EXPECT_EQ(used(today), 0);
    preferences.set("snoozesPerDay.day", 1772755200);
    EXPECT_EQ(used(today), 0);
    preferences.set("snoozesPerDay.day", today);
    EXPECT_EQ(used(today), 3);
}

TEST_F(DailyCounterTest, ADayWithoutACountIsZeroUses) {
    preferences.set("snoozesPerDay.day", today);
    EXPECT_EQ(used(today), 0);
    preferences.set("snoozesPerDay.count", "many");
    EXPECT_EQ(used(today), 0);
}

TEST_F(DailyCounterTest, TheQuotaItselfTakesNoPart) {
    preferences.set("snoozesPerDay", 5);
    EXPECT_EQ(used(today), 0);
    increment(today);
    EXPECT_EQ(preferences.integer("snoozesPerDay"), 5);
}

TEST_F(DailyCounterTest, EachQuotaCountsForItself) {
    increment(today);
    DailyCounter::increment(preferences, "advanceSkipsPerDay", today);
    DailyCounter::increment(preferences, "advanceSkipsPerDay", today);
    EXPECT_EQ(used(today), 1);
    EXPECT_EQ(DailyCounter::used(preferences, "advanceSkipsPerDay", today), 2);
}

TEST_F(DailyCounterTest, ASumThatCannotGrowStays) {
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    preferences.set("snoozesPerDay.day", today);
    preferences.set("snoozesPerDay.count", largest - 1);
    increment(today);
    increment(today);
    EXPECT_EQ(used(today), largest);
}

} // namespace
} // namespace kestrelfen
