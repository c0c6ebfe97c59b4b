#include "Arguments.hpp"
#include "ScenarioError.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

using Words = std::vector<std::string>;

template <typename Action>
std::string errorOf(Action action) {
    try {
        action();
    } catch (const ScenarioError& error) {
        return error.what();
    }
    return "no error";
}

TEST(Arguments, AreTakenInOrder) {
    Arguments arguments({"run", "20", "0.5"});
    EXPECT_EQ(arguments.take("the command"), "run");
    EXPECT_EQ(arguments.left(), 2U);
    EXPECT_EQ(arguments.take("SECONDS"), "20");
    EXPECT_FALSE(arguments.empty());
    EXPECT_EQ(arguments.take("STEP"), "0.5");
    EXPECT_TRUE(arguments.empty());
}

TEST(Arguments, WhatIsMissingIsNamed) {
    Arguments arguments({"run"});
    arguments.take("the command");
    EXPECT_EQ(errorOf([&] { arguments.take("SECONDS"); }), "missing SECONDS");
}

TEST(Arguments, WhatIsTooMuchIsNamed) {
    Arguments arguments({"tick", "now", "please"});
    arguments.take("the command");
    EXPECT_EQ(errorOf([&] { arguments.end(); }), "unexpected \"now\"");
    arguments.takeRest();
    EXPECT_EQ(errorOf([&] { arguments.end(); }), "no error");
}

TEST(Arguments, RestMayBeEmpty) {
    Arguments arguments({"pref", "a", "b"});
    arguments.take("the command");
    EXPECT_EQ(arguments.takeRest(), (Words{"a", "b"}));
    EXPECT_EQ(arguments.takeRest(), Words());
}

TEST(Arguments, LastTwoComeOffTheEnd) {
    Arguments arguments({"history", "2026-03-09", "10", "rows.count", "3"});
    arguments.take("WHAT");
    std::string key;
    std::string value;
    arguments.takeLastTwo(key, value);
    EXPECT_EQ(key, "rows.count");
    EXPECT_EQ(value, "3");
    EXPECT_EQ(arguments.takeRest(), (Words{"2026-03-09", "10"}));
}

TEST(Arguments, LastTwoDoNotReachBackBeforeWhatWasTaken) {
    Arguments arguments({"engine", "state"});
    arguments.take("WHAT");
    std::string key;
    std::string value;
    EXPECT_EQ(errorOf([&] { arguments.takeLastTwo(key, value); }), "missing a key and a value");
}

} // namespace
} // namespace kestrelfen
