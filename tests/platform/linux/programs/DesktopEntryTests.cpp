#include "platform/linux/DesktopEntry.hpp"

#include <gmock/gmock.h>

namespace kestrelfen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view named = R"([Desktop Entry]
Type=Application
Name=Files
Name[de]=Dateien
Name[de_AT]=Dateien in Wien
Name[sr@Latn]=Datoteke
Name[sr]=Датотеке
)";

std::string nameIn(std::string_view locale) {
    return DesktopEntry::parse("files", named, locale)->name;
}

TEST(DesktopEntry, TheNameIsTheBestForTheLocale) {
    EXPECT_EQ(nameIn("de_AT.UTF-8"), "Dateien in Wien");
    EXPECT_EQ(nameIn("de_DE.UTF-8@euro"), "Dateien");
    EXPECT_EQ(nameIn("sr_RS@Latn"), "Datoteke");
    EXPECT_EQ(nameIn("sr_RS"), "Датотеке");
}

TEST(DesktopEntry, ALanguageThatItDoesNotSpeakGetsThePlainName) {
    EXPECT_EQ(nameIn("fr_FR.UTF-8"), "Files");
    EXPECT_EQ(nameIn("C.UTF-8"), "Files");
    EXPECT_EQ(nameIn("POSIX"), "Files");
    EXPECT_EQ(nameIn(""), "Files");
}

TEST(DesktopEntry, ALocaleIsTakenApartFromTheMostExactOn) {
    EXPECT_THAT(localeNames("sr_YU.UTF-8@Latn"), ElementsAre("sr_YU@Latn", "sr_YU", "sr@Latn", "sr"));
    EXPECT_THAT(localeNames("eo"), ElementsAre("eo"));
    EXPECT_THAT(localeNames("C"), IsEmpty());
}

TEST(DesktopEntry, AllThatIdentifiesAProgramIsRead) {
    const auto entry = DesktopEntry::parse("x", R"(
# a comment
[Desktop Entry]
Type = Application
Name=One\sTwo
StartupWMClass=Klass
Exec=viewer "a\\\\b" %U
Icon=viewer-icon
X-Flatpak=org.example.Viewer
X-SnapInstanceName=viewer_two
Terminal=true
NoDisplay=true
Hidden=true

[Desktop Action New]
Name=Other
Exec=other
)",
                                           "");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->id, "x");
    EXPECT_EQ(entry->name, "One Two");
    EXPECT_EQ(entry->startupClass, "Klass");
    EXPECT_THAT(entry->words, ElementsAre("viewer", "a\\b"));
    EXPECT_EQ(entry->icon, "viewer-icon");
    EXPECT_EQ(entry->flatpakId, "org.example.Viewer");
    EXPECT_EQ(entry->snapName, "viewer_two");
    EXPECT_TRUE(entry->isOnlyForTerminals);
    EXPECT_TRUE(entry->isUndisplayed);
    EXPECT_TRUE(entry->isDeleted);
}

TEST(DesktopEntry, MalformedLinesDoNotHinderTheOthers) {
    const auto entry = DesktopEntry::parse(
        "x", "Name=before\r\n[Desktop Entry]\r\nrubbish\n=\n[\nName=First\r\nName=Second\nExec=\"open\n", "");
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->name, "First");
    EXPECT_THAT(entry->words, IsEmpty());
    EXPECT_FALSE(entry->isDeleted);
}

TEST(DesktopEntry, WhatIsNoEntryOfAnApplicationIsNone) {
    EXPECT_FALSE(DesktopEntry::parse("x", "", ""));
    EXPECT_FALSE(DesktopEntry::parse("x", std::string_view("\0\xff[\n]=", 6), ""));
    EXPECT_FALSE(DesktopEntry::parse("x", "[Other]\nName=A\n", ""));
    EXPECT_FALSE(DesktopEntry::parse("x", "[Desktop Entry]\nType=Link\nName=A\n", ""));
}

} // namespace

} // namespace kestrelfen
