#include "ContentTest.hpp"
#include "ui/MenuBarView/StatusItemContent.hpp"

namespace kestrelfen {
namespace {

class StatusItemContentTest : public ContentTest {
  protected:
    StatusItemContent content() { return StatusItemContent::of(engine()); }
};

TEST_F(StatusItemContentTest, Idle) {
    EXPECT_EQ(content(), (StatusItemContent{"eye", "--:--", "Not running"}));
}

TEST_F(StatusItemContentTest, Working) {
    start();
    EXPECT_EQ(content(), (StatusItemContent{"eye", "20:00", "Next break in 20:00"}));
    wait(0.5);
    EXPECT_EQ(content().text, "20:00");
    wait(0.5);
    EXPECT_EQ(content().text, "19:59");
}

TEST_F(StatusItemContentTest, Warning) {
    enterWarning(10);
    EXPECT_EQ(content(),
              (StatusItemContent{"eye.trianglebadge.exclamationmark", "00:10", "Next break in 00:10"}));
}

TEST_F(StatusItemContentTest, Break) {
    beginBreak();
    EXPECT_EQ(content(), (StatusItemContent{"eye.slash", "00:20", "Break ends in 00:20"}));
}

TEST_F(StatusItemContentTest, PausedWorkShowsTheTimeToTheBreak) {
    start();
    wait(60);
    engine().pause(PauseReason::meeting);
    wait(60);
    EXPECT_EQ(content(), (StatusItemContent{"pause.circle", "19:00", "Paused, 19:00 left"}));
}

TEST_F(StatusItemContentTest, PausedBreakShowsItsRest) {
    beginBreak();
    wait(8);
    engine().pause(PauseReason::manual);
    EXPECT_EQ(content(), (StatusItemContent{"pause.circle", "00:12", "Paused, 00:12 left"}));
}

TEST_F(StatusItemContentTest, MinutesStopAtNinetyNine) {
    prefer("workIntervalSeconds", 7200.0);
    start();
    EXPECT_EQ(content().text, "99:00");
}

} // namespace
} // namespace kestrelfen
