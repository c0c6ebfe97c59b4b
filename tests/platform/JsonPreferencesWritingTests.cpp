#include "platform/JsonPreferencesFixture.hpp"

#include <cstdlib>
#include <gmock/gmock.h>
#include <optional>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kestrelfen {
namespace {

using testing::ElementsAre;

using JsonPreferencesWriting = JsonPreferencesFixture;

mode_t permissionsOf(const std::filesystem::path& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
}

ino_t inodeOf(const std::filesystem::path& path) {
    struct stat status {};
    EXPECT_EQ(::stat(path.c_str(), &status), 0);
    return status.st_ino;
}

/// Gives an environment variable a value, or none, for the length of a test.
class Environment {
  public:
    Environment(const char* name, const char* value) : name_(name) {
        if (const char* const old = std::getenv(name)) {
            old_ = old;
        }
        put(value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment() { put(old_ ? old_->c_str() : nullptr); }

  private:
    void put(const char* value) const { value ? setenv(name_, value, 1) : unsetenv(name_); }

    const char* name_;
    std::optional<std::string> old_;
};

TEST(JsonPreferencesPlace, isInTheFolderThatTheEnvironmentNames) {
    const Environment folder("XDG_CONFIG_HOME", "/somewhere/else");
    EXPECT_EQ(JsonPreferences::standardPath(), "/somewhere/else/kestrelfen/preferences.json");
}

TEST(JsonPreferencesPlace, isBelowHomeWhenTheEnvironmentNamesNoAbsoluteFolder) {
    const Environment home("HOME", "/home/person");
    for (const char* const value : {static_cast<const char*>(nullptr), "", "relative/folder"}) {
        const Environment folder("XDG_CONFIG_HOME", value);
        EXPECT_EQ(JsonPreferences::standardPath(), "/home/person/.config/kestrelfen/preferences.json");
    }
}

TEST(JsonPreferencesPlace, isBelowTheRegisteredHomeWithoutHome) {
    const Environment folder("XDG_CONFIG_HOME", nullptr);
    const Environment home("HOME", nullptr);
    const passwd* const entry = ::getpwuid(::getuid());
    if (!entry) {
        GTEST_SKIP() << "this process runs as a user that the system does not know";
    }
    EXPECT_EQ(JsonPreferences::standardPath(),
              std::filesystem::path(entry->pw_dir) / ".config/kestrelfen/preferences.json");
}

TEST_F(JsonPreferencesWriting, nothingIsWrittenBeforeTheTurnEnds) {
    const auto preferences = open();
    preferences->set("a", true);
    EXPECT_FALSE(std::filesystem::exists(file()));
    drain();
    EXPECT_EQ(content(), "{\n  \"a\": true\n}\n");
}

TEST_F(JsonPreferencesWriting, allChangesOfATurnAreWrittenAtOnce) {
    const auto preferences = openWith("{}");
    int writes = 0;
    ino_t last = inodeOf(file());
    preferences->set("a", std::int64_t{1});
    preferences->set("a", std::int64_t{2});
    preferences->set("b", true);
    for (int turn = 0; turn < 3; ++turn) {
        drain();
        writes += inodeOf(file()) != std::exchange(last, inodeOf(file())) ? 1 : 0;
    }
    EXPECT_EQ(writes, 1);
    EXPECT_EQ(content(), "{\n  \"a\": 2,\n  \"b\": true\n}\n");
}

TEST_F(JsonPreferencesWriting, theSameValueIsNotWritten) {
    const auto preferences = openWith(R"({"a":1,"b":1.50})");
    preferences->set("a", std::int64_t{1});
    preferences->set("b", 1.5);
    preferences->remove("c");
    EXPECT_FALSE(queue_.drain());
    EXPECT_EQ(content(), R"({"a":1,"b":1.50})");
}

TEST_F(JsonPreferencesWriting, aChangeThatIsTakenBackIsNotWritten) {
    const auto preferences = openWith(R"({"b":1.50})");
    preferences->set("b", 2.0);
    preferences->set("b", 1.5);
    drain();
    EXPECT_EQ(content(), R"({"b":1.50})");
}

TEST_F(JsonPreferencesWriting, flushWritesAtOnceAndOnce) {
    const auto preferences = open();
    preferences->set("a", true);
    preferences->flush();
    EXPECT_EQ(content(), "{\n  \"a\": true\n}\n");
    const ino_t written = inodeOf(file());
    drain();
    preferences->flush();
    EXPECT_EQ(inodeOf(file()), written);
}

TEST_F(JsonPreferencesWriting, whatIsQueuedIsDroppedWithTheObject) {
    open()->set("a", true);
    drain();
    EXPECT_TRUE(folder_.names().empty());
}

TEST_F(JsonPreferencesWriting, nothingButTheFileStaysBehind) {
    const auto preferences = open();
    for (std::int64_t number = 0; number < 10; ++number) {
        preferences->set("a", number);
        drain();
    }
    EXPECT_THAT(folder_.names(), ElementsAre("preferences.json"));
}

TEST_F(JsonPreferencesWriting, aDraftThatACrashLeftBehindIsUsedUp) {
    writeInPlace(folder_ / ".preferences.json.new", std::string(1'000, '{'));
    const auto preferences = open();
    preferences->set("a", true);
    drain();
    EXPECT_EQ(content(), "{\n  \"a\": true\n}\n");
    EXPECT_THAT(folder_.names(), ElementsAre("preferences.json"));
}

TEST_F(JsonPreferencesWriting, aNewFileAndNewFoldersAreThePersonsAlone) {
    const mode_t mask = ::umask(0);
    const auto deep = folder_ / "one/two/preferences.json";
    JsonPreferences preferences(deep, log_, queue_);
    EXPECT_TRUE(folder_.names().empty());
    preferences.set("a", true);
    preferences.flush();
    EXPECT_EQ(permissionsOf(deep), 0600U);
    EXPECT_EQ(permissionsOf(folder_ / "one"), 0700U);
    EXPECT_EQ(permissionsOf(folder_ / "one/two"), 0700U);
    ::umask(mask);
}

TEST_F(JsonPreferencesWriting, thePermissionsOfAFileAreKept) {
    const mode_t mask = ::umask(077);
    const auto preferences = openWith("{}");
    std::filesystem::permissions(file(), std::filesystem::perms(0664));
    preferences->set("a", true);
    preferences->flush();
    ::umask(mask);
    EXPECT_EQ(permissionsOf(file()), 0664U);
}

TEST_F(JsonPreferencesWriting, theFileThatALinkLeadsToIsReplaced) {
    std::filesystem::create_directories(folder_ / "real");
    writeInPlace(folder_ / "real/choices.json", "{}");
    std::filesystem::create_symlink("second", file());
    std::filesystem::create_symlink("real/choices.json", folder_ / "second");
    const auto preferences = open();
    preferences->set("a", true);
    preferences->flush();
    EXPECT_TRUE(std::filesystem::is_symlink(file()));
    EXPECT_TRUE(std::filesystem::is_symlink(folder_ / "second"));
    EXPECT_EQ(contentOf(folder_ / "real/choices.json"), "{\n  \"a\": true\n}\n");
    EXPECT_THAT(folder_.names(), ElementsAre("preferences.json", "real", "second"));
    EXPECT_THAT(preferences->folders(), ElementsAre(folder_.path(), folder_ / "real"));
}

TEST_F(JsonPreferencesWriting, aLinkToNothingIsFilledWhereItLeads) {
    std::filesystem::create_symlink(folder_ / "real/choices.json", file());
    const auto preferences = open();
    preferences->set("a", true);
    preferences->flush();
    EXPECT_TRUE(std::filesystem::is_symlink(file()));
    EXPECT_EQ(contentOf(folder_ / "real/choices.json"), "{\n  \"a\": true\n}\n");
    EXPECT_TRUE(log_.lines().empty());
}

TEST_F(JsonPreferencesWriting, watchesOneFolderWithoutLinks) {
    EXPECT_THAT(open()->folders(), ElementsAre(folder_.path()));
}

} // namespace
} // namespace kestrelfen
