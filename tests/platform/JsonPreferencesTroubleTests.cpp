#include "platform/JsonPreferencesFixture.hpp"
#include "support/SmallVolume.hpp"
#include "support/UnprivilegedSection.hpp"

#include <gmock/gmock.h>

namespace kestrelfen {
namespace {

using std::filesystem::perms;
using testing::ElementsAre;

constexpr double retrySeconds = 60;

constexpr perms nothing = perms::none;
constexpr perms readOnlyFolder = perms(0555);
constexpr perms ownFolder = perms(0700);
constexpr perms ownFile = perms(0600);

constexpr const char* recovered =
    "info: preferences.json can be written again, and holds the preferences in force.";

/// Trouble with a file or folder that the person may not use.
class JsonPreferencesTrouble : public JsonPreferencesFixture {
  protected:
    void SetUp() override {
        if (!section_.isEntered()) {
            GTEST_SKIP() << "this process is the superuser and cannot become anybody else";
        }
    }

    void allow(perms permissions) const { std::filesystem::permissions(folder_.path(), permissions); }

    UnprivilegedSection section_{folder_.path()};
};

TEST_F(JsonPreferencesTrouble, aFileThatCannotBeReadIsReportedOnceAndNeverOverwritten) {
    writeInPlace(file(), "{\"a\": 1}");
    std::filesystem::permissions(file(), nothing);
    const auto preferences = open();
    preferences->set("b", true);
    drain();
    preferences->set("b", false);
    preferences->flush();
    drainAfter(retrySeconds);
    EXPECT_EQ(preferences->boolean("b"), false);
    EXPECT_THAT(logLines(), ElementsAre("error: preferences.json cannot be read: Permission denied. It stays "
                                        "as it is, and preferences are kept in memory only."));
    std::filesystem::permissions(file(), ownFile);
    EXPECT_EQ(content(), "{\"a\": 1}");
    EXPECT_THAT(folder_.names(), ElementsAre("preferences.json"));
}

TEST_F(JsonPreferencesTrouble, aFileThatCanBeReadAgainIsTakenOver) {
    writeInPlace(file(), "{\"a\": 1}");
    std::filesystem::permissions(file(), nothing);
    const auto preferences = open();
    preferences->set("b", true);
    drain();
    std::filesystem::permissions(file(), ownFile);
    preferences->reloadIfChanged();
    EXPECT_EQ(preferences->integer("a"), 1);
    drain();
    EXPECT_EQ(content(), "{\n  \"a\": 1,\n  \"b\": true\n}\n");
    EXPECT_EQ(logLines().size(), 2U);
    EXPECT_EQ(logLines().back(), "info: preferences.json can be used again.");
}

TEST_F(JsonPreferencesTrouble, aFileThatBecomesUnreadableLeavesTheValuesInForce) {
    const auto preferences = openWith("{\"a\": 1}");
    std::filesystem::permissions(file(), nothing);
    preferences->reloadIfChanged();
    EXPECT_EQ(preferences->integer("a"), 1);
    preferences->set("a", std::int64_t{2});
    drain();
    std::filesystem::permissions(file(), ownFile);
    EXPECT_EQ(content(), "{\"a\": 1}");
    drainAfter(retrySeconds);
    EXPECT_EQ(content(), "{\n  \"a\": 2\n}\n");
}

TEST_F(JsonPreferencesTrouble, aFolderInPlaceOfTheFileIsReportedAndLeft) {
    std::filesystem::create_directory(file());
    const auto preferences = open();
    preferences->set("a", true);
    drain();
    EXPECT_EQ(preferences->boolean("a"), true);
    EXPECT_THAT(logLines(), ElementsAre("error: preferences.json cannot be read: Is a directory. It stays as "
                                        "it is, and preferences are kept in memory only."));
    EXPECT_TRUE(std::filesystem::is_directory(file()));
    EXPECT_THAT(folder_.names(), ElementsAre("preferences.json"));
}

TEST_F(JsonPreferencesTrouble, whatIsNoFileIsNotWaitedFor) {
    std::filesystem::create_symlink("/dev/zero", file());
    const auto preferences = open();
    preferences->set("a", true);
    drain();
    EXPECT_THAT(logLines(), ElementsAre("error: preferences.json cannot be read: Invalid argument. It stays "
                                        "as it is, and preferences are kept in memory only."));
}

TEST_F(JsonPreferencesTrouble, aLinkThatLeadsInACircleIsReported) {
    std::filesystem::create_symlink("preferences.json", file());
    const auto preferences = open();
    preferences->set("a", true);
    drain();
    EXPECT_TRUE(std::filesystem::is_symlink(file()));
    EXPECT_EQ(logLines().size(), 1U);
}

TEST_F(JsonPreferencesTrouble, aFolderThatCannotBeWrittenIsReportedOnce) {
    const auto preferences = openWith("{\"a\": 1}");
    allow(readOnlyFolder);
    preferences->set("a", std::int64_t{2});
    drain();
    preferences->set("a", std::int64_t{3});
    drain();
    preferences->flush();
    drainAfter(retrySeconds);
    EXPECT_EQ(preferences->integer("a"), 3);
    EXPECT_EQ(content(), "{\"a\": 1}");
    EXPECT_THAT(logLines(), ElementsAre("error: preferences.json cannot be written: Permission denied. "
                                        "Preferences are kept in memory until it can."));
}

TEST_F(JsonPreferencesTrouble, theNextWritingThatSucceedsStoresEverythingAndSaysSoOnce) {
    const auto preferences = openWith("{\"a\": 1}");
    allow(readOnlyFolder);
    preferences->set("a", std::int64_t{2});
    drain();
    allow(ownFolder);
    preferences->set("b", true);
    drain();
    preferences->set("c", true);
    drain();
    EXPECT_EQ(content(), "{\n  \"a\": 2,\n  \"b\": true,\n  \"c\": true\n}\n");
    EXPECT_EQ(logLines().size(), 2U);
    EXPECT_EQ(logLines().back(), recovered);
}

TEST_F(JsonPreferencesTrouble, writingIsTriedAgainAfterAWhile) {
    const auto preferences = openWith("{\"a\": 1}");
    allow(readOnlyFolder);
    preferences->set("a", std::int64_t{2});
    drain();
    allow(ownFolder);
    drainAfter(retrySeconds - 1);
    EXPECT_EQ(content(), "{\"a\": 1}");
    drainAfter(1);
    EXPECT_EQ(content(), "{\n  \"a\": 2\n}\n");
    EXPECT_EQ(logLines().back(), recovered);
    EXPECT_FALSE(queue_.drain());
}

TEST_F(JsonPreferencesTrouble, aChangeFromOutsideIsSeenThoughNothingCanBeWritten) {
    const auto preferences = openWith("{\"a\": 1, \"b\": 1}");
    allow(readOnlyFolder);
    preferences->set("a", std::int64_t{2});
    drain();
    writeInPlace(file(), "{\"a\": 3, \"b\": 3}");
    preferences->reloadIfChanged();
    EXPECT_EQ(preferences->integer("a"), 2);
    EXPECT_EQ(preferences->integer("b"), 3);
    drain();
    EXPECT_EQ(logLines().size(), 1U);
}

TEST_F(JsonPreferencesTrouble, aReadOnlyFileIsNotReplaced) {
    const auto preferences = openWith("{\"a\": 1}");
    std::filesystem::permissions(file(), perms(0400));
    preferences->set("a", std::int64_t{2});
    drain();
    EXPECT_EQ(content(), "{\"a\": 1}");
    EXPECT_EQ(logLines().size(), 1U);
}

TEST_F(JsonPreferencesTrouble, aDamagedFileThatCannotBeMovedIsNeverOverwritten) {
    writeInPlace(file(), "garbage");
    allow(readOnlyFolder);
    const auto preferences = open();
    preferences->set("a", true);
    drain();
    preferences->flush();
    EXPECT_EQ(preferences->boolean("a"), true);
    EXPECT_EQ(content(), "garbage");
    EXPECT_THAT(logLines(),
                ElementsAre("error: preferences.json is damaged: it is not valid JSON at line 1, byte 1. It "
                            "could not be moved aside (Permission denied), so it stays as it is, and "
                            "preferences are kept in memory only."));
}

TEST_F(JsonPreferencesTrouble, aDamagedFileIsMovedOnceThatIsPossible) {
    writeInPlace(file(), "garbage");
    allow(readOnlyFolder);
    const auto preferences = open();
    preferences->set("a", true);
    drain();
    allow(ownFolder);
    drainAfter(retrySeconds);
    EXPECT_EQ(contentOf(folder_ / "preferences.damaged-1.json"), "garbage");
    EXPECT_EQ(content(), "{\n  \"a\": true\n}\n");
}

TEST_F(JsonPreferencesTrouble, aFileWhereTheFolderShouldBeIsReported) {
    writeInPlace(folder_ / "sub", "no folder");
    JsonPreferences preferences(folder_ / "sub/preferences.json", log_, queue_);
    preferences.set("a", true);
    drain();
    EXPECT_EQ(contentOf(folder_ / "sub"), "no folder");
    EXPECT_THAT(logLines(), ElementsAre("error: sub/preferences.json cannot be written: Not a directory. "
                                        "Preferences are kept in memory until it can."));
}

using JsonPreferencesFullDisk = JsonPreferencesFixture;

TEST_F(JsonPreferencesFullDisk, leavesTheOldFileIntactUntilThereIsRoom) {
    const SmallVolume volume(folder_.path());
    if (!volume.isMounted()) {
        GTEST_SKIP() << "this process may not mount a small volume";
    }
    const auto preferences = openWith("{\"a\": 1}");
    volume.fill();
    preferences->set("a", std::int64_t{2});
    drain();
    EXPECT_EQ(preferences->integer("a"), 2);
    EXPECT_EQ(content(), "{\"a\": 1}");
    EXPECT_THAT(folder_.names(), ElementsAre("filler", "preferences.json"));
    EXPECT_THAT(logLines(), ElementsAre("error: preferences.json cannot be written: No space left on device. "
                                        "Preferences are kept in memory until it can."));
    volume.makeRoom();
    preferences->flush();
    EXPECT_EQ(content(), "{\n  \"a\": 2\n}\n");
    EXPECT_EQ(logLines().back(), recovered);
}

} // namespace
} // namespace kestrelfen
