#include "platform/CalendarEnvironment.hpp"
#include "platform/CalendarPrivateEtc.hpp"
#include "platform/posix/PosixCalendar.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <sys/mount.h>

namespace kestrelfen {
namespace {

const Date noon = parseIsoTime("2026-01-15T12:00:00Z").value();

constexpr int utc = 12;
constexpr int berlin = 13;
constexpr int kolkata = 17;
constexpr int tokyo = 21;

/// The hour at noon UTC, having made sure that the start of the day agrees.
int hourAtNoon(const Calendar& calendar) {
    const CivilTime time = calendar.civilTime(noon);
    const Date start = calendar.startOfDay(noon);
    EXPECT_EQ(noon - start, time.hour * 3'600 + time.minute * 60);
    return time.hour;
}

class PosixCalendarZone : public testing::Test {
  protected:
    ZoneVariable variable_{"UTC"};
};

TEST_F(PosixCalendarZone, isTheOneThatTheVariableNamesAtTheTime) {
    const PosixCalendar calendar;
    EXPECT_EQ(hourAtNoon(calendar), utc);
    ZoneVariable::set("Europe/Berlin");
    EXPECT_EQ(hourAtNoon(calendar), berlin);
    ZoneVariable::set(":Asia/Tokyo");
    EXPECT_EQ(hourAtNoon(calendar), tokyo);
    ZoneVariable::set("Europe/Berlin");
    EXPECT_EQ(hourAtNoon(calendar), berlin);
}

TEST_F(PosixCalendarZone, isFollowedByEveryCalendar) {
    const PosixCalendar first;
    ZoneVariable::set("Asia/Tokyo");
    const PosixCalendar second;
    EXPECT_EQ(hourAtNoon(second), tokyo);
    EXPECT_EQ(hourAtNoon(first), tokyo);
    ZoneVariable::set("Europe/Berlin");
    EXPECT_EQ(hourAtNoon(first), berlin);
    EXPECT_EQ(hourAtNoon(second), berlin);
}

TEST_F(PosixCalendarZone, isNotWhatOthersMadeTheLibraryReadInBetween) {
    const PosixCalendar calendar;
    ZoneVariable::set("Europe/Berlin");
    EXPECT_EQ(hourAtNoon(calendar), berlin);
    ZoneVariable::set("Asia/Tokyo");
    tzset();
    ZoneVariable::set("Europe/Berlin");
    EXPECT_EQ(hourAtNoon(calendar), berlin);
}

TEST_F(PosixCalendarZone, isUtcForAnUnknownNameAndForNoName) {
    const PosixCalendar calendar;
    for (const char* const name :
         {"Europe/Atlantis", "nonsense", "", ":", ":/no/such/file", "/no/such/file"}) {
        ZoneVariable::set("Asia/Tokyo");
        EXPECT_EQ(hourAtNoon(calendar), tokyo);
        ZoneVariable::set(name);
        EXPECT_EQ(hourAtNoon(calendar), utc) << name;
    }
}

TEST_F(PosixCalendarZone, mayBeARule) {
    const PosixCalendar calendar;
    ZoneVariable::set("AAA-9");
    EXPECT_EQ(hourAtNoon(calendar), tokyo);
    ZoneVariable::set("<+0530>-5:30");
    EXPECT_EQ(hourAtNoon(calendar), kolkata);
}

/// The zone in a file that TZ names by its path, with or without a colon.
class PosixCalendarZonePath : public PosixCalendarZone, public testing::WithParamInterface<const char*> {
  protected:
    void SetUp() override {
        replaceByCopy(file_, "Europe/Berlin");
        ZoneVariable::set(GetParam() + file_);
    }

    TemporaryFolder folder_;
    const std::string file_ = folder_ / "zone";
};

TEST_P(PosixCalendarZonePath, isFollowedWhenAnotherFileTakesItsPlace) {
    const PosixCalendar calendar;
    EXPECT_EQ(hourAtNoon(calendar), berlin);
    replaceByCopy(file_, "Asia/Tokyo");
    EXPECT_EQ(hourAtNoon(calendar), tokyo);
    replaceByLink(file_, "Asia/Kolkata");
    EXPECT_EQ(hourAtNoon(calendar), kolkata);
}

TEST_P(PosixCalendarZonePath, isFollowedWhenTheFileIsWrittenOver) {
    const PosixCalendar calendar;
    EXPECT_EQ(hourAtNoon(calendar), berlin);
    writeOver(file_, "Asia/Tokyo");
    EXPECT_EQ(hourAtNoon(calendar), tokyo);
}

TEST_P(PosixCalendarZonePath, isReadAfreshByALaterCalendar) {
    EXPECT_EQ(hourAtNoon(PosixCalendar()), berlin);
    writeOver(file_, "Asia/Tokyo");
    EXPECT_EQ(hourAtNoon(PosixCalendar()), tokyo);
}

TEST_P(PosixCalendarZonePath, isUtcWhileTheFileIsMissing) {
    const PosixCalendar calendar;
    EXPECT_EQ(hourAtNoon(calendar), berlin);
    std::filesystem::remove(file_);
    EXPECT_EQ(hourAtNoon(calendar), utc);
    replaceByCopy(file_, "Asia/Tokyo");
    EXPECT_EQ(hourAtNoon(calendar), tokyo);
}

INSTANTIATE_TEST_SUITE_P(Forms, PosixCalendarZonePath, testing::Values("", ":"));

void expectLocaltimeToBeFollowed(const std::string& other) {
    const std::string localtime = "/etc/localtime";
    const PosixCalendar calendar;
    EXPECT_EQ(hourAtNoon(calendar), berlin);
    replaceByLink(localtime, "Asia/Tokyo");
    EXPECT_EQ(hourAtNoon(calendar), tokyo) << "after a new link";
    replaceByCopy(localtime, "Europe/Berlin");
    EXPECT_EQ(hourAtNoon(calendar), berlin) << "after a copy in its place";
    replaceByCopy(localtime, "Asia/Kolkata");
    EXPECT_EQ(hourAtNoon(calendar), kolkata) << "after another copy of the same age";
    writeOver(localtime, "Europe/Berlin");
    EXPECT_EQ(hourAtNoon(calendar), berlin) << "after it was written over";

    replaceByCopy(other, "Asia/Tokyo");
    ASSERT_EQ(mount(other.c_str(), localtime.c_str(), nullptr, MS_BIND, nullptr), 0);
    EXPECT_EQ(hourAtNoon(calendar), tokyo) << "after a bind mount";
    ASSERT_EQ(umount(localtime.c_str()), 0);
    EXPECT_EQ(hourAtNoon(calendar), berlin) << "after the end of the bind mount";

    std::filesystem::remove(localtime);
    EXPECT_EQ(hourAtNoon(calendar), utc) << "without the file";
    replaceByLink(localtime, "Asia/Kolkata");
    EXPECT_EQ(hourAtNoon(calendar), kolkata) << "with the file again";

    ZoneVariable::set("Asia/Tokyo");
    EXPECT_EQ(hourAtNoon(calendar), tokyo) << "with the variable set";
    ZoneVariable::unset();
    EXPECT_EQ(hourAtNoon(calendar), kolkata) << "without the variable";
}

TEST_F(PosixCalendarZone, isThatOfLocaltimeWithoutTheVariableAndFollowsItsSwap) {
    const TemporaryFolder etc;
    const TemporaryFolder folder;
    replaceByLink(etc / "localtime", "Europe/Berlin");
    ZoneVariable::unset();
    const auto result = runWithEtc(etc.path(), [&] { expectLocaltimeToBeFollowed(folder / "other"); });
    if (!result) {
        GTEST_SKIP() << "this user may not make a private mount to swap /etc/localtime in";
    }
    EXPECT_TRUE(*result);
}

} // namespace
} // namespace kestrelfen
