#include "platform/linux/EventLoop.hpp"
#include "platform/linux/Login1Mock.hpp"
#include "platform/linux/SessionEnd.hpp"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace kestrelfen {
namespace {

class SessionEndTest : public testing::Test {
  protected:
    void listen() {
        login1_.emplace(daemon_);
        end_.emplace(bus_, [this](SessionEnd::Done done) { endings_.push_back(std::move(done)); });
        EXPECT_TRUE(isHoldingUp());
    }

    bool isHoldingUp() const {
        return waitUntil(
            [this] { return login1_->inhibitors() == QStringList{"shutdown delay by Kestrelfen"}; });
    }

    bool isLettingGo() const {
        return waitUntil([this] { return login1_->inhibitors().isEmpty(); });
    }

    bool hasEndings(std::size_t count) const {
        return waitUntil([&] { return endings_.size() == count; });
    }

    BusDaemon daemon_{"DBUS_SYSTEM_BUS_ADDRESS"};
    BusLink bus_{BusLink::Bus::system};
    std::optional<Login1Mock> login1_;
    std::vector<SessionEnd::Done> endings_;
    std::optional<SessionEnd> end_;
};

TEST_F(SessionEndTest, TheShutdownIsHeldUpUntilTheProgramIsDone) {
    listen();
    EXPECT_TRUE(endings_.empty());
    login1_->prepareForShutdown(true);
    EXPECT_TRUE(hasEndings(1));
    pass(std::chrono::milliseconds(200));
    EXPECT_EQ(login1_->inhibitors().size(), 1);
    endings_.front()();
    EXPECT_TRUE(isLettingGo());
    EXPECT_EQ(endings_.size(), 1U);
}

TEST_F(SessionEndTest, AShutdownThatWasCalledOffEndsNothingAndTheNextIsHeldUpToo) {
    listen();
    login1_->prepareForShutdown(true);
    EXPECT_TRUE(hasEndings(1));
    endings_.front()();
    EXPECT_TRUE(isLettingGo());
    login1_->prepareForShutdown(false);
    EXPECT_TRUE(isHoldingUp());
    EXPECT_EQ(endings_.size(), 1U);
    login1_->prepareForShutdown(true);
    EXPECT_TRUE(hasEndings(2));
}

TEST_F(SessionEndTest, ANewLogin1IsHeldUpToo) {
    listen();
    login1_.reset();
    login1_.emplace(daemon_);
    EXPECT_TRUE(isHoldingUp());
    login1_->prepareForShutdown(true);
    EXPECT_TRUE(hasEndings(1));
}

TEST_F(SessionEndTest, NobodyElseIsBelieved) {
    listen();
    daemon_.connection().send(QDBusMessage::createSignal("/org/freedesktop/login1",
                                                         "org.freedesktop.login1.Manager",
                                                         "PrepareForShutdown")
                              << true);
    pass(std::chrono::milliseconds(200));
    EXPECT_TRUE(endings_.empty());
}

TEST_F(SessionEndTest, ItsEndLetsTheShutdownGoOn) {
    listen();
    login1_->prepareForShutdown(true);
    EXPECT_TRUE(hasEndings(1));
    end_.reset();
    EXPECT_TRUE(isLettingGo());
    endings_.front()();
}

} // namespace
} // namespace kestrelfen
