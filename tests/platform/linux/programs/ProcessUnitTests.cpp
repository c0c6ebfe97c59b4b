#include "platform/linux/ProcessUnit.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {

namespace {

constexpr std::string_view slice = "0::/user.slice/user-1000.slice/user@1000.service/app.slice/";

std::optional<ProcessUnit> parse(std::string_view unit) {
    return ProcessUnit::parse(std::string(slice).append(unit).append("\n"));
}

using Kind = ProcessUnit::Kind;

TEST(ProcessUnit, AScopeTellsTheEntryAndTheProcess) {
    EXPECT_EQ(parse("app-gnome-google\\x2dchrome-4711.scope"),
              (ProcessUnit{Kind::application, "google-chrome", "", 4711}));
    EXPECT_EQ(parse("app-org.kde.dolphin-4712.scope"),
              (ProcessUnit{Kind::application, "org.kde.dolphin", "", 4712}));
}

TEST(ProcessUnit, AServiceTellsTheEntry) {
    EXPECT_EQ(parse("app-org.kde.konsole@0f3a.service"),
              (ProcessUnit{Kind::application, "org.kde.konsole", "", std::nullopt}));
    EXPECT_EQ(parse("app-firefox\\x2desr@autostart.service"),
              (ProcessUnit{Kind::application, "firefox-esr", "", std::nullopt}));
}

TEST(ProcessUnit, AFlatpakTellsItsName) {
    EXPECT_EQ(parse("app-flatpak-org.mozilla.firefox-99.scope"),
              (ProcessUnit{Kind::flatpak, "org.mozilla.firefox", "", 99}));
}

TEST(ProcessUnit, ASnapTellsItsNameAndItsProgram) {
    const ProcessUnit chromium{Kind::snap, "chromium_chromium", "chromium", std::nullopt};
    EXPECT_EQ(parse("snap.chromium.chromium-0f0c3f9e-1b1d-4bb2-9a9a-0123456789ab.scope"), chromium);
    EXPECT_EQ(parse("snap.chromium.chromium.0f0c3f9e-1b1d-4bb2-9a9a-0123456789ab.scope"), chromium);
    EXPECT_EQ(parse("snap.teams-for-linux.teams-for-linux.scope"),
              (ProcessUnit{Kind::snap, "teams-for-linux_teams-for-linux", "teams-for-linux", std::nullopt}));
}

TEST(ProcessUnit, TheInnermostUnitCounts) {
    EXPECT_EQ(parse("app-org.gnome.Terminal.slice/vte-spawn-0f0c.scope"), std::nullopt);
    EXPECT_EQ(parse("app-one-1.scope/app-two-2.scope/inner")->applicationId, "two");
}

TEST(ProcessUnit, AllHierarchiesAreLookedAt) {
    EXPECT_EQ(
        ProcessUnit::parse("2:cpu:/\n1:name=systemd:/app.slice/app-gnome-vlc-5.scope\n0::/\n")->applicationId,
        "vlc");
}

TEST(ProcessUnit, OtherUnitsAreNone) {
    for (const std::string_view unit : {"", "dbus.service", "app-.scope", "app-gnome-.service",
                                        "snap..x.scope", "snap.x", "session-2.scope"}) {
        EXPECT_EQ(parse(unit), std::nullopt) << unit;
    }
    EXPECT_EQ(ProcessUnit::parse(""), std::nullopt);
    EXPECT_EQ(ProcessUnit::parse("0::/"), std::nullopt);
}

} // namespace

} // namespace kestrelfen
