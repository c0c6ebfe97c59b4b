#include "platform/linux/browser/BrowserAccessTest.hpp"
#include "platform/linux/browser/LongestStep.hpp"

namespace kestrelfen {
namespace {

/// What no call and no event may take more of.
constexpr double allowedMilliseconds = 5;

/// Somebody who hangs delays nothing, and is read again once it goes on.
class BrowserAccessTroubleTest : public BrowserAccessTest {
  protected:
    BrowserAccessTroubleTest() {
        runs(browser_.process());
        EXPECT_EQ(read(), "https://example.com");
    }

    /// What a tick does, until the answer is given up.
    void readInVain() {
        EXPECT_NE(read(), "https://example.com");
        status();
    }

    static void expectNoDelay(const std::function<void()>& act) {
        EXPECT_LT(LongestStep::during(act, allowedMilliseconds), allowedMilliseconds);
    }

    void expectNoDelay() {
        expectNoDelay([this] { readInVain(); });
    }

    bool isReadAgain() {
        return waitUntil([this] { return read() == "https://example.com"; });
    }

    AccessibleProgram browser_{window("https://example.com/")};
};

TEST_F(BrowserAccessTroubleTest, AHungBrowserDelaysNothing) {
    browser_.suspend();
    EXPECT_EQ(read(), "failed");
    expectNoDelay();
    browser_.resume();
    EXPECT_TRUE(isReadAgain());
}

TEST_F(BrowserAccessTroubleTest, AHungServiceDelaysNothing) {
    service_.suspend();
    EXPECT_EQ(read(), "failed");
    expectNoDelay();
    service_.resume();
    EXPECT_TRUE(isReadAgain());
}

TEST_F(BrowserAccessTroubleTest, AServiceThatHangsBeforeItIsJoinedDelaysNothing) {
    access_->release();
    service_.suspend();
    EXPECT_EQ(read(), "failed");
    expectNoDelay();
    expectNoDelay([this] { access_->release(); });
    service_.resume();
    EXPECT_TRUE(isReadAgain());
}

TEST_F(BrowserAccessTroubleTest, AHungSessionBusDelaysNothing) {
    sessionBus_.suspend();
    expectNoDelay([this] {
        restart();
        ask();
        status();
        access_->prepareLaunch([] {});
        access_->release();
    });
    sessionBus_.resume();
    EXPECT_TRUE(waitUntil([this] { return ask() != "none"; }));
    EXPECT_TRUE(isReadAgain());
}

TEST_F(BrowserAccessTroubleTest, TheSessionBusMayGoAndComeBack) {
    access_->release();
    service_.suspend();
    EXPECT_EQ(ask(), "pending");
    pass(std::chrono::milliseconds(100));
    sessionBus_.stop();
    EXPECT_TRUE(waitUntil([this] { return ask() == "none"; }));
    service_.end();
    sessionBus_.start();
    service_.start();
    service_.set("IsEnabled", true);
    EXPECT_TRUE(waitUntil([this] { return ask() != "none"; }));
    AccessibleProgram another({window("https://example.com/")});
    runs(another.process());
    EXPECT_TRUE(isReadAgain());
}

} // namespace
} // namespace kestrelfen
