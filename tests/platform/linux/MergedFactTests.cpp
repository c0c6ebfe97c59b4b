#include "platform/linux/MergedFact.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

constexpr bool atStart = true;
constexpr bool later = false;

class MergedFactTest : public testing::Test {
  protected:
    /// What was told since the last asking.
    std::vector<bool> told() { return std::exchange(told_, {}); }

    using Told = std::vector<bool>;
    std::vector<bool> told_;
    MergedFact fact_{[this](bool value) { told_.push_back(value); }};
    MergedFact::Source one_{fact_};
    MergedFact::Source other_{fact_};
};

TEST_F(MergedFactTest, IsUnknownUntilASourceTells) {
    EXPECT_EQ(fact_.value(), std::nullopt);
    one_.look(false, atStart);
    EXPECT_EQ(fact_.value(), false);
}

TEST_F(MergedFactTest, WhatIsFoundAtTheStartIsNoChange) {
    one_.look(false, atStart);
    other_.look(true, atStart);
    EXPECT_EQ(fact_.value(), true);
    EXPECT_EQ(told(), Told());
    other_.change(false);
    EXPECT_EQ(told(), Told{false});
}

TEST_F(MergedFactTest, WhatIsFoundLaterIsAChangeIfItDiffers) {
    one_.look(false, atStart);
    other_.look(false, later);
    EXPECT_EQ(told(), Told());
    other_.look(true, later);
    EXPECT_EQ(told(), Told{true});
}

TEST_F(MergedFactTest, WhatIsFoundLaterIsNoChangeWhileNothingWasKnown) {
    one_.look(true, later);
    EXPECT_EQ(fact_.value(), true);
    EXPECT_EQ(told(), Told());
}

TEST_F(MergedFactTest, AChangeIsToldEvenIfNothingWasKnown) {
    one_.change(false);
    EXPECT_EQ(told(), Told{false});
}

TEST_F(MergedFactTest, AChangeOfWhichBothTellIsToldOnce) {
    one_.change(true);
    other_.change(true);
    one_.change(true);
    EXPECT_EQ(told(), Told{true});
}

TEST_F(MergedFactTest, ItIsTrueWhileAnySourceSaysSo) {
    one_.change(true);
    other_.change(true);
    EXPECT_EQ(told(), Told{true});
    one_.change(false);
    EXPECT_EQ(told(), Told());
    other_.change(false);
    EXPECT_EQ(told(), Told{false});
}

TEST_F(MergedFactTest, ASourceThatFallsSilentChangesNothingByItself) {
    one_.look(false, atStart);
    other_.change(true);
    told();
    other_.fallSilent();
    EXPECT_EQ(fact_.value(), true);
    EXPECT_EQ(told(), Told());
}

TEST_F(MergedFactTest, TheNextWordSettlesWhatASilentSourceLeft) {
    one_.look(false, atStart);
    for (auto* const source : {&one_, &other_}) {
        other_.change(true);
        other_.fallSilent();
        told();
        source->look(false, later);
        EXPECT_EQ(told(), Told{false});
    }
}

TEST_F(MergedFactTest, ALateFirstLookSettlesWhatASilentSourceLeft) {
    one_.change(true);
    one_.fallSilent();
    told();
    other_.look(false, atStart);
    EXPECT_EQ(told(), Told{false});
}

} // namespace
} // namespace kestrelfen
