#include "platform/JsonPreferencesFixture.hpp"

#include <atomic>
#include <thread>

namespace kestrelfen {
namespace {

class JsonPreferencesReload : public JsonPreferencesFixture {
  protected:
    int changesDuring(JsonPreferences& preferences, const std::function<void()>& action) {
        int changes = 0;
        const auto subscription = preferences.observe([&changes] { ++changes; });
        action();
        return changes;
    }
};

TEST_F(JsonPreferencesReload, takesOverWhatWasChangedOutside) {
    const auto preferences = openWith(R"({"a": 1, "b": 1})");
    writeByRename(file(), R"({"a": 2, "c": 3})");
    EXPECT_EQ(preferences->integer("a"), 1);
    EXPECT_EQ(changesDuring(*preferences, [&] { preferences->reloadIfChanged(); }), 1);
    EXPECT_EQ(preferences->integer("a"), 2);
    EXPECT_EQ(preferences->integer("b"), std::nullopt);
    EXPECT_EQ(preferences->integer("c"), 3);
}

TEST_F(JsonPreferencesReload, seesAChangeInPlaceOfTheSameLengthAtTheSameMoment) {
    const auto preferences = openWith(R"({"a": 0})");
    for (const char digit : std::string("123456789")) {
        writeInPlace(file(), std::string(R"({"a": )") + digit + "}");
        preferences->reloadIfChanged();
        ASSERT_EQ(preferences->integer("a"), digit - '0');
    }
}

TEST_F(JsonPreferencesReload, seesAChangeRightAfterItsOwnWriting) {
    const auto preferences = open();
    preferences->set("a", std::int64_t{1});
    preferences->flush();
    std::string edited = content();
    edited.replace(edited.find('1'), 1, "2");
    writeInPlace(file(), edited);
    preferences->reloadIfChanged();
    EXPECT_EQ(preferences->integer("a"), 2);
}

TEST_F(JsonPreferencesReload, observersHearNothingWhenOnlyTheTextChanged) {
    const auto preferences = openWith(R"({"a": 1, "b": 1.0})");
    writeByRename(file(), R"({ "b": 1.00, "unknown": null, "a": 1 })");
    EXPECT_EQ(changesDuring(*preferences, [&] { preferences->reloadIfChanged(); }), 0);
    EXPECT_EQ(changesDuring(*preferences, [&] { preferences->reloadIfChanged(); }), 0);
    preferences->set("a", std::int64_t{2});
    preferences->flush();
    EXPECT_EQ(content(), "{\n  \"b\": 1.00,\n  \"unknown\": null,\n  \"a\": 2\n}\n");
}

TEST_F(JsonPreferencesReload, aTypeThatChangesIsARealChange) {
    const auto preferences = openWith(R"({"a": 1})");
    writeByRename(file(), R"({"a": 1.0})");
    EXPECT_EQ(changesDuring(*preferences, [&] { preferences->reloadIfChanged(); }), 1);
}

TEST_F(JsonPreferencesReload, itsOwnWritingIsNoChangeFromOutside) {
    const auto preferences = openWith("{}");
    preferences->set("a", true);
    drain();
    EXPECT_EQ(changesDuring(*preferences, [&] { preferences->reloadIfChanged(); }), 0);
    EXPECT_FALSE(queue_.drain());
}

TEST_F(JsonPreferencesReload, whatWasSetHereAndIsNotWrittenWinsForItsKeysOnly) {
    const auto preferences = openWith(R"({"a": 1, "b": 1, "c": 1})");
    preferences->set("a", std::int64_t{10});
    preferences->remove("b");
    writeByRename(file(), R"({"a": 2, "b": 2, "c": 2, "d": 2})");
    EXPECT_EQ(changesDuring(*preferences, [&] { preferences->reloadIfChanged(); }), 1);
    EXPECT_EQ(preferences->integer("a"), 10);
    EXPECT_EQ(preferences->integer("b"), std::nullopt);
    EXPECT_EQ(preferences->integer("c"), 2);
    drain();
    EXPECT_EQ(content(), "{\n  \"a\": 10,\n  \"c\": 2,\n  \"d\": 2\n}\n");
}

TEST_F(JsonPreferencesReload, aWriteKeepsWhatWasAddedOutsideUnnoticed) {
    const auto preferences = openWith(R"({"a": 1})");
    preferences->set("b", true);
    writeByRename(file(), R"({"outside": [null], "a": 5})");
    EXPECT_EQ(changesDuring(*preferences, [&] { drain(); }), 1);
    EXPECT_EQ(preferences->integer("a"), 5);
    EXPECT_EQ(content(), "{\n  \"outside\": [null],\n  \"a\": 5,\n  \"b\": true\n}\n");
}

TEST_F(JsonPreferencesReload, onceWrittenAKeyFollowsTheFileAgain) {
    const auto preferences = open();
    preferences->set("a", std::int64_t{1});
    drain();
    writeByRename(file(), R"({"a": 2})");
    preferences->reloadIfChanged();
    EXPECT_EQ(preferences->integer("a"), 2);
}

TEST_F(JsonPreferencesReload, ofADeletedFileAllKeysAreAbsent) {
    const auto preferences = openWith(R"({"a": 1, "b": 1})");
    std::filesystem::remove(file());
    EXPECT_EQ(changesDuring(*preferences, [&] { preferences->reloadIfChanged(); }), 1);
    EXPECT_EQ(preferences->object("a"), nullptr);
    EXPECT_FALSE(queue_.drain());
    EXPECT_TRUE(folder_.names().empty());
    EXPECT_TRUE(log_.lines().empty());
}

TEST_F(JsonPreferencesReload, aDeletedFileLeavesWhatWasSetHereAndIsNotWritten) {
    const auto preferences = openWith(R"({"a": 1, "b": 1})");
    preferences->set("a", std::int64_t{2});
    std::filesystem::remove(file());
    drain();
    EXPECT_EQ(preferences->integer("a"), 2);
    EXPECT_EQ(preferences->object("b"), nullptr);
    EXPECT_EQ(content(), "{\n  \"a\": 2\n}\n");
}

TEST_F(JsonPreferencesReload, aDeletedFolderIsMadeAnew) {
    JsonPreferences preferences(folder_ / "sub/preferences.json", log_, queue_);
    preferences.set("a", true);
    drain();
    std::filesystem::remove_all(folder_ / "sub");
    preferences.reloadIfChanged();
    EXPECT_EQ(preferences.object("a"), nullptr);
    preferences.set("b", true);
    drain();
    EXPECT_EQ(contentOf(folder_ / "sub/preferences.json"), "{\n  \"b\": true\n}\n");
}

TEST_F(JsonPreferencesReload, aFileThatComesLaterIsTakenOver) {
    const auto preferences = open();
    writeByRename(file(), R"({"a": true})");
    preferences->reloadIfChanged();
    EXPECT_EQ(preferences->boolean("a"), true);
}

TEST_F(JsonPreferencesReload, whatAnObserverOfAReloadSetsIsWrittenToo) {
    const auto preferences = openWith(R"({"a": 1})");
    const auto subscription =
        preferences->observe([&] { preferences->set("seen", preferences->integer("a").value_or(0)); });
    writeByRename(file(), R"({"a": 2})");
    preferences->reloadIfChanged();
    drain();
    EXPECT_EQ(content(), "{\n  \"a\": 2,\n  \"seen\": 2\n}\n");
}

} // namespace

/// Writes the file from outside, as an editor does, in the very moment in which a draft of the new one lies
/// there.
class EditorDuringWriting {
  public:
    EditorDuringWriting(std::filesystem::path file, std::string content)
        : thread_(
              [this, draft = file.parent_path() / ("." + file.filename().string() + ".new"), file, content] {
                  while (!isOver_ && !std::filesystem::exists(draft)) {
                  }
                  if (!isOver_) {
                      writeInPlace(file, content);
                  }
              }) {}

    ~EditorDuringWriting() {
        isOver_ = true;
        thread_.join();
    }

  private:
    std::atomic<bool> isOver_ = false;
    std::thread thread_;
};

TEST_F(JsonPreferencesReload, anEditMadeWhileTheFileIsBeingReplacedIsNotLost) {
    const auto preferences = openWith(R"({"count": 0})");
    // Long enough for the disk to be busy with it for a while.
    preferences->set("bulk", PreferenceData(2'000'000, 'k'));
    {
        const EditorDuringWriting editor(file(), R"({"outside": 7})");
        drain();
    }
    drainAfter(2);
    preferences->reloadIfChanged();
    drain();
    EXPECT_EQ(preferences->integer("outside"), 7);
    EXPECT_EQ(preferences->data("bulk")->size(), 2'000'000U);
    EXPECT_EQ(open()->integer("outside"), 7);
    EXPECT_EQ(open()->data("bulk")->size(), 2'000'000U);
}

} // namespace kestrelfen
