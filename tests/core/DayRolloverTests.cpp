#include "core/DayRollover.hpp"
#include "platform/fake/FakeCalendar.hpp"
#include "support/Moments.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

class DayRolloverTest : public testing::Test {
  protected:
    DayRollover& begin(std::string_view zone, std::string_view moment) {
        calendar.setZone(zone);
        rollover = std::make_unique<DayRollover>(at(moment), calendar);
        rollover->onRollover = [this](Date from, Date to) {
            EXPECT_EQ(rollover->currentDayStart(), to) << "set before the callback";
            calls += momentText(from) + " -> " + momentText(to) + "; ";
        };
        return *rollover;
    }

    FakeCalendar calendar;
    std::unique_ptr<DayRollover> rollover;
    std::string calls;
};

TEST_F(DayRolloverTest, BeginsOnTheLocalDayOfItsCreation) {
    EXPECT_EQ(begin("UTC", "08:00:00").currentDayStart(), at("00:00:00"));
    EXPECT_EQ(begin("Asia/Tokyo", "08:00:00").currentDayStart(), at("2026-03-08 15:00:00"));
    EXPECT_EQ(begin("America/New_York", "03:59:59").currentDayStart(), at("2026-03-08 05:00:00"));
    EXPECT_EQ(calls, "");
}

TEST_F(DayRolloverTest, ADateOfTheSameDayChangesNothing) {
    begin("UTC", "08:00:00");
    for (const char* moment : {"00:00:00", "08:00:00", "23:59:59.999", "23:59:59.999999"}) {
        EXPECT_FALSE(rollover->check(at(moment))) << moment;
    }
    EXPECT_EQ(calls, "");
    EXPECT_EQ(rollover->currentDayStart(), at("00:00:00"));
}

TEST_F(DayRolloverTest, MidnightItselfIsTheNewDay) {
    begin("UTC", "23:59:59.999");
    EXPECT_TRUE(rollover->check(at("2026-03-10 00:00:00")));
    EXPECT_EQ(calls, "00:00:00 -> 2026-03-10 00:00:00; ");
    EXPECT_FALSE(rollover->check(at("2026-03-10 00:00:01")));
    EXPECT_EQ(calls, "00:00:00 -> 2026-03-10 00:00:00; ");
}

TEST_F(DayRolloverTest, GoingBackOverMidnightIsARolloverToo) {
    begin("UTC", "2026-03-10 00:10:00");
    EXPECT_TRUE(rollover->check(at("23:50:00")));
    EXPECT_TRUE(rollover->check(at("2026-03-10 00:00:00")));
    EXPECT_EQ(calls, "2026-03-10 00:00:00 -> 00:00:00; 00:00:00 -> 2026-03-10 00:00:00; ");
}

TEST_F(DayRolloverTest, AJumpOverManyDaysOrYearsIsOneRollover) {
    begin("UTC", "08:00:00");
    EXPECT_TRUE(rollover->check(at("2026-03-14 07:00:00")));
    EXPECT_TRUE(rollover->check(at("2051-01-02 07:00:00")));
    EXPECT_TRUE(rollover->check(at("1999-12-31 23:00:00")));
    EXPECT_EQ(calls, "00:00:00 -> 2026-03-14 00:00:00; 2026-03-14 00:00:00 -> 2051-01-02 00:00:00; "
                     "2051-01-02 00:00:00 -> 1999-12-31 00:00:00; ");
}

TEST_F(DayRolloverTest, AChangeOfZoneAloneIsARolloverWhenItMovesTheDaysStart) {
    begin("UTC", "12:00:00");
    calendar.setZone("Europe/Berlin");
    EXPECT_TRUE(rollover->check(at("12:00:00")));
    calendar.setZone("Africa/Lagos");
    EXPECT_FALSE(rollover->check(at("12:00:00"))) << "the same offset";
    EXPECT_EQ(calls, "00:00:00 -> 2026-03-08 23:00:00; ");
}

TEST_F(DayRolloverTest, TheShortDayOfSpringIsOneDay) {
    begin("Europe/Berlin", "2026-03-28 23:00:00");
    EXPECT_FALSE(rollover->check(at("2026-03-29 01:00:00")));
    EXPECT_FALSE(rollover->check(at("2026-03-29 21:59:59.999999")));
    EXPECT_TRUE(rollover->check(at("2026-03-29 22:00:00")));
    EXPECT_EQ(calls, "2026-03-28 23:00:00 -> 2026-03-29 22:00:00; ");
}

TEST_F(DayRolloverTest, TheLongDayOfAutumnIsOneDay) {
    begin("Europe/Berlin", "2026-10-24 22:00:00");
    EXPECT_FALSE(rollover->check(at("2026-10-25 22:59:59")));
    EXPECT_TRUE(rollover->check(at("2026-10-25 23:00:00")));
    EXPECT_EQ(calls, "2026-10-24 22:00:00 -> 2026-10-25 23:00:00; ");
}

TEST_F(DayRolloverTest, ADayWithoutMidnightBeginsWithItsFirstInstant) {
    begin("America/Sao_Paulo", "2018-11-03 12:00:00");
    EXPECT_FALSE(rollover->check(at("2018-11-04 02:59:59")));
    EXPECT_TRUE(rollover->check(at("2018-11-04 03:00:00")));
    EXPECT_EQ(calls, "2018-11-03 03:00:00 -> 2018-11-04 03:00:00; ");
}

TEST_F(DayRolloverTest, ADayWithTwoMidnightsBeginsWithTheFirst) {
    begin("America/Havana", "2023-11-04 12:00:00");
    EXPECT_TRUE(rollover->check(at("2023-11-05 04:00:00")));
    EXPECT_FALSE(rollover->check(at("2023-11-05 05:00:00"))) << "midnight for the second time";
    EXPECT_EQ(calls, "2023-11-04 04:00:00 -> 2023-11-05 04:00:00; ");
}

TEST_F(DayRolloverTest, ADayThatTheZoneLeftOutIsNeverTheDay) {
    begin("Pacific/Apia", "2011-12-30 09:59:59");
    EXPECT_EQ(rollover->currentDayStart(), at("2011-12-29 10:00:00"));
    EXPECT_TRUE(rollover->check(at("2011-12-30 10:00:00")));
    EXPECT_EQ(calls, "2011-12-29 10:00:00 -> 2011-12-30 10:00:00; ");
}

TEST_F(DayRolloverTest, AnOverrideIsUsedInsteadOfThePersonsCalendar) {
    calendar.setZone("UTC");
    const FakeCalendar tokyo("Asia/Tokyo");
    DayRollover overridden(at("16:00:00"), calendar, &tokyo);
    const DayRollover usual(at("16:00:00"), calendar);
    EXPECT_EQ(overridden.currentDayStart(), at("15:00:00"));
    EXPECT_EQ(usual.currentDayStart(), at("00:00:00"));
    calendar.setZone("America/New_York");
    EXPECT_FALSE(overridden.check(at("16:00:00")));
}

TEST_F(DayRolloverTest, WithoutACallbackTheDayStillMoves) {
    begin("UTC", "08:00:00").onRollover = nullptr;
    EXPECT_TRUE(rollover->check(at("2026-03-10 08:00:00")));
    EXPECT_EQ(rollover->currentDayStart(), at("2026-03-10 00:00:00"));
}

} // namespace
} // namespace kestrelfen
