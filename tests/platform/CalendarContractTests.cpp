#include "platform/CalendarSubjects.hpp"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace kestrelfen {
namespace {

Date at(const char* text) {
    return parseIsoTime(text).value();
}

std::string text(Date date) {
    return isoTime(date, 6);
}

template <typename Subject>
class CalendarContract : public testing::Test {
  protected:
    Calendar& in(const char* zone) {
        subject_.setZone(zone);
        return subject_.calendar();
    }

    /// That the day of `date` in `zone` begins at `start`, whichever of its instants is asked for.
    void expectDay(const char* zone, const char* date, const char* start) {
        EXPECT_EQ(text(in(zone).startOfDay(at(date))), text(at(start))) << zone << " at " << date;
        EXPECT_EQ(text(in(zone).startOfDay(at(date), 0)), text(at(start))) << zone << " at " << date;
    }

    /// That the day that begins at `start` follows at once on the one that begins at `before`.
    void expectDayBegins(const char* zone, const char* start, const char* before) {
        expectDay(zone, start, start);
        EXPECT_EQ(text(in(zone).startOfDay(at(start) - 0.000'001)), text(at(before))) << zone;
        EXPECT_EQ(text(in(zone).startOfDay(at(start), -1)), text(at(before))) << zone;
        EXPECT_EQ(text(in(zone).startOfDay(at(before), 1)), text(at(start))) << zone;
    }

    Subject subject_;
};

TYPED_TEST_SUITE(CalendarContract, CalendarSubjects);

TYPED_TEST(CalendarContract, aDayBeginsAtLocalMidnight) {
    this->expectDay("UTC", "2026-03-09T08:00:00Z", "2026-03-09T00:00:00Z");
    this->expectDay("Europe/Berlin", "2026-03-09T22:59:59.999999Z", "2026-03-08T23:00:00Z");
    this->expectDay("Europe/Berlin", "2026-03-09T23:00:00Z", "2026-03-09T23:00:00Z");
    this->expectDay("America/Los_Angeles", "2026-01-01T07:59:59Z", "2025-12-31T08:00:00Z");
}

TYPED_TEST(CalendarContract, aDayOfTwentyThreeOrTwentyFiveHoursIsOneDay) {
    this->expectDayBegins("Europe/Berlin", "2026-03-29T22:00:00Z", "2026-03-28T23:00:00Z");
    this->expectDay("Europe/Berlin", "2026-03-29T21:59:59Z", "2026-03-28T23:00:00Z");
    this->expectDayBegins("Europe/Berlin", "2026-10-25T23:00:00Z", "2026-10-24T22:00:00Z");
    this->expectDay("Europe/Berlin", "2026-10-25T22:59:59Z", "2026-10-24T22:00:00Z");
}

TYPED_TEST(CalendarContract, whereMidnightDoesNotExistTheDayBeginsWithItsFirstInstant) {
    this->expectDayBegins("America/Sao_Paulo", "2018-11-04T03:00:00Z", "2018-11-03T03:00:00Z");
    this->expectDay("America/Sao_Paulo", "2018-11-04T20:00:00Z", "2018-11-04T03:00:00Z");
    this->expectDayBegins("Asia/Beirut", "2024-03-30T22:00:00Z", "2024-03-29T22:00:00Z");
    this->expectDay("Asia/Beirut", "2024-03-31T12:00:00Z", "2024-03-30T22:00:00Z");
    this->expectDayBegins("Africa/Cairo", "2023-04-27T22:00:00Z", "2023-04-26T22:00:00Z");
    this->expectDay("Africa/Cairo", "2023-04-28T12:00:00Z", "2023-04-27T22:00:00Z");
    this->expectDayBegins("Africa/Cairo", "2024-04-25T22:00:00Z", "2024-04-24T22:00:00Z");
    EXPECT_EQ(this->in("America/Sao_Paulo").hour(at("2018-11-04T03:00:00Z")), 1);
}

TYPED_TEST(CalendarContract, whereMidnightComesTwiceTheDayBeginsWithTheFirst) {
    this->expectDayBegins("America/Havana", "2023-11-05T04:00:00Z", "2023-11-04T04:00:00Z");
    this->expectDay("America/Havana", "2023-11-05T04:30:00Z", "2023-11-05T04:00:00Z");
    this->expectDay("America/Havana", "2023-11-05T05:30:00Z", "2023-11-05T04:00:00Z");
    this->expectDay("America/Havana", "2023-11-05T20:00:00Z", "2023-11-05T04:00:00Z");
}

TYPED_TEST(CalendarContract, whereMidnightFallsBackTheDayBeginsAfterTheHourThatTheDayBeforeHasTwice) {
    this->expectDayBegins("America/Sao_Paulo", "2018-02-18T03:00:00Z", "2018-02-17T02:00:00Z");
    this->expectDay("America/Sao_Paulo", "2018-02-18T02:30:00Z", "2018-02-17T02:00:00Z");
    this->expectDayBegins("Africa/Cairo", "2023-10-26T22:00:00Z", "2023-10-25T21:00:00Z");
    this->expectDay("Africa/Cairo", "2023-10-26T21:30:00Z", "2023-10-25T21:00:00Z");
    this->expectDayBegins("Asia/Beirut", "2023-10-28T22:00:00Z", "2023-10-27T21:00:00Z");
    this->expectDay("Asia/Beirut", "2023-10-28T21:30:00Z", "2023-10-27T21:00:00Z");
}

TYPED_TEST(CalendarContract, aDayThatIsBrokenOffAndResumedBeginsWithItsFirstInstant) {
    const char* const zone = "America/St_Johns";
    this->expectDay(zone, "2006-10-29T02:30:59.999999Z", "2006-10-29T02:30:00Z");
    this->expectDay(zone, "2006-10-29T02:31:00Z", "2006-10-28T02:30:00Z");
    this->expectDay(zone, "2006-10-29T03:29:59Z", "2006-10-28T02:30:00Z");
    this->expectDay(zone, "2006-10-29T03:30:00Z", "2006-10-29T02:30:00Z");
    this->expectDay(zone, "2006-10-29T12:00:00Z", "2006-10-29T02:30:00Z");
    EXPECT_EQ(text(this->in(zone).startOfDay(at("2006-10-30T12:00:00Z"), -1)),
              text(at("2006-10-29T02:30:00Z")));
}

TYPED_TEST(CalendarContract, aDayThatTheZoneLeftOutHasTheNextOnesStart) {
    Calendar& calendar = this->in("Pacific/Apia");
    const std::string skipped = text(at("2011-12-30T10:00:00Z"));
    EXPECT_EQ(text(calendar.startOfDay(*parseIsoDay("2011-12-30"))), skipped);
    EXPECT_EQ(text(calendar.startOfDay(*parseIsoDay("2011-12-31"))), skipped);
    EXPECT_EQ(text(calendar.startOfDay(at("2011-12-31T05:00:00Z"), -1)), skipped);
    EXPECT_EQ(text(calendar.startOfDay(at("2011-12-30T05:00:00Z"), 1)), skipped);
    EXPECT_EQ(text(calendar.startOfDay(at("2011-12-31T05:00:00Z"), -2)), text(at("2011-12-29T10:00:00Z")));
    this->expectDay("Pacific/Apia", "2011-12-30T09:59:59.999999Z", "2011-12-29T10:00:00Z");
    this->expectDay("Pacific/Apia", "2011-12-30T10:00:00Z", "2011-12-30T10:00:00Z");
}

TYPED_TEST(CalendarContract, daysAreCountedInTheCalendarAlsoFromADayThatBeginsAtOne) {
    const Date late = at("2018-11-04T03:00:00Z");
    Calendar& calendar = this->in("America/Sao_Paulo");
    EXPECT_EQ(text(calendar.startOfDay(late, -1)), text(at("2018-11-03T03:00:00Z")));
    EXPECT_EQ(text(calendar.startOfDay(late, -30)), text(at("2018-10-05T03:00:00Z")));
    EXPECT_EQ(text(calendar.startOfDay(late, 1)), text(at("2018-11-05T02:00:00Z")));
    EXPECT_EQ(text(calendar.startOfDay(at("2018-11-11T01:30:00Z"), -6)), text(late));
    EXPECT_EQ(text(calendar.startOfDay(at("2018-11-11T02:00:00Z"), -7)), text(late));
}

TYPED_TEST(CalendarContract, zonesAQuarterOrHalfAnHourAsideAreRight) {
    this->expectDayBegins("Asia/Kolkata", "2026-03-08T18:30:00Z", "2026-03-07T18:30:00Z");
    this->expectDayBegins("Asia/Kathmandu", "2026-03-08T18:15:00Z", "2026-03-07T18:15:00Z");
    this->expectDayBegins("America/St_Johns", "2026-03-08T03:30:00Z", "2026-03-07T03:30:00Z");
    this->expectDayBegins("America/St_Johns", "2026-03-09T02:30:00Z", "2026-03-08T03:30:00Z");
}

TYPED_TEST(CalendarContract, aChangeOfHalfAnHourIsRight) {
    this->expectDayBegins("Australia/Lord_Howe", "2023-10-01T13:00:00Z", "2023-09-30T13:30:00Z");
    this->expectDayBegins("Australia/Lord_Howe", "2024-04-07T13:30:00Z", "2024-04-06T13:00:00Z");
}

TYPED_TEST(CalendarContract, theDistantPastIsInALocalDay) {
    const Date past = Date::distantPast();
    EXPECT_EQ(this->in("UTC").startOfDay(past), past);
    EXPECT_EQ(this->in("Europe/Berlin").startOfDay(past), past - (53 * 60 + 28));
    EXPECT_EQ(this->in("America/New_York").startOfDay(past), past - (19 * 3'600 + 3 * 60 + 58));
}

TYPED_TEST(CalendarContract, aPlaceFarFromUtcHasItsDays) {
    this->expectDay("Asia/Manila", "1843-06-16T15:00:00Z", "1843-06-15T15:56:08Z");
    this->expectDay("Asia/Manila", "1843-06-16T15:56:08Z", "1843-06-16T15:56:08Z");
    this->expectDay("America/Juneau", "1866-06-15T09:00:00Z", "1866-06-15T08:57:41Z");
    this->expectDay("Pacific/Kiritimati", "2026-03-09T09:59:59Z", "2026-03-08T10:00:00Z");
}

TYPED_TEST(CalendarContract, aDateBefore1970IsInItsDay) {
    EXPECT_EQ(text(this->in("UTC").startOfDay(Date::fromMicroseconds(-1))), text(at("1969-12-31T00:00:00Z")));
    this->expectDay("Europe/Berlin", "1969-12-31T23:30:00Z", "1969-12-31T23:00:00Z");
    this->expectDayBegins("Europe/London", "1944-08-04T22:00:00Z", "1944-08-03T22:00:00Z");
    this->expectDay("America/New_York", "1918-06-15T12:00:00Z", "1918-06-15T04:00:00Z");
}

TYPED_TEST(CalendarContract, aDateFarAheadFollowsTheRuleInForce) {
    this->expectDay("Europe/Berlin", "2100-07-01T12:00:00Z", "2100-06-30T22:00:00Z");
    this->expectDay("Europe/Berlin", "2100-01-01T12:00:00Z", "2099-12-31T23:00:00Z");
    this->expectDay("Australia/Sydney", "2100-01-01T12:00:00Z", "2099-12-31T13:00:00Z");
    this->expectDay("Australia/Sydney", "2100-07-01T12:00:00Z", "2100-06-30T14:00:00Z");
}

TYPED_TEST(CalendarContract, theEndsOfTheRangeAreInADay) {
    const Date end = Date::fromMicroseconds(std::numeric_limits<std::int64_t>::max());
    const Date begin = Date::fromMicroseconds(std::numeric_limits<std::int64_t>::min());
    for (const char* const zone : {"UTC", "Asia/Tokyo", "America/New_York"}) {
        const Date lastDay = this->in(zone).startOfDay(end);
        EXPECT_LE(end - lastDay, 86'400) << zone;
        EXPECT_GE(end - lastDay, 0) << zone;
        EXPECT_EQ(this->in(zone).startOfDay(begin), begin) << zone;
    }
}

TYPED_TEST(CalendarContract, aChangeOfTheZoneHoldsAtOnceForTheSameDate) {
    const Date date = at("2026-03-09T20:00:00Z");
    EXPECT_EQ(text(this->in("Europe/Berlin").startOfDay(date)), text(at("2026-03-08T23:00:00Z")));
    EXPECT_EQ(text(this->in("Asia/Tokyo").startOfDay(date)), text(at("2026-03-09T15:00:00Z")));
    EXPECT_EQ(text(this->in("Europe/Berlin").startOfDay(date)), text(at("2026-03-08T23:00:00Z")));
    EXPECT_EQ(this->in("Asia/Tokyo").hour(date), 5);
    EXPECT_EQ(this->in("Europe/Berlin").hour(date), 21);
}

TYPED_TEST(CalendarContract, theLocalTimeOfDayIsThatOfTheZone) {
    const CivilTime time = this->in("Asia/Kathmandu").civilTime(at("2026-03-09T22:15:42.123456Z"));
    EXPECT_EQ(isoDay(time.day), "2026-03-10");
    EXPECT_EQ(time.hour, 4);
    EXPECT_EQ(time.minute, 0);
    EXPECT_EQ(time.second, 42);
    EXPECT_EQ(time.microsecond, 123'456);
}

} // namespace
} // namespace kestrelfen
