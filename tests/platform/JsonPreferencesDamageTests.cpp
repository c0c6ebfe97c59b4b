#include "platform/JsonPreferencesFixture.hpp"

#include <gmock/gmock.h>
#include <ostream>

namespace kestrelfen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using JsonPreferencesDamage = JsonPreferencesFixture;

constexpr double settlingSeconds = 1;

std::string atStart(const std::string& problem) {
    return "error: preferences.json is damaged: " + problem +
           ". It was moved to preferences.damaged-1.json; Kestrelfen goes on with no preferences set.";
}

std::string later(const std::string& problem) {
    return "error: preferences.json is damaged: " + problem +
           ". It was moved to preferences.damaged-1.json; the preferences in force are kept and written "
           "anew.";
}

struct Damage {
    std::string content;
    std::string problem;

    friend void PrintTo(const Damage& damage, std::ostream* stream) { *stream << damage.problem; }
};

class JsonPreferencesDamageKinds : public JsonPreferencesFixture,
                                   public testing::WithParamInterface<Damage> {};

TEST_P(JsonPreferencesDamageKinds, areSetAsideAtStartWithTheirReason) {
    const auto preferences = openWith(GetParam().content);
    EXPECT_EQ(preferences->object("a"), nullptr);
    EXPECT_THAT(folder_.names(), ElementsAre("preferences.damaged-1.json"));
    EXPECT_EQ(contentOf(folder_ / "preferences.damaged-1.json"), GetParam().content);
    EXPECT_THAT(logLines(), ElementsAre(atStart(GetParam().problem)));
}

