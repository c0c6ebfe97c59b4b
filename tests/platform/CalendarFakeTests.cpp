#include "platform/CalendarEnvironment.hpp"
#include "platform/fake/FakeCalendar.hpp"
#include "platform/fake/FakeTimeFormat.hpp"
#include "platform/fake/ZoneRule.hpp"

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <random>

namespace kestrelfen {
namespace {

namespace files = std::filesystem;

std::vector<std::string> allZones() {
    const files::path root = zoneFileOf("");
    std::vector<std::string> zones;
    for (const auto& entry : files::recursive_directory_iterator(root)) {
        const std::string name = files::relative(entry.path(), root).string();
        const bool isCopy = name.starts_with("right/") || name.starts_with("posix/");
        if (!isCopy && FakeCalendar::isKnownZone(name)) {
            zones.push_back(name);
        }
    }
    return zones;
}

CivilTime libraryTime(std::int64_t second) {
    const std::time_t time = second;
    std::tm local{};
    localtime_r(&time, &local);
    return {std::chrono::year(local.tm_year + 1'900) / (local.tm_mon + 1) / local.tm_mday, local.tm_hour,
            local.tm_min, local.tm_sec, 0};
}

std::string text(const CivilTime& time) {
    const int parts[] = {time.hour, time.minute, time.second};
    std::string result = isoDay(time.day);
    for (const int part : parts) {
        result += " " + std::to_string(part);
    }
    return result;
}

TEST(FakeCalendar, readsEveryZoneAsTheCLibraryDoes) {
    const auto zones = allZones();
    ASSERT_GT(zones.size(), 300U);
    const std::int64_t begin = parseIsoTime("1800-01-01T00:00:00Z")->wholeSeconds();
    const std::int64_t end = parseIsoTime("2200-01-01T00:00:00Z")->wholeSeconds();
    std::mt19937_64 random(7);
    std::uniform_int_distribution<std::int64_t> moment(begin, end);
    for (const std::string& zone : zones) {
        const ZoneVariable variable(zone);
        tzset();
        const FakeCalendar calendar(zone);
        for (int round = 0; round < 300; ++round) {
            const std::int64_t second = moment(random);
            ASSERT_EQ(text(calendar.civilTime(Date::fromSeconds(second))), text(libraryTime(second)))
                << zone << " at " << second;
        }
    }
}

TEST(FakeCalendar, knowsTheNamesOfTheZoneDatabase) {
    for (const char* const zone :
         {"UTC", "Europe/Berlin", "America/Argentina/Buenos_Aires", "Etc/GMT+5", "America/Port-au-Prince"}) {
        EXPECT_TRUE(FakeCalendar::isKnownZone(zone)) << zone;
    }
}

TEST(FakeCalendar, knowsNoOtherNames) {
    using namespace std::string_view_literals;
    for (const std::string_view name : {""sv,
                                        "Europe/Atlantis"sv,
                                        "Europe"sv,
                                        "Europe/"sv,
                                        "/Europe/Berlin"sv,
                                        "/usr/share/zoneinfo/UTC"sv,
                                        "../zoneinfo/UTC"sv,
                                        "Europe/../UTC"sv,
                                        "./UTC"sv,
                                        "Europe//Berlin"sv,
                                        "Europe/Berlin/"sv,
                                        "zone.tab"sv,
                                        "tzdata.zi"sv,
                                        "leapseconds"sv,
                                        "UTC\0"sv,
                                        "UTC "sv,
                                        ":UTC"sv,
                                        "CET-1CEST"sv,
                                        "."sv,
                                        ".."sv}) {
        EXPECT_FALSE(FakeCalendar::isKnownZone(name)) << name;
    }
}

TEST(FakeCalendarDeathTest, anUnknownZoneIsAFault) {
    EXPECT_DEATH(FakeCalendar("Europe/Atlantis"), "unknown zone");
}

TEST(FakeCalendar, severalCalendarsAreInTheirZonesAtOnce) {
    const Date date = parseIsoTime("2026-03-09T20:00:00Z").value();
    FakeCalendar berlin("Europe/Berlin");
    const FakeCalendar tokyo("Asia/Tokyo");
    const FakeCalendar newYork("America/New_York");
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(isoTime(berlin.startOfDay(date), 0), "2026-03-08T23:00:00Z");
        EXPECT_EQ(isoTime(tokyo.startOfDay(date), 0), "2026-03-09T15:00:00Z");
        EXPECT_EQ(isoTime(newYork.startOfDay(date), 0), "2026-03-09T04:00:00Z");
    }
    berlin.setZone("Asia/Kolkata");
    EXPECT_EQ(berlin.hour(date), 1);
    EXPECT_EQ(tokyo.hour(date), 5);
    EXPECT_EQ(newYork.hour(date), 16);
}

TEST(FakeCalendar, isNotMovedByTheZoneOfTheProcess) {
    const Date date = parseIsoTime("2026-03-09T20:00:00Z").value();
    const FakeCalendar calendar;
    const ZoneVariable variable("Asia/Tokyo");
    tzset();
    EXPECT_EQ(calendar.hour(date), 20);
    EXPECT_EQ(isoTime(calendar.startOfDay(date), 0), "2026-03-09T00:00:00Z");
}

TEST(FakeTimeFormat, writesTheLocalTimeOfDayByTwentyFourHours) {
    FakeCalendar calendar("Europe/Berlin");
    const FakeTimeFormat format(calendar);
    const Date date = parseIsoTime("2026-03-09T23:05:09.9Z").value();
    EXPECT_EQ(format.shortTime(date), "00:05");
    EXPECT_EQ(format.timeWithSeconds(date), "00:05:09");
    calendar.setZone("America/New_York");
    EXPECT_EQ(format.shortTime(date), "19:05");
    EXPECT_EQ(format.timeWithSeconds(date), "19:05:09");
}

TEST(FakeTimeFormat, writesTheLocalDayInEnglish) {
    FakeCalendar calendar("Europe/Berlin");
    const FakeTimeFormat format(calendar);
    const Date date = parseIsoTime("2026-03-09T23:05:09Z").value();
    EXPECT_EQ(format.weekday(date), "Tue");
    EXPECT_EQ(format.shortDay(date), "Tue 10 Mar");
    EXPECT_EQ(format.shortDay(date - 86'400.0 * 2), "Sun 8 Mar");
    calendar.setZone("America/New_York");
    EXPECT_EQ(format.shortDay(date), "Mon 9 Mar");
}

TEST(ZoneRule, isReadInEveryForm) {
    const std::int64_t winter = parseIsoTime("2050-01-15T12:00:00Z")->wholeSeconds();
    const std::int64_t summer = parseIsoTime("2050-07-15T12:00:00Z")->wholeSeconds();
    const auto expectRule = [&](const char* rule, std::int64_t inWinter, std::int64_t inSummer) {
        const auto read = ZoneRule::parse(rule);
        ASSERT_TRUE(read) << rule;
        EXPECT_EQ(read->offsetAt(winter), inWinter) << rule;
        EXPECT_EQ(read->offsetAt(summer), inSummer) << rule;
    };
    expectRule("UTC0", 0, 0);
    expectRule("<+0545>-5:45", 20'700, 20'700);
    expectRule("EST5EDT,M3.2.0,M11.1.0", -18'000, -14'400);
    expectRule("<+1030>-10:30<+11>-11,M10.1.0,M4.1.0", 39'600, 37'800);
    expectRule("IST-1GMT0,M10.5.0,M3.5.0/1", 0, 3'600);
    expectRule("AAA3BBB,J60/0,J300/24:30:15", -10'800, -7'200);
    expectRule("AAA3BBB,59,299/-2", -10'800, -7'200);
}

TEST(ZoneRule, countsADayOfTheYearWithOrWithoutTheLeapDay) {
    const auto withoutLeapDay = ZoneRule::parse("AAA0BBB,J60/0,J300/0").value();
    const auto fromZero = ZoneRule::parse("AAA0BBB,59/0,299/0").value();
    const auto second = [](const char* date) { return parseIsoTime(date)->wholeSeconds(); };
    EXPECT_EQ(withoutLeapDay.offsetAt(second("2048-02-29T23:59:59Z")), 0);
    EXPECT_EQ(withoutLeapDay.offsetAt(second("2048-03-01T00:00:00Z")), 3'600);
    EXPECT_EQ(withoutLeapDay.offsetAt(second("2049-03-01T00:00:00Z")), 3'600);
    EXPECT_EQ(fromZero.offsetAt(second("2048-02-28T23:59:59Z")), 0);
    EXPECT_EQ(fromZero.offsetAt(second("2048-02-29T00:00:00Z")), 3'600);
    EXPECT_EQ(fromZero.offsetAt(second("2049-02-28T23:59:59Z")), 0);
    EXPECT_EQ(fromZero.offsetAt(second("2049-03-01T00:00:00Z")), 3'600);
}

TEST(ZoneRule, thatIsNoneIsNotRead) {
    for (const char* const rule :
         {"", "CET", "CE-1", "-1", "CET-1CEST", "CET-1CEST,M3.5.0", "CET-1CEST,M3.5.0,M10.5.0,",
          "CET-1CEST,M13.5.0,M10.5.0", "CET-1CEST,M3.6.0,M10.5.0", "CET-1CEST,M3.5.7,M10.5.0",
          "CET-1CEST,J0,J300", "CET-1CEST,366,J300", "CET-1CEST,M3.5.0/,M10.5.0", "<+01-1", "CET-1 ",
          "CET-1:", "CET-1CEST-x,M3.5.0,M10.5.0"}) {
        EXPECT_FALSE(ZoneRule::parse(rule)) << rule;
    }
}

} // namespace
} // namespace kestrelfen
