#include "platform/JsonPreferencesFixture.hpp"

#include <bit>
#include <cmath>
#include <limits>
#include <random>

namespace kestrelfen {
namespace {

using JsonPreferencesFormat = JsonPreferencesFixture;

/// Reads, writes and compares to the last bit.
class JsonPreferencesRoundTrip : public JsonPreferencesFixture {
  protected:
    void expectSameAfterRestart(const PreferenceValue& value) {
        const auto first = open();
        first->set("key", value);
        first->flush();
        const auto second = open();
        const PreferenceValue* const found = second->object("key");
        ASSERT_NE(found, nullptr) << content();
        EXPECT_EQ(found->index(), value.index()) << content();
        EXPECT_EQ(*found, value) << content();
        if (const auto* const number = std::get_if<double>(&value)) {
            EXPECT_EQ(std::signbit(std::get<double>(*found)), std::signbit(*number));
        }
    }
};

TEST_F(JsonPreferencesRoundTrip, keepsPlainValues) {
    expectSameAfterRestart(true);
    expectSameAfterRestart(false);
    expectSameAfterRestart(PreferenceStrings());
    expectSameAfterRestart(PreferenceStrings{"", "b", "a", "b"});
    expectSameAfterRestart(PreferenceDictionary());
    expectSameAfterRestart(PreferenceDictionary{{"org.example.App", "work"}, {"", ""}});
}

TEST_F(JsonPreferencesRoundTrip, keepsIntegersToTheirLimits) {
    using Limits = std::numeric_limits<std::int64_t>;
    for (const std::int64_t number : {std::int64_t{0}, std::int64_t{-1}, std::int64_t{1200},
                                      (std::int64_t{1} << 53) + 1, Limits::max(), Limits::min()}) {
        expectSameAfterRestart(number);
    }
}

TEST_F(JsonPreferencesRoundTrip, keepsRealNumbersToTheLastBit) {
    using Limits = std::numeric_limits<double>;
    for (const double number :
         {0.0, -0.0, 1200.0, 0.1, 1.0 / 3.0, 1e15, 1e16, 1e17, 1e300, -2.5e-300, 9007199254740993.0,
          Limits::max(), Limits::lowest(), Limits::min(), Limits::denorm_min(), -Limits::denorm_min()}) {
        expectSameAfterRestart(number);
    }
}

TEST_F(JsonPreferencesRoundTrip, keepsAnyRealNumber) {
    std::mt19937_64 random(20);
    const auto preferences = open();
    std::vector<double> numbers;
    while (numbers.size() < 2'000) {
        const auto number = std::bit_cast<double>(random());
        if (std::isfinite(number)) {
            preferences->set(std::to_string(numbers.size()), number);
            numbers.push_back(number);
        }
    }
    preferences->flush();
    const auto again = open();
    for (std::size_t index = 0; index < numbers.size(); ++index) {
        ASSERT_EQ(again->real(std::to_string(index)), numbers[index]);
    }
}

TEST_F(JsonPreferencesRoundTrip, keepsDatesToTheMicrosecond) {
    using Limits = std::numeric_limits<std::int64_t>;
    constexpr std::int64_t year0 = -62'167'219'200'000'000;
    constexpr std::int64_t year10000 = 253'402'300'800'000'000;
    for (const std::int64_t microseconds :
         {std::int64_t{0}, std::int64_t{1}, std::int64_t{-1}, std::int64_t{1'773'043'200'123'457},
          Date::distantPast().microseconds(), year0, year0 - 1, year10000 - 1, year10000, Limits::max(),
          Limits::min()}) {
        expectSameAfterRestart(Date::fromMicroseconds(microseconds));
    }
}

TEST_F(JsonPreferencesRoundTrip, keepsAnyText) {
    std::string everyByteOfAscii;
    for (char character = 0; character < 127; ++character) {
        everyByteOfAscii += character;
    }
    for (const std::string& text :
         {std::string(), everyByteOfAscii, std::string("\x7F"), std::string("\"\\/\b\f\n\r\t"),
          std::string("Grüße, 日本, 😀, \u2028, \uFFFF"), std::string(100'000, 'x'),
          std::string("}{][,:\"")}) {
        expectSameAfterRestart(text);
    }
}

TEST_F(JsonPreferencesRoundTrip, keepsDataOfAnyLength) {
    constexpr std::size_t lengths = 300;
    const auto first = open();
    std::vector<PreferenceData> expected(1);
    while (expected.size() < lengths) {
        expected.push_back(expected.back());
        expected.back().push_back(static_cast<std::uint8_t>(expected.size() * 7));
    }
    for (std::size_t length = 0; length < lengths; ++length) {
        first->set(std::to_string(length), expected[length]);
    }
    first->flush();
    const auto second = open();
    for (std::size_t length = 0; length < lengths; ++length) {
        ASSERT_NE(second->data(std::to_string(length)), nullptr) << length;
        EXPECT_EQ(*second->data(std::to_string(length)), expected[length]);
    }
}

TEST_F(JsonPreferencesRoundTrip, keepsDictionariesThatLookLikeMarkers) {
    for (const char* const marker : {"$date", "$data", "$dictionary", "$other"}) {
        expectSameAfterRestart(PreferenceDictionary{{marker, "2026-03-09T00:00:00.000000Z"}});
        expectSameAfterRestart(PreferenceDictionary{{marker, ""}});
        expectSameAfterRestart(PreferenceDictionary{{marker, "YQ=="}, {"second", "b"}});
    }
}

TEST_F(JsonPreferencesRoundTrip, keepsKeysOfAnyText) {
    const auto first = open();
    const std::vector<std::string> keys{"", "a \"key\"", "{}", "\n", "ключ", std::string("\0", 1)};
    for (const std::string& key : keys) {
        first->set(key, key);
    }
    first->flush();
    const auto second = open();
    for (const std::string& key : keys) {
        ASSERT_NE(second->string(key), nullptr);
        EXPECT_EQ(*second->string(key), key);
    }
}

TEST_F(JsonPreferencesFormat, isPlainJsonWithTwoSpacesAndAFinalLineFeed) {
    const auto preferences = open();
    preferences->set("debugFastCycle", true);
    preferences->set("workIntervalSeconds", 1200.0);
    preferences->set("longBreakEvery", std::int64_t{4});
    preferences->set("idleMode", std::string("off"));
    preferences->set("focusAppBundleIDs", PreferenceStrings{"a", "b"});
    preferences->set("captureAppBundleIDs", PreferenceStrings());
    preferences->set("appCategoryOverrides", PreferenceDictionary{{"a", "work"}});
    preferences->set("lastPrunedDayStart", Date::fromSeconds(1'773'014'400));
    preferences->set("farAway", Date::fromMicroseconds(253'402'300'800'000'000));
    preferences->set("activeTaskID", PreferenceData{'{', '}'});
    preferences->set("marked", PreferenceDictionary{{"$date", "x"}});
    preferences->flush();
    EXPECT_EQ(content(), R"({
  "debugFastCycle": true,
  "workIntervalSeconds": 1200.0,
  "longBreakEvery": 4,
  "idleMode": "off",
  "focusAppBundleIDs": [
    "a",
    "b"
  ],
  "captureAppBundleIDs": [],
  "appCategoryOverrides": {
    "a": "work"
  },
  "lastPrunedDayStart": {
    "$date": "2026-03-09T00:00:00.000000Z"
  },
  "farAway": {
    "$date": 253402300800000000
  },
  "activeTaskID": {
    "$data": "e30="
  },
  "marked": {
    "$dictionary": {
      "$date": "x"
    }
  }
}
)");
}

TEST_F(JsonPreferencesFormat, readsWhatAPersonWrites) {
    const auto preferences =
        openWith(R"({"debugFastCycle": true, "workIntervalSeconds":60, "idleMode" : "off",
        "lastPrunedDayStart": {"$date": "2026-03-09T00:00:00Z"}, "focusAppBundleIDs": [ "a" ], "real": 1e3})");
    EXPECT_EQ(preferences->boolean("debugFastCycle"), true);
    EXPECT_EQ(preferences->real("workIntervalSeconds"), 60.0);
    EXPECT_EQ(*preferences->string("idleMode"), "off");
    EXPECT_EQ(preferences->date("lastPrunedDayStart"), Date::fromSeconds(1'773'014'400));
    EXPECT_EQ(*preferences->strings("focusAppBundleIDs"), PreferenceStrings{"a"});
    EXPECT_EQ(*preferences->object("real"), PreferenceValue(1000.0));
    EXPECT_TRUE(log_.lines().empty());
}

TEST_F(JsonPreferencesFormat, readsAFileThatBeginsWithAByteOrderMark) {
    EXPECT_EQ(openWith("\xEF\xBB\xBF{\"a\": true}\r\n")->boolean("a"), true);
}

TEST_F(JsonPreferencesFormat, ofARepeatedKeyTheLastValueCounts) {
    EXPECT_EQ(openWith(R"({"a": 1, "a": 2})")->integer("a"), 2);
}

TEST_F(JsonPreferencesFormat, readsUnknownKindsAsAbsent) {
    const auto preferences = openWith(R"({"null": null, "mixed": ["a", 1], "nested": {"a": {"b": "c"}},
        "large": 9223372036854775808, "larger": -9223372036854775809, "largest": 1e400, "lists": [[]],
        "date": {"$date": "yesterday"}, "far": {"$date": 9223372036854775808}, "data": {"$data": "a b"},
        "unpadded": {"$data": "YQ"}, "dictionary": {"$dictionary": ["a"]}, "last": true})");
    for (const char* const key : {"null", "mixed", "nested", "large", "larger", "largest", "lists", "date",
                                  "far", "data", "unpadded", "dictionary"}) {
        EXPECT_EQ(preferences->object(key), nullptr) << key;
    }
    EXPECT_EQ(preferences->boolean("last"), true);
    EXPECT_TRUE(log_.lines().empty());
}

TEST_F(JsonPreferencesFormat, keepsOrderAndUnknownValuesUnharmedWhenItIsRewritten) {
    const auto preferences = openWith(R"({"z": null, "large": 123456789012345678901234567890, "b": 1.50,
"nested": {"a": [1, {"}": "]"}, 1e999]}, "a": "caf\u00e9", "gone": 1, "tiny": 1E-999})");
    preferences->set("new", std::int64_t{1});
    preferences->set("b", 2.5);
    preferences->remove("gone");
    preferences->flush();
    EXPECT_EQ(content(), R"({
  "z": null,
  "large": 123456789012345678901234567890,
  "b": 2.5,
  "nested": {"a": [1, {"}": "]"}, 1e999]},
  "a": "caf\u00e9",
  "tiny": 1E-999,
  "new": 1
}
)");
}

TEST_F(JsonPreferencesFormat, aValueSetOverAnUnknownOneTakesItsPlace) {
    const auto preferences = openWith(R"({"a": null, "b": true})");
    preferences->set("a", std::string("x"));
    preferences->flush();
    EXPECT_EQ(content(), "{\n  \"a\": \"x\",\n  \"b\": true\n}\n");
}

TEST_F(JsonPreferencesFormat, aFileWithoutKeysIsAnEmptyObject) {
    const auto preferences = openWith(R"({"a": true})");
    preferences->remove("a");
    preferences->flush();
    EXPECT_EQ(content(), "{}\n");
}

TEST_F(JsonPreferencesFormat, readsAnEmptyObject) {
    const auto preferences = openWith(" { } ");
    preferences->set("a", true);
    preferences->flush();
    EXPECT_EQ(content(), "{\n  \"a\": true\n}\n");
    EXPECT_TRUE(log_.lines().empty());
}

TEST_F(JsonPreferencesFormat, aDeeplyNestedValueIsKept) {
    const std::string deep = std::string(50'000, '[') + std::string(50'000, ']');
    const auto preferences = openWith("{\"deep\": " + deep + "}");
    preferences->set("a", true);
    preferences->flush();
    EXPECT_EQ(content(), "{\n  \"deep\": " + deep + ",\n  \"a\": true\n}\n");
}

} // namespace
} // namespace kestrelfen
