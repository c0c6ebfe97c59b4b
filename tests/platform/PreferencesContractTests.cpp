#include "platform/fake/FakeClock.hpp"
#include "platform/fake/FakeLog.hpp"
#include "platform/fake/FakeMainQueue.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "platform/posix/JsonPreferences.hpp"
#include "support/TemporaryFolder.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>

namespace kestrelfen {
namespace {

constexpr Date date = Date::fromMicroseconds(1'773'043'200'123'457);

struct FakeSubject {
    FakePreferences preferences;
};

struct JsonSubject {
    TemporaryFolder folder;
    FakeClock clock;
    FakeMainQueue queue{clock};
    FakeLog log;
    JsonPreferences preferences{folder / "preferences.json", log, queue};
};

/// What holds of every store of preferences.
template <typename Subject>
class PreferencesContract : public testing::Test {
  protected:
    int changesDuring(const std::function<void()>& action) {
        int changes = 0;
        const auto subscription = preferences().observe([&changes] { ++changes; });
        action();
        return changes;
    }

    Preferences& preferences() { return subject_.preferences; }

  private:
    Subject subject_;
};

using Subjects = testing::Types<FakeSubject, JsonSubject>;
TYPED_TEST_SUITE(PreferencesContract, Subjects);

TYPED_TEST(PreferencesContract, anAbsentKeyReadsAsNothing) {
    const Preferences& preferences = this->preferences();
    EXPECT_EQ(preferences.object("key"), nullptr);
    EXPECT_EQ(preferences.boolean("key"), std::nullopt);
    EXPECT_EQ(preferences.integer("key"), std::nullopt);
    EXPECT_EQ(preferences.real("key"), std::nullopt);
    EXPECT_EQ(preferences.string("key"), nullptr);
    EXPECT_EQ(preferences.date("key"), std::nullopt);
    EXPECT_EQ(preferences.data("key"), nullptr);
    EXPECT_EQ(preferences.strings("key"), nullptr);
    EXPECT_EQ(preferences.dictionary("key"), nullptr);
}

TYPED_TEST(PreferencesContract, absentDiffersFromFalseZeroAndEmpty) {
    Preferences& preferences = this->preferences();
    preferences.set("false", false);
    preferences.set("zero", std::int64_t{0});
    preferences.set("none", 0.0);
    preferences.set("text", std::string());
    preferences.set("data", PreferenceData());
    preferences.set("list", PreferenceStrings());
    preferences.set("dictionary", PreferenceDictionary());
    EXPECT_EQ(preferences.boolean("false"), false);
    EXPECT_EQ(preferences.integer("zero"), 0);
    EXPECT_EQ(preferences.real("none"), 0.0);
    ASSERT_NE(preferences.string("text"), nullptr);
    ASSERT_NE(preferences.data("data"), nullptr);
    ASSERT_NE(preferences.strings("list"), nullptr);
    ASSERT_NE(preferences.dictionary("dictionary"), nullptr);
    EXPECT_EQ(preferences.boolean("other"), std::nullopt);
}

TYPED_TEST(PreferencesContract, eachTypeReadsBack) {
    Preferences& preferences = this->preferences();
    preferences.set("truth", true);
    preferences.set("whole", std::int64_t{-1});
    preferences.set("real", 1200.5);
    preferences.set("text", std::string("balanced"));
    preferences.set("date", date);
    preferences.set("data", PreferenceData{0, 1, 255});
    preferences.set("list", PreferenceStrings{"b", "", "a"});
    preferences.set("dictionary", PreferenceDictionary{{"one", "1"}, {"", "none"}});
    EXPECT_EQ(preferences.boolean("truth"), true);
    EXPECT_EQ(preferences.integer("whole"), -1);
    EXPECT_EQ(preferences.real("real"), 1200.5);
    EXPECT_EQ(*preferences.string("text"), "balanced");
    EXPECT_EQ(preferences.date("date"), date);
    EXPECT_EQ(*preferences.data("data"), (PreferenceData{0, 1, 255}));
    EXPECT_EQ(*preferences.strings("list"), (PreferenceStrings{"b", "", "a"}));
    EXPECT_EQ(*preferences.dictionary("dictionary"), (PreferenceDictionary{{"one", "1"}, {"", "none"}}));
}

TYPED_TEST(PreferencesContract, aValueOfAnotherTypeReadsAsAbsent) {
    Preferences& preferences = this->preferences();
    preferences.set("text", std::string("1"));
    preferences.set("number", std::int64_t{1});
    preferences.set("truth", true);
    EXPECT_EQ(preferences.boolean("text"), std::nullopt);
    EXPECT_EQ(preferences.integer("text"), std::nullopt);
    EXPECT_EQ(preferences.real("text"), std::nullopt);
    EXPECT_EQ(preferences.date("number"), std::nullopt);
    EXPECT_EQ(preferences.boolean("number"), std::nullopt);
    EXPECT_EQ(preferences.string("number"), nullptr);
    EXPECT_EQ(preferences.data("text"), nullptr);
    EXPECT_EQ(preferences.strings("text"), nullptr);
    EXPECT_EQ(preferences.dictionary("text"), nullptr);
    EXPECT_EQ(preferences.integer("truth"), std::nullopt);
    EXPECT_EQ(preferences.real("truth"), std::nullopt);
    EXPECT_NE(preferences.object("text"), nullptr);
}

TYPED_TEST(PreferencesContract, theTwoNumberTypesReadAsEachOther) {
    Preferences& preferences = this->preferences();
    preferences.set("whole", std::int64_t{1200});
    preferences.set("real", -2.9);
    preferences.set("huge", 1e300);
    preferences.set("deep", -1e300);
    EXPECT_EQ(preferences.real("whole"), 1200.0);
    EXPECT_EQ(preferences.integer("real"), -2);
    EXPECT_EQ(preferences.integer("huge"), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(preferences.integer("deep"), std::numeric_limits<std::int64_t>::min());
}

TYPED_TEST(PreferencesContract, anIntegerStaysAnIntegerAndARealNumberReal) {
    Preferences& preferences = this->preferences();
    preferences.set("whole", std::int64_t{1200});
    preferences.set("real", 1200.0);
    EXPECT_TRUE(std::holds_alternative<std::int64_t>(*preferences.object("whole")));
    EXPECT_TRUE(std::holds_alternative<double>(*preferences.object("real")));
}

TYPED_TEST(PreferencesContract, theLastValueCounts) {
    Preferences& preferences = this->preferences();
    preferences.set("key", true);
    preferences.set("key", std::string("text"));
    EXPECT_EQ(preferences.boolean("key"), std::nullopt);
    EXPECT_EQ(*preferences.string("key"), "text");
}

TYPED_TEST(PreferencesContract, aRemovedKeyIsAbsent) {
    Preferences& preferences = this->preferences();
    preferences.set("key", true);
    preferences.set("other", true);
    preferences.remove("key");
    EXPECT_EQ(preferences.object("key"), nullptr);
    EXPECT_EQ(preferences.boolean("other"), true);
}

TYPED_TEST(PreferencesContract, observersHearOfRealChangesOnly) {
    Preferences& preferences = this->preferences();
    EXPECT_EQ(this->changesDuring([&] { preferences.set("key", 1.0); }), 1);
    EXPECT_EQ(this->changesDuring([&] { preferences.set("key", 1.0); }), 0);
    EXPECT_EQ(this->changesDuring([&] { preferences.set("key", std::int64_t{1}); }), 1);
    EXPECT_EQ(this->changesDuring([&] { preferences.remove("other"); }), 0);
    EXPECT_EQ(this->changesDuring([&] { preferences.remove("key"); }), 1);
    EXPECT_EQ(this->changesDuring([&] { preferences.remove("key"); }), 0);
}

TYPED_TEST(PreferencesContract, zeroAndNegativeZeroAreTwoValues) {
    Preferences& preferences = this->preferences();
    preferences.set("key", 0.0);
    EXPECT_EQ(this->changesDuring([&] { preferences.set("key", -0.0); }), 1);
    EXPECT_TRUE(std::signbit(*preferences.real("key")));
    EXPECT_EQ(this->changesDuring([&] { preferences.set("key", -0.0); }), 0);
}

TYPED_TEST(PreferencesContract, anObserverFindsTheNewValueInForce) {
    Preferences& preferences = this->preferences();
    std::optional<bool> seen;
    const auto subscription = preferences.observe([&] { seen = preferences.boolean("key"); });
    preferences.set("key", true);
    EXPECT_EQ(seen, true);
}

TYPED_TEST(PreferencesContract, anObserverMaySetAnotherValue) {
    Preferences& preferences = this->preferences();
    const auto subscription = preferences.observe([&] { preferences.set("second", true); });
    preferences.set("first", true);
    EXPECT_EQ(preferences.boolean("first"), true);
    EXPECT_EQ(preferences.boolean("second"), true);
}

TYPED_TEST(PreferencesContract, textThatIsNotUtf8IsKeptWithReplacementCharacters) {
    Preferences& preferences = this->preferences();
    preferences.set("text", std::string("a\xFFz"));
    preferences.set("list", PreferenceStrings{"fine", "\xC3"});
    preferences.set("dictionary", PreferenceDictionary{{"k\x80", "v\xE2\x82"}});
    EXPECT_EQ(*preferences.string("text"), "a\uFFFDz");
    EXPECT_EQ(*preferences.strings("list"), (PreferenceStrings{"fine", "\uFFFD"}));
    EXPECT_EQ(*preferences.dictionary("dictionary"), (PreferenceDictionary{{"k\uFFFD", "v\uFFFD"}}));
    EXPECT_EQ(this->changesDuring([&] { preferences.set("text", std::string("a\xFFz")); }), 0);
}

TYPED_TEST(PreferencesContract, aKeyThatIsNotUtf8IsKeptWithReplacementCharacters) {
    Preferences& preferences = this->preferences();
    preferences.set("k\xFF", true);
    EXPECT_EQ(preferences.boolean("k\uFFFD"), true);
}

TYPED_TEST(PreferencesContract, aNumberThatIsNotFiniteIsAFault) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_DEATH(this->preferences().set("key", infinity), "finite");
    EXPECT_DEATH(this->preferences().set("key", -infinity), "finite");
    EXPECT_DEATH(this->preferences().set("key", std::numeric_limits<double>::quiet_NaN()), "finite");
}

TEST(FakePreferences, listsEverythingSortedByKey) {
    FakePreferences preferences;
    preferences.set("second", true);
    preferences.set("first", 1.0);
    const std::map<std::string, PreferenceValue> expected{{"first", 1.0}, {"second", true}};
    EXPECT_EQ(preferences.all(), expected);
}

} // namespace
} // namespace kestrelfen
