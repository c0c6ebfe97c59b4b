#include "screentime/SecondsTally.hpp"

#include <gtest/gtest.h>

#include <string>

namespace kestrelfen {
namespace {

using Tally = SecondsTally<std::string>;
using Entries = std::vector<Tally::Entry>;

TEST(SecondsTallyTest, AddsByKeyInTheOrderOfTheirComing) {
    Tally tally;
    EXPECT_TRUE(tally.isEmpty());
    tally.add("b", 1);
    tally.add("a", 2);
    tally.add("a", 3);
    tally.add("b", 4);
    tally.add("c", 5);
    tally.add("a", 6);
    EXPECT_FALSE(tally.isEmpty());
    EXPECT_EQ(tally.entries(), (Entries{{"b", 5}, {"a", 11}, {"c", 5}}));
}

TEST(SecondsTallyTest, TakingLeavesNothing) {
    Tally tally;
    tally.add("a", 1);
    tally.add("b", 1);
    EXPECT_EQ(tally.take(), (Entries{{"a", 1}, {"b", 1}}));
    EXPECT_TRUE(tally.isEmpty());
    tally.add("b", 2);
    tally.add("a", 3);
    EXPECT_EQ(tally.entries(), (Entries{{"b", 2}, {"a", 3}}));
}

TEST(SecondsTallyTest, ClearingLeavesNothing) {
    Tally tally;
    tally.add("a", 1);
    tally.clear();
    EXPECT_TRUE(tally.isEmpty());
    tally.add("b", 2);
    EXPECT_EQ(tally.entries(), (Entries{{"b", 2}}));
}

} // namespace
} // namespace kestrelfen
