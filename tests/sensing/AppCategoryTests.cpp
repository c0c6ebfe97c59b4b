#include "platform/fake/FakeClock.hpp"
#include "platform/fake/FakeLog.hpp"
#include "platform/fake/FakeMainQueue.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "platform/posix/JsonPreferences.hpp"
#include "sensing/AppCategory.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <fstream>

namespace kestrelfen {
namespace {

constexpr const char* overridesKey = "appCategoryOverrides";

class AppCategoryTest : public testing::Test {
  protected:
    AppCategory resolve(const std::string& bundleIdentifier) {
        return resolveCategory(bundleIdentifier, preferences);
    }

    void storeOverrides(PreferenceDictionary overrides) {
        preferences.set(overridesKey, std::move(overrides));
    }

    PreferenceDictionary storedOverrides() { return *preferences.dictionary(overridesKey); }

    FakePreferences preferences;
};

TEST_F(AppCategoryTest, HasSixCasesInOrderWithRawValuesLabelsAndSymbols) {
    std::string table;
    for (const AppCategory category : allCases<AppCategory>()) {
        for (const std::string_view text : {rawValue(category), label(category), symbolName(category)}) {
            table += std::string(text) + "|";
        }
        table += "\n";
    }
    EXPECT_EQ(table, "work|Work|hammer|\n"
                     "communication|Communication|bubble.left.and.bubble.right|\n"
                     "browsing|Browsing|safari|\n"
                     "media|Media|play.rectangle|\n"
                     "utilities|Utilities|wrench.and.screwdriver|\n"
                     "other|Uncategorised|questionmark.circle|\n");
}

TEST_F(AppCategoryTest, SuggestsByTheTable) {
    const std::map<AppCategory, std::vector<std::string>> table{
        {AppCategory::work,
         {"com.apple.dt.Xcode", "com.apple.Terminal", "dev.warp.Warp-Stable", "com.googlecode.iterm2",
          "com.microsoft.VSCode", "com.figma.Desktop", "com.apple.Notes", "notion.id", "com.linear"}},
        {AppCategory::communication,
         {"com.tinyspeck.slackmacgap", "com.microsoft.teams", "com.microsoft.teams2", "us.zoom.xos",
          "com.apple.mail", "com.apple.MobileSMS", "com.apple.FaceTime", "com.hnc.Discord",
          "ru.keepcoder.Telegram", "net.whatsapp.WhatsApp"}},
        {AppCategory::browsing,
         {"com.apple.Safari", "com.google.Chrome", "com.brave.Browser", "org.mozilla.firefox",
          "company.thebrowser.Browser", "ai.perplexity.comet", "app.zen-browser.zen"}},
        {AppCategory::media,
         {"com.apple.Music", "com.spotify.client", "com.apple.TV", "com.apple.QuickTimePlayerX",
          "org.videolan.vlc", "com.colliderli.iina"}},
        {AppCategory::utilities,
         {"com.apple.finder", "com.apple.systempreferences", "com.apple.ActivityMonitor",
          "app.kestrelfen.mac"}}};
    std::size_t count = 0;
    for (const auto& [category, identifiers] : table) {
        for (const std::string& identifier : identifiers) {
            EXPECT_EQ(suggestedCategory(identifier), category) << identifier;
            EXPECT_EQ(resolve(identifier), category) << identifier;
            ++count;
        }
    }
    EXPECT_EQ(count, 36U);
}

TEST_F(AppCategoryTest, AnAppNotInTheTableAndWithoutAnOverrideIsUncategorised) {
    for (const char* identifier : {"com.microsoft.edgemac", "com.vivaldi.Vivaldi", "com.operasoftware.Opera",
                                   "org.example.unknown", "com.apple.music", ""}) {
        EXPECT_EQ(suggestedCategory(identifier), std::nullopt) << identifier;
        EXPECT_EQ(resolve(identifier), AppCategory::other) << identifier;
    }
}

TEST_F(AppCategoryTest, AChoiceBeatsTheSuggestion) {
    setCategory(AppCategory::media, "com.apple.Terminal", preferences);
    EXPECT_EQ(resolve("com.apple.Terminal"), AppCategory::media);
    setCategory(AppCategory::other, "com.apple.Terminal", preferences);
    EXPECT_EQ(resolve("com.apple.Terminal"), AppCategory::other);
    EXPECT_EQ(resolve("com.apple.Notes"), AppCategory::work);
}

TEST_F(AppCategoryTest, AChoiceIsStoredByItsRawValueBesideTheOthers) {
    setCategory(AppCategory::media, "org.example.one", preferences);
    setCategory(AppCategory::other, "org.example.two", preferences);
    setCategory(AppCategory::work, "org.example.one", preferences);
    EXPECT_EQ(storedOverrides(),
              (PreferenceDictionary{{"org.example.one", "work"}, {"org.example.two", "other"}}));
}

TEST_F(AppCategoryTest, AnUnreadableChoiceFallsToTheTableOrToUncategorised) {
    storeOverrides({{"com.apple.Terminal", "Work"}, {"org.example.one", "games"}});
    EXPECT_EQ(resolve("com.apple.Terminal"), AppCategory::work);
    EXPECT_EQ(resolve("org.example.one"), AppCategory::other);
    storeOverrides({{"com.apple.Terminal", "Media"}});
    EXPECT_EQ(resolve("com.apple.Terminal"), AppCategory::work);
}

TEST_F(AppCategoryTest, AnOverrideIsThereWhateverItsValue) {
    EXPECT_FALSE(hasOverride("com.apple.Terminal", preferences));
    storeOverrides({{"com.apple.Terminal", "games"}});
    EXPECT_TRUE(hasOverride("com.apple.Terminal", preferences));
    EXPECT_FALSE(hasOverride("com.apple.Notes", preferences));
}

TEST_F(AppCategoryTest, ClearingBringsTheSuggestionBackAndKeepsTheOthers) {
    setCategory(AppCategory::media, "com.apple.Terminal", preferences);
    setCategory(AppCategory::media, "org.example.one", preferences);
    clearOverride("com.apple.Terminal", preferences);
    EXPECT_EQ(resolve("com.apple.Terminal"), AppCategory::work);
    EXPECT_EQ(storedOverrides(), (PreferenceDictionary{{"org.example.one", "media"}}));
}

TEST_F(AppCategoryTest, ClearingTheLastOverrideLeavesAnEmptyDictionary) {
    setCategory(AppCategory::media, "com.apple.Terminal", preferences);
    clearOverride("com.apple.Terminal", preferences);
    EXPECT_EQ(storedOverrides(), PreferenceDictionary());
}

TEST_F(AppCategoryTest, ClearingWhatIsNotThereRewritesTheDictionaryAsItIs) {
    storeOverrides({{"org.example.one", "media"}});
    clearOverride("com.apple.Terminal", preferences);
    EXPECT_EQ(storedOverrides(), (PreferenceDictionary{{"org.example.one", "media"}}));
    preferences.remove(overridesKey);
    clearOverride("com.apple.Terminal", preferences);
    EXPECT_EQ(storedOverrides(), PreferenceDictionary());
}

TEST_F(AppCategoryTest, ADamagedValueReadsAsNoOverridesUntilTheNextWrite) {
    preferences.set(overridesKey, std::string("work"));
    EXPECT_EQ(resolve("com.apple.Terminal"), AppCategory::work);
    EXPECT_FALSE(hasOverride("com.apple.Terminal", preferences));
    setCategory(AppCategory::media, "com.apple.Terminal", preferences);
    EXPECT_EQ(storedOverrides(), (PreferenceDictionary{{"com.apple.Terminal", "media"}}));
}

TEST(AppCategoryFile, OneValueThatIsNoTextMakesAllReadAsNoOverridesUntilTheNextWrite) {
    const TemporaryFolder folder;
    const auto file = folder / "preferences.json";
    std::ofstream(file) << R"({"appCategoryOverrides":
        {"com.apple.Terminal": "media", "org.example.one": 5, "org.example.two": "work"}})";
    FakeClock clock;
    FakeMainQueue queue(clock);
    FakeLog log;
    JsonPreferences preferences(file, log, queue);
    EXPECT_EQ(resolveCategory("com.apple.Terminal", preferences), AppCategory::work) << "as suggested";
    EXPECT_EQ(resolveCategory("org.example.two", preferences), AppCategory::other);
    for (const char* const identifier : {"com.apple.Terminal", "org.example.one", "org.example.two"}) {
        EXPECT_FALSE(hasOverride(identifier, preferences)) << identifier;
    }
    setCategory(AppCategory::browsing, "com.apple.Notes", preferences);
    queue.drain();
    const JsonPreferences reread(file, log, queue);
    const PreferenceDictionary written{{"com.apple.Notes", "browsing"}};
    for (const JsonPreferences* const each :
         std::initializer_list<const JsonPreferences*>{&preferences, &reread}) {
        ASSERT_NE(each->dictionary(overridesKey), nullptr);
        EXPECT_EQ(*each->dictionary(overridesKey), written);
    }
}

} // namespace
} // namespace kestrelfen
