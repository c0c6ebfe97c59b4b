#include "platform/fake/FakePlatform.hpp"
#include "shell/StatusItemClicks.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

using Lines = std::vector<FakeLog::Line>;

class StatusItemClicksTest : public testing::Test {
  protected:
    void enable() { StatusItemClicks::enableRightClick(platform.ports(), 12, 0.25); }

    void pass(double seconds) {
        platform.clock.advance(seconds);
        platform.mainQueue.drain();
    }

    FakePlatform platform;
    const Lines enabled{{LogLevel::info, "StatusItem", "right click enabled on the status item"}};
    const Lines given{
        {LogLevel::error, "StatusItem", "status bar button never appeared; right click stays inert"}};
};

TEST_F(StatusItemClicksTest, ButtonThatIsThereIsFoundAtOnce) {
    enable();
    EXPECT_TRUE(platform.statusBarButton.answersRightClicks());
    EXPECT_EQ(platform.log.lines(), enabled);
    pass(10);
    EXPECT_EQ(platform.log.lines(), enabled);
}

TEST_F(StatusItemClicksTest, ButtonThatComesLaterIsFoundAtTheNextTry) {
    platform.statusBarButton.setTriesUntilFound(2);
    enable();
    pass(0.249999);
    EXPECT_FALSE(platform.statusBarButton.answersRightClicks());
    pass(0.25);
    EXPECT_FALSE(platform.statusBarButton.answersRightClicks());
    EXPECT_EQ(platform.log.lines(), Lines());
    pass(0.25);
    EXPECT_TRUE(platform.statusBarButton.answersRightClicks());
    EXPECT_EQ(platform.log.lines(), enabled);
}

TEST_F(StatusItemClicksTest, ThirteenthTryIsTheLast) {
    platform.statusBarButton.setTriesUntilFound(12);
    enable();
    for (int tries = 0; tries < 12; ++tries) {
        EXPECT_FALSE(platform.statusBarButton.answersRightClicks());
        pass(0.25);
    }
    EXPECT_TRUE(platform.statusBarButton.answersRightClicks());
    EXPECT_EQ(platform.log.lines(), enabled);
}

TEST_F(StatusItemClicksTest, ButtonThatNeverComesLeavesOneLine) {
    platform.statusBarButton.setTriesUntilFound(13);
    enable();
    for (int tries = 0; tries < 11; ++tries) {
        pass(0.25);
    }
    EXPECT_EQ(platform.log.lines(), Lines());
    pass(0.25);
    EXPECT_EQ(platform.log.lines(), given);
    pass(10);
    EXPECT_FALSE(platform.statusBarButton.answersRightClicks());
    EXPECT_EQ(platform.log.lines(), given);
}

} // namespace
} // namespace kestrelfen
