#include "platform/linux/EventLoop.hpp"
#include "platform/linux/MergedFact.hpp"
#include "platform/linux/PowerSavingDisplay.hpp"
#include "platform/linux/VirtualDisplay.hpp"
#include "platform/linux/X11DisplaySleep.hpp"

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace kestrelfen {
namespace {

/// Longer than the level of power is left unasked.
constexpr std::chrono::milliseconds aWhile{3300};

class X11DisplaySleepTest : public testing::Test {
  public:
    ~X11DisplaySleepTest() override { outputOf("xset", {"s", "reset"}); }

  protected:
    void listen() {
        displays_.emplace(isAsleep_);
        EXPECT_TRUE(waitUntil([this] { return displays_->isKnown(); }));
        pass(std::chrono::milliseconds(50));
    }

    std::string next() {
        waitUntil([this] { return !told_.empty(); });
        return std::exchange(told_, {});
    }

    std::string told_;
    MergedFact isAsleep_{[this](bool value) { told_ += value ? "sleep " : "wake "; }};
    std::optional<X11DisplaySleep> displays_;
};

TEST_F(X11DisplaySleepTest, ABlankedScreenSleeps) {
    listen();
    EXPECT_EQ(isAsleep_.value(), false);
    outputOf("xset", {"s", "activate"});
    EXPECT_EQ(next(), "sleep ");
    outputOf("xset", {"s", "reset"});
    EXPECT_EQ(next(), "wake ");
}

TEST_F(X11DisplaySleepTest, AScreenThatIsBlankAtTheStartIsNoChange) {
    outputOf("xset", {"s", "activate"});
    listen();
    EXPECT_EQ(isAsleep_.value(), true);
    EXPECT_EQ(told_, "");
    xdotool({"key", "a"});
    EXPECT_EQ(next(), "wake ");
}

TEST_F(X11DisplaySleepTest, ADisplayThatSavesPowerSleeps) {
    PowerSavingDisplay display;
    listen();
    for (const int level : {1, 2, 3}) {
        display.setLevel(level);
        EXPECT_EQ(next(), "sleep ");
        display.setLevel(0);
        EXPECT_EQ(next(), "wake ");
    }
}

TEST_F(X11DisplaySleepTest, ADisplayThatSavesPowerAtTheStartIsNoChange) {
    PowerSavingDisplay display;
    display.setLevel(3);
    pass(std::chrono::milliseconds(200));
    listen();
    EXPECT_TRUE(waitUntil([this] { return isAsleep_.value() == true; }));
    pass(aWhile);
    EXPECT_EQ(told_, "");
    display.setLevel(0);
    EXPECT_EQ(next(), "wake ");
}

TEST_F(X11DisplaySleepTest, BlankingAndSavingPowerAreOneSleep) {
    PowerSavingDisplay display;
    listen();
    outputOf("xset", {"s", "activate"});
    EXPECT_EQ(next(), "sleep ");
    display.setLevel(3);
    pass(aWhile);
    outputOf("xset", {"s", "reset"});
    pass(std::chrono::milliseconds(100));
    EXPECT_EQ(told_, "");
    display.setLevel(0);
    EXPECT_EQ(next(), "wake ");
}

TEST_F(X11DisplaySleepTest, ADisplayThatCannotSavePowerIsNotAskedAboutIt) {
    PowerSavingDisplay display({"incapable"});
    listen();
    display.setLevel(3);
    pass(aWhile);
    EXPECT_EQ(isAsleep_.value(), false);
}

TEST_F(X11DisplaySleepTest, TheLevelIsAskedForEveryTwoSeconds) {
    PowerSavingDisplay display;
    listen();
    QElapsedTimer time;
    EXPECT_TRUE(display.isAsked());
    time.start();
    EXPECT_TRUE(display.isAsked());
    EXPECT_TRUE(display.isAsked());
    EXPECT_GE(time.elapsed(), 2000);
    EXPECT_LE(time.elapsed(), 6000);
}

TEST_F(X11DisplaySleepTest, WithoutTheScreenSaverExtensionNothingIsKnown) {
    const VirtualDisplay display({"-extension", "MIT-SCREEN-SAVER"});
    const X11DisplaySleep displays(isAsleep_);
    pass(std::chrono::milliseconds(200));
    EXPECT_FALSE(displays.isKnown());
}

TEST_F(X11DisplaySleepTest, WithoutAServerNothingIsKnown) {
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":4711");
    const X11DisplaySleep displays(isAsleep_);
    qputenv("DISPLAY", display);
    pass(std::chrono::milliseconds(200));
    EXPECT_FALSE(displays.isKnown());
}

TEST_F(X11DisplaySleepTest, AServerThatDiesLeavesNothingKnownAndTellsNothing) {
    VirtualDisplay display;
    listen();
    display.stop();
    EXPECT_TRUE(waitUntil([this] { return !displays_->isKnown(); }));
    EXPECT_EQ(told_, "");
}

} // namespace
} // namespace kestrelfen
