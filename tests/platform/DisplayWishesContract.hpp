#pragma once

#include "platform/ports/DisplayWishes.hpp"

#include <gtest/gtest.h>

#include <vector>

namespace kestrelfen {

/// What holds of the wishes of every desktop. A subject has `wishes()`, `wish()`, by which the desktop comes
/// to wish what is given, and `settle()`, which returns once everything must have been told; it is made with
/// no wishes.
template <typename Subject>
class DisplayWishesContract : public testing::Test {
  protected:
    using Values = DisplayWishes::Values;

    DisplayWishes& wishes() { return subject_.wishes(); }

    void wish(const Values& values) {
        subject_.wish(values);
        subject_.settle();
    }

    /// What was wished each time that a change was told.
    std::vector<Values> told_;
    Subject subject_;
    Subscription subscription_ = wishes().observe([this] { told_.push_back(wishes().values()); });
};

TYPED_TEST_SUITE_P(DisplayWishesContract);

TYPED_TEST_P(DisplayWishesContract, ADesktopThatDoesNotTellWishesNothing) {
    this->subject_.settle();
    EXPECT_EQ(this->wishes().values(), DisplayWishes::Values());
    EXPECT_TRUE(this->told_.empty());
}

TYPED_TEST_P(DisplayWishesContract, AChangeIsThereWhenItIsTold) {
    const DisplayWishes::Values dark{.dark = true};
    const DisplayWishes::Values light{.dark = false};
    this->wish(dark);
    this->wish(light);
    EXPECT_EQ(this->told_, (std::vector{dark, light}));
    EXPECT_EQ(this->wishes().values(), light);
}

TYPED_TEST_P(DisplayWishesContract, WhatIsWishedAlreadyIsNoChange) {
    const DisplayWishes::Values values{.dark = true};
    this->wish(values);
    this->wish(values);
    EXPECT_EQ(this->told_.size(), 1U);
}

TYPED_TEST_P(DisplayWishesContract, WhoNoLongerListensHearsNothing) {
    this->subscription_ = Subscription();
    this->wish({.dark = true});
    EXPECT_TRUE(this->told_.empty());
    EXPECT_EQ(this->wishes().values().dark, true);
}

REGISTER_TYPED_TEST_SUITE_P(DisplayWishesContract, ADesktopThatDoesNotTellWishesNothing,
                            AChangeIsThereWhenItIsTold, WhatIsWishedAlreadyIsNoChange,
                            WhoNoLongerListensHearsNothing);

} // namespace kestrelfen