INSTANTIATE_TEST_SUITE_P(
    JsonPreferencesDamage, JsonPreferencesDamageKinds,
    testing::Values(Damage{"", "it is empty"}, Damage{" \n\n", "it is empty"},
                    Damage{"{\n  \"a\": tr", "it breaks off at line 2, byte 10"},
                    Damage{"{\n  \"a\": true", "it breaks off at line 2, byte 12"},
                    Damage{"{\"a\": \"text", "it breaks off at line 1, byte 12"},
                    Damage{"{\n  \"a\": true,\n}\n", "it is not valid JSON at line 3, byte 1"},
                    Damage{"{\n  \"a\": yes\n}\n", "it is not valid JSON at line 2, byte 8"},
                    Damage{"{\"a\": 01}", "it is not valid JSON at line 1, byte 8"},
                    Damage{"{\"a\": 1e}", "it is not valid JSON at line 1, byte 9"},
                    Damage{"{\"a\": 1-2}", "it is not valid JSON at line 1, byte 8"},
                    Damage{"{\"a\": \"\\ud800\"}", "it is not valid JSON at line 1, byte 14"},
                    Damage{"{} {}", "it is not valid JSON at line 1, byte 4"},
                    Damage{"garbage", "it is not valid JSON at line 1, byte 1"},
                    Damage{"[\"a\"]", "it holds no JSON object"}, Damage{"null", "it holds no JSON object"},
                    Damage{"{\"a\": \"\xFF\"}", "it is not UTF-8 text"},
                    Damage{std::string("{\"a\": true}\0\0", 13), "it has a zero byte at line 1, byte 12"},
                    Damage{std::string(4'096, '\0'), "it has a zero byte at line 1, byte 1"}));

TEST_F(JsonPreferencesDamage, theProgramGoesOnAndWritesANewFile) {
    const auto preferences = openWith("{");
    preferences->set("a", true);
    drain();
    EXPECT_EQ(content(), "{\n  \"a\": true\n}\n");
    EXPECT_EQ(contentOf(folder_ / "preferences.damaged-1.json"), "{");
    EXPECT_EQ(logLines().size(), 1U);
}

TEST_F(JsonPreferencesDamage, nothingIsOverwrittenByAFileThatIsSetAside) {
    writeInPlace(folder_ / "preferences.damaged-1.json", "first");
    std::filesystem::create_symlink("nowhere", folder_ / "preferences.damaged-2.json");
    writeInPlace(folder_ / "preferences.damaged-4.json", "fourth");
    openWith("third");
    EXPECT_THAT(folder_.names(), ElementsAre("preferences.damaged-1.json", "preferences.damaged-2.json",
                                             "preferences.damaged-3.json", "preferences.damaged-4.json"));
    EXPECT_EQ(contentOf(folder_ / "preferences.damaged-1.json"), "first");
    EXPECT_EQ(contentOf(folder_ / "preferences.damaged-3.json"), "third");
    EXPECT_EQ(contentOf(folder_ / "preferences.damaged-4.json"), "fourth");
}

TEST_F(JsonPreferencesDamage, ofALinkTheFileThatItLeadsToIsSetAside) {
    std::filesystem::create_directories(folder_ / "real");
    writeInPlace(folder_ / "real/choices.json", "garbage");
    std::filesystem::create_symlink("real/choices.json", file());
    const auto preferences = open();
    preferences->set("a", true);
    drain();
    EXPECT_TRUE(std::filesystem::is_symlink(file()));
    EXPECT_EQ(contentOf(folder_ / "real/choices.damaged-1.json"), "garbage");
    EXPECT_EQ(content(), "{\n  \"a\": true\n}\n");
}

TEST_F(JsonPreferencesDamage, laterTheValuesInForceAreKeptAndWrittenAnew) {
    const auto preferences = openWith("{\"a\": 1, \"unknown\": null}");
    int changes = 0;
    const auto subscription = preferences->observe([&changes] { ++changes; });
    writeByRename(file(), "{\"a\": ");
    preferences->reloadIfChanged();
    drainAfter(settlingSeconds);
    EXPECT_EQ(preferences->integer("a"), 1);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(content(), "{\n  \"a\": 1,\n  \"unknown\": null\n}\n");
    EXPECT_EQ(contentOf(folder_ / "preferences.damaged-1.json"), "{\"a\": ");
    EXPECT_THAT(logLines(), ElementsAre(later("it breaks off at line 1, byte 7")));
}

TEST_F(JsonPreferencesDamage, aFileThatIsJustBeingWrittenIsLeftTimeToSettle) {
    const auto preferences = openWith("{\"a\": 1}");
    writeInPlace(file(), "");
    preferences->reloadIfChanged();
    EXPECT_EQ(preferences->integer("a"), 1);
    drainAfter(settlingSeconds / 2);
    writeInPlace(file(), "{\"a\": 2}");
    preferences->reloadIfChanged();
    EXPECT_EQ(preferences->integer("a"), 2);
    drainAfter(settlingSeconds);
    EXPECT_THAT(folder_.names(), ElementsAre("preferences.json"));
    EXPECT_THAT(logLines(), IsEmpty());
}

TEST_F(JsonPreferencesDamage, aFileThatSettlesUnwatchedIsTakenOver) {
    const auto preferences = openWith("{\"a\": 1}");
    writeInPlace(file(), "");
    preferences->reloadIfChanged();
    writeInPlace(file(), "{\"a\": 2}");
    drainAfter(settlingSeconds);
    EXPECT_EQ(preferences->integer("a"), 2);
    EXPECT_THAT(logLines(), IsEmpty());
}

TEST_F(JsonPreferencesDamage, whatIsSetWhileAFileSettlesIsWrittenAfterwards) {
    const auto preferences = openWith("{\"a\": 1}");
    writeInPlace(file(), "{");
    preferences->set("b", true);
    drain();
    EXPECT_EQ(content(), "{");
    drainAfter(settlingSeconds);
    EXPECT_EQ(content(), "{\n  \"a\": 1,\n  \"b\": true\n}\n");
    EXPECT_EQ(contentOf(folder_ / "preferences.damaged-1.json"), "{");
}

TEST_F(JsonPreferencesDamage, theLastWritingWaitsForNoFileToSettle) {
    const auto preferences = openWith("{\"a\": 1}");
    writeInPlace(file(), "{");
    preferences->set("b", true);
    preferences->flush();
    EXPECT_EQ(content(), "{\n  \"a\": 1,\n  \"b\": true\n}\n");
    EXPECT_EQ(contentOf(folder_ / "preferences.damaged-1.json"), "{");
}

TEST_F(JsonPreferencesDamage, afterEachNewDamageTheNextNumberIsTaken) {
    const auto preferences = openWith("{\"a\": 1}");
    for (const char* const garbage : {"one", "two", "three"}) {
        writeByRename(file(), garbage);
        preferences->reloadIfChanged();
        drainAfter(settlingSeconds);
    }
    EXPECT_EQ(contentOf(folder_ / "preferences.damaged-1.json"), "one");
    EXPECT_EQ(contentOf(folder_ / "preferences.damaged-2.json"), "two");
    EXPECT_EQ(contentOf(folder_ / "preferences.damaged-3.json"), "three");
    EXPECT_EQ(content(), "{\n  \"a\": 1\n}\n");
}

} // namespace
} // namespace kestrelfen
