#pragma once

#include "platform/ports/LoginItem.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace kestrelfen {

/// What holds of every login item. A subject has `loginItem()` and `settle()`, which returns once a wish must
/// have been answered, and is made with the item not enabled.
template <typename Subject>
class LoginItemContract : public testing::Test {
  protected:
    LoginItem& item() { return subject_.loginItem(); }

    /// Enables or disables it; the error, or "none".
    std::string set(bool enabled) {
        int answers = 0;
        std::string result;
        item().setEnabled(enabled, [&](const std::optional<std::string>& error) {
            ++answers;
            result = error.value_or("none");
        });
        subject_.settle();
        EXPECT_EQ(answers, 1);
        return result;
    }

  private:
    Subject subject_;
};

TYPED_TEST_SUITE_P(LoginItemContract);

TYPED_TEST_P(LoginItemContract, IsNotEnabledUntilItIsAskedTo) {
    EXPECT_FALSE(this->item().isEnabled());
}

TYPED_TEST_P(LoginItemContract, DoesWhatItIsTold) {
    EXPECT_EQ(this->set(true), "none");
    EXPECT_TRUE(this->item().isEnabled());
    EXPECT_EQ(this->set(false), "none");
    EXPECT_FALSE(this->item().isEnabled());
}

TYPED_TEST_P(LoginItemContract, MayBeToldTheSameTwice) {
    EXPECT_EQ(this->set(false), "none");
    EXPECT_FALSE(this->item().isEnabled());
    EXPECT_EQ(this->set(true), "none");
    EXPECT_EQ(this->set(true), "none");
    EXPECT_TRUE(this->item().isEnabled());
}

REGISTER_TYPED_TEST_SUITE_P(LoginItemContract, IsNotEnabledUntilItIsAskedTo, DoesWhatItIsTold,
                            MayBeToldTheSameTwice);

} // namespace kestrelfen
