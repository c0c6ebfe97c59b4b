#include "platform/ports/LoginItem.hpp"
#include "ui/LaunchAtLogin.hpp"

#include <gtest/gtest.h>

#include <memory>

namespace kestrelfen {
namespace {

using Text = std::optional<std::string>;

/// Answers when it is told to, as where the person is asked first.
class SlowLoginItem final : public LoginItem {
  public:
    bool isEnabled() const override { return enabled; }
    void setEnabled(bool wished, Done done) override {
        wishes.push_back(wished);
        done_ = std::move(done);
    }

    void succeed() {
        enabled = wishes.back();
        done_({});
    }
    void fail(const std::string& reason) { done_(reason); }

    bool enabled = false;
    std::vector<bool> wishes;

  private:
    Done done_;
};

class LaunchAtLoginTest : public testing::Test {
  protected:
    SlowLoginItem item;
    std::unique_ptr<LaunchAtLogin> toggle = std::make_unique<LaunchAtLogin>(item);
};

TEST_F(LaunchAtLoginTest, BeginsAsTheSystemHasIt) {
    EXPECT_FALSE(toggle->isOn());
    item.enabled = true;
    EXPECT_TRUE(LaunchAtLogin(item).isOn());
    toggle->reload();
    EXPECT_TRUE(toggle->isOn());
    EXPECT_EQ(toggle->error(), std::nullopt);
}

TEST_F(LaunchAtLoginTest, StandsAsWishedUntilTheAnswer) {
    toggle->set(true);
    EXPECT_TRUE(toggle->isOn());
    item.succeed();
    EXPECT_TRUE(toggle->isOn());
    EXPECT_EQ(toggle->error(), std::nullopt);
}

TEST_F(LaunchAtLoginTest, FailureSaysWhyAndShowsTheRealState) {
    toggle->set(true);
    item.fail("refused");
    EXPECT_FALSE(toggle->isOn());
    EXPECT_EQ(toggle->error(), Text("Couldn't update the login item: refused"));
    item.enabled = true;
    toggle->reload();
    toggle->set(false);
    item.fail("again");
    EXPECT_TRUE(toggle->isOn());
    EXPECT_EQ(toggle->error(), Text("Couldn't update the login item: again"));
}

TEST_F(LaunchAtLoginTest, SuccessClearsTheMessage) {
    toggle->set(true);
    item.fail("refused");
    toggle->set(true);
    EXPECT_EQ(toggle->error(), Text("Couldn't update the login item: refused"));
    item.succeed();
    EXPECT_EQ(toggle->error(), std::nullopt);
}

TEST_F(LaunchAtLoginTest, NothingIsAskedWhenNothingChanges) {
    toggle->set(false);
    EXPECT_EQ(item.wishes.size(), 0U);
    toggle->set(true);
    toggle->set(true);
    EXPECT_EQ(item.wishes, std::vector<bool>{true});
}

TEST_F(LaunchAtLoginTest, AnswerThatComesTooLateIsDropped) {
    toggle->set(true);
    toggle.reset();
    item.fail("refused");
    EXPECT_FALSE(item.enabled);
}

TEST_F(LaunchAtLoginTest, TellsOfChanges) {
    int changes = 0;
    const Subscription subscription = toggle->observe([&changes] { ++changes; });
    toggle->set(true);
    EXPECT_EQ(changes, 1);
    item.fail("refused");
    EXPECT_EQ(changes, 3);
    toggle->forgetError();
    EXPECT_EQ(changes, 4);
    toggle->reload();
    EXPECT_EQ(changes, 4);
}

} // namespace
} // namespace kestrelfen
