#include "Json.hpp"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace kestrelfen {
namespace {

Json parsed(const char* text) {
    return Json::parse(text);
}

TEST(JsonPath, LeadsIntoObjectsAndLists) {
    const Json json =
        parsed(R"({"config":{"workInterval":1200.0},"rows":[{"kind":"paused"},{"kind":"skipped"}]})");
    EXPECT_EQ(valueAt(json, "config.workInterval"), 1200.0);
    EXPECT_EQ(valueAt(json, "rows.1.kind"), "skipped");
    EXPECT_EQ(lineOf(valueAt(json, "rows.0")), R"({"kind":"paused"})");
}

TEST(JsonPath, CountIsTheLengthOfAList) {
    const Json json = parsed(R"({"rows":[1,[2,3]],"none":[],"named":{"count":9},"text":"abc"})");
    EXPECT_EQ(valueAt(json, "rows.count"), 2);
    EXPECT_EQ(valueAt(json, "rows.1.count"), 2);
    EXPECT_EQ(valueAt(json, "none.count"), 0);
    EXPECT_EQ(valueAt(json, "named.count"), 9);
    EXPECT_EQ(valueAt(json, "text.count"), nullptr);
    EXPECT_EQ(valueAt(json, "count"), nullptr);
}

TEST(JsonPath, TakesTheLongestKeyThatFits) {
    const Json json = parsed(R"({"values":{"a":{"b":1,"b.c":2},"a.b":{"c":3},"a.b.c.d":4}})");
    EXPECT_EQ(valueAt(json, "values.a.b.c"), 3);
    EXPECT_EQ(valueAt(json, "values.a.b.c.d"), 4);
    EXPECT_EQ(valueAt(json, "values.a.b"), parsed(R"({"c":3})"));
}

TEST(JsonPath, DoesNotTurnBackFromTheLongestKey) {
    const Json json = parsed(R"({"a":{"b":{"c":1}},"a.b":{"d":2}})");
    EXPECT_EQ(valueAt(json, "a.b.c"), nullptr);
    EXPECT_EQ(valueAt(json, "a.b.d"), 2);
}

TEST(JsonPath, ThatLeadsNowhereIsNull) {
    const Json json = parsed(R"({"state":"working","rows":[1,2],"nothing":null})");
    for (const char* const path : {"", "stat", "state.x", "state.", ".state", "rows.2", "rows.-1", "rows.x",
                                   "rows.", "rows.0.x", "rows.count.x", "nothing.x", "x.y.z", "."}) {
        EXPECT_EQ(valueAt(json, path), nullptr) << '"' << path << '"';
    }
    EXPECT_EQ(valueAt(Json(nullptr), "text"), nullptr);
}

TEST(JsonPath, KnowsAnEmptyKey) {
    const Json json = parsed(R"({"values":{"":5,"a.":6}})");
    EXPECT_EQ(valueAt(json, "values."), 5);
    EXPECT_EQ(valueAt(json, "values.a."), 6);
}

TEST(JsonMatching, NumbersMayDifferByAMillionth) {
    EXPECT_TRUE(matches(1200.0, "1200"));
    EXPECT_TRUE(matches(1200.0, "1200.0000009"));
    EXPECT_TRUE(matches(1200.0, "1199.9999991"));
    EXPECT_FALSE(matches(1200.0, "1200.000002"));
    EXPECT_TRUE(matches(3, "3.0"));
    EXPECT_TRUE(matches(0.1 + 0.2, "0.3"));
    EXPECT_TRUE(matches(-1, "-1"));
    EXPECT_TRUE(matches(std::numeric_limits<double>::max(), "1.7976931348623157e+308"));
}

TEST(JsonMatching, NumberIsNoText) {
    for (const char* const word : {"", "null", "true", "12oo", "1200 ", "\"1200\"", "nan"}) {
        EXPECT_FALSE(matches(1200.0, word)) << word;
    }
}

TEST(JsonMatching, TextIsComparedAsText) {
    EXPECT_TRUE(matches("working", "working"));
    EXPECT_FALSE(matches("working", "Working"));
    EXPECT_TRUE(matches("5", "5"));
    EXPECT_FALSE(matches("5", "5.0"));
    EXPECT_FALSE(matches("5.0000001", "5.0"));
    EXPECT_TRUE(matches("null", "null"));
    EXPECT_TRUE(matches("", ""));
    EXPECT_TRUE(matches("Look 20 feet away", "Look 20 feet away"));
}

TEST(JsonMatching, NullAndTruthHaveTheirWords) {
    EXPECT_TRUE(matches(nullptr, "null"));
    EXPECT_FALSE(matches(nullptr, ""));
    EXPECT_FALSE(matches(nullptr, "0"));
    EXPECT_TRUE(matches(true, "true"));
    EXPECT_TRUE(matches(false, "false"));
    EXPECT_FALSE(matches(true, "1"));
    EXPECT_FALSE(matches(false, "null"));
}

TEST(JsonMatching, ListsAndObjectsAreCompactJson) {
    EXPECT_TRUE(matches(parsed(R"(["+1 min", "Skip in 5"])"), R"(["+1 min","Skip in 5"])"));
    EXPECT_FALSE(matches(parsed(R"(["a", "b"])"), R"(["a", "b"])"));
    EXPECT_TRUE(matches(parsed(R"({"b":1,"a":[]})"), R"({"b":1,"a":[]})"));
    EXPECT_FALSE(matches(parsed(R"({"b":1,"a":[]})"), R"({"a":[],"b":1})"));
    EXPECT_TRUE(matches(Json::array(), "[]"));
}

TEST(JsonText, DatesHaveMilliseconds) {
    EXPECT_EQ(jsonOf(Date::fromSeconds(1'773'043'200)), "2026-03-09T08:00:00.000Z");
    EXPECT_EQ(jsonOf(Date::fromMicroseconds(1'773'043'200'125'000)), "2026-03-09T08:00:00.125Z");
    EXPECT_EQ(jsonOf(std::optional<Date>()), nullptr);
}

TEST(JsonText, NumbersReadBackToTheSameDouble) {
    for (const double number : {0.1, 1.0 / 3.0, 1200.0, 1e300, 5e-324, std::numeric_limits<double>::max(),
                                -0.7216666666666667, 4503599627370497.5, std::nextafter(1.0, 2.0)}) {
        EXPECT_EQ(Json::parse(lineOf(number)).get<double>(), number);
    }
}

TEST(JsonText, IsOneLineAsWritten) {
    EXPECT_EQ(lineOf(Json{{"text", "a → \"b\"\nc"}}), R"({"text":"a → \"b\"\nc"})");
}

TEST(JsonText, KeepsTheOrderOfKeys) {
    EXPECT_EQ(lineOf(Json{{"b", 1}, {"a", 2}, {"c", nullptr}}), R"({"b":1,"a":2,"c":null})");
}

} // namespace
} // namespace kestrelfen
