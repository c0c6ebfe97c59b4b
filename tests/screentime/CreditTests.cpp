#include "screentime/TrackerTest.hpp"

namespace kestrelfen {
namespace {

class CreditTest : public TrackerTest {
  protected:
    CreditTest() { create(); }
};

TEST_F(CreditTest, ATrackerBeginsWithNothing) {
    EXPECT_EQ(tracker->todayActiveSeconds(), 0);
    EXPECT_EQ(tracker->frontmostAppName(), std::nullopt);
    EXPECT_EQ(tracker->dayStart(), at("00:00:00"));
    EXPECT_EQ(pending(), "");
}

TEST_F(CreditTest, TheFirstTickOnlyStartsTheClock) {
    tick();
    EXPECT_EQ(tracker->todayActiveSeconds(), 0);
    EXPECT_EQ(pending(), "");
}

TEST_F(CreditTest, ATickIsCreditedToTheFrontmostAppAndItsDisplay) {
    run(3);
    EXPECT_EQ(tracker->todayActiveSeconds(), 2);
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 1: 2"}));
}

TEST_F(CreditTest, AGapThatIsTooLongIsDroppedWhole) {
    tick(0);
    tick(1);
    tick(1);
    EXPECT_EQ(tracker->todayActiveSeconds(), 2);
    tick(5.5);
    EXPECT_EQ(tracker->todayActiveSeconds(), 2);
    tick(1);
    EXPECT_EQ(tracker->todayActiveSeconds(), 3);
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 1: 3"}));
}

TEST_F(CreditTest, FiveSecondsAreTheLargestCredibleGap) {
    tick();
    EXPECT_EQ(creditOf(5.0), 5.0);
    EXPECT_EQ(creditOf(5.01), 0);
    EXPECT_EQ(creditOf(5.000001), 0);
    EXPECT_GT(creditOf(0.000001), 0);
}

TEST_F(CreditTest, AClockThatStandsOrIsSetBackIsDroppedAndRestartsTheClock) {
    tick();
    EXPECT_EQ(creditOf(0), 0);
    EXPECT_EQ(creditOf(-3600), 0);
    EXPECT_EQ(creditOf(1), 1);
    EXPECT_EQ(creditOf(7200), 0) << "set forward";
    EXPECT_EQ(creditOf(1), 1);
}

TEST_F(CreditTest, WithNothingInFrontASecondGoesToTheDayAlone) {
    platform.applications.setFrontmost(std::nullopt);
    run(2);
    EXPECT_EQ(tracker->todayActiveSeconds(), 1);
    EXPECT_EQ(tracker->frontmostAppName(), std::nullopt);
    EXPECT_EQ(pending(), lines({" 'Unattributed' 0: 1"}));
}

TEST_F(CreditTest, AnAppWithoutAnIdentifierKeepsItsNameAndDisplay) {
    platform.applications.start({std::nullopt, "Tool", 5}, 1);
    platform.applications.setFrontmost(5);
    run(2);
    EXPECT_EQ(pending(), lines({" 'Tool' 1: 1"}));
}

TEST_F(CreditTest, AnAppWithoutANameIsUnattributed) {
    platform.applications.start({"org.nameless", std::nullopt, 5});
    platform.applications.setFrontmost(5);
    run(2);
    EXPECT_EQ(tracker->frontmostAppName(), std::nullopt);
    EXPECT_EQ(pending(), lines({"org.nameless 'Unattributed' 0: 1"}));
}

TEST_F(CreditTest, ABucketIsAnAppUnderOneNameOnOneDisplay) {
    platform.displays.setCount(2);
    run(3);
    platform.applications.move(1, 2);
    run(6);
    platform.applications.stop(1);
    platform.applications.start({"org.editor", "Editor — draft", 1}, 2);
    platform.applications.setFrontmost(1);
    run(1);
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 1: 5", "org.editor 'Editor' 2: 3",
                                "org.editor 'Editor — draft' 2: 1"}));
}

TEST_F(CreditTest, TheSecondBelongsToWhatIsInFrontAtItsEnd) {
    platform.applications.start({"org.mail", "Mail", 2}, 1);
    run(2);
    platform.applications.setFrontmost(2);
    run(1);
    platform.applications.setFrontmost(1);
    run(1);
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 1: 2", "org.mail 'Mail' 1: 1"}))
        << "in the order in which they came";
}

TEST_F(CreditTest, TheNameInFrontFollowsEachCountingTick) {
    platform.applications.start({"org.mail", "Mail", 2}, 1);
    tick();
    EXPECT_EQ(tracker->frontmostAppName(), "Editor") << "also at the tick that only starts the clock";
    platform.applications.setFrontmost(2);
    tick(9);
    EXPECT_EQ(tracker->frontmostAppName(), "Mail") << "also at a tick whose gap is dropped";
    platform.applications.setFrontmost(1);
    inState(BreakState::onBreak(at("09:00:00")));
    tick();
    EXPECT_EQ(tracker->frontmostAppName(), "Mail") << "but not while nothing counts";
}

TEST_F(CreditTest, ObserversHearOfRealChangesAlone) {
    std::string heard;
    const auto all = tracker->observe([&] { heard += "any "; });
    const auto seconds = tracker->observeTodayActiveSeconds([&] { heard += "seconds "; });
    const auto name = tracker->observeFrontmostAppName([&] { heard += "name "; });
    tick();
    EXPECT_EQ(heard, "name any ");
    heard.clear();
    tick();
    EXPECT_EQ(heard, "seconds any ");
    heard.clear();
    tick(9);
    inState(BreakState::idle());
    run(5);
    EXPECT_EQ(heard, "");
}

} // namespace
} // namespace kestrelfen
