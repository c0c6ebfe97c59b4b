#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

/// What lifts which pause, reason by reason.
class ResumingTest : public EngineTest {
  protected:
    void SetUp() override { platform.programFocus.setActive(true); }

    void TearDown() override {
        forget();
        EngineTest::TearDown();
    }

    /// A fresh engine, paused for that reason, with input and settled monitors.
    void pauseFresh(PauseReason reason, bool resumesAutomatically) {
        prefer("resumeAutomatically", resumesAutomatically);
        create();
        start();
        engine().pause(reason);
        smartPause().settled = true;
        platform.inputIdle.setActive();
        forget();
    }

    bool isPaused() { return engine().state().is(BreakState::Case::paused); }
};

TEST_F(ResumingTest, TheTickEndsIdleAndSmartPausesOnlyAndOnlyAutomatically) {
    for (const PauseReason reason : allCases<PauseReason>()) {
        pauseFresh(reason, true);
        run(1);
        const bool isEnded = reason == PauseReason::userIdle || isSmart(reason);
        EXPECT_EQ(isPaused(), !isEnded) << rawValue(reason);
        pauseFresh(reason, false);
        run(1);
        EXPECT_TRUE(isPaused()) << rawValue(reason);
    }
}

TEST_F(ResumingTest, AnySystemSignalEndsAnyAutomaticPauseAndNoManualOne) {
    for (const PauseReason reason : allCases<PauseReason>()) {
        for (const PauseReason signal :
             {PauseReason::systemSleep, PauseReason::screenLocked, PauseReason::displaySleep}) {
            pauseFresh(reason, true);
            sendResume(signal);
            if (reason == PauseReason::manual) {
                EXPECT_EQ(happened(), "");
                continue;
            }
            const std::string time = momentText(now());
            EXPECT_EQ(happened(), time + " log system resume signal (" + std::string(rawValue(signal)) +
                                      ") clearing " + std::string(rawValue(reason)) + " pause\n" + time +
                                      " log resumed work (20:00 to break)\n");
        }
    }
}

TEST_F(ResumingTest, WithoutAutomaticResumingNoSystemSignalEndsAnyPause) {
    for (const PauseReason reason : allCases<PauseReason>()) {
        pauseFresh(reason, false);
        sendResume(PauseReason::systemSleep);
        EXPECT_TRUE(isPaused()) << rawValue(reason);
        EXPECT_EQ(happened(), "");
    }
}

TEST_F(ResumingTest, ThePersonEndsAnyPause) {
    for (const PauseReason reason : allCases<PauseReason>()) {
        pauseFresh(reason, false);
        engine().resume(now());
        EXPECT_FALSE(isPaused()) << rawValue(reason);
    }
}

TEST_F(ResumingTest, ASystemSignalWithoutAPauseDoesNothing) {
    start();
    sendResume(PauseReason::systemSleep);
    EXPECT_EQ(state(), "working until 08:20:00");
    EXPECT_EQ(happened(), "");
    tickAt("08:20:00");
    forget();
    sendResume(PauseReason::systemSleep);
    EXPECT_EQ(state(), "onBreak until 08:20:20");
    EXPECT_EQ(happened(), "");
}

TEST_F(ResumingTest, ASystemSignalResumesAtTheClocksTimeAndNotAtTheLastTick) {
    start();
    sendPause(PauseReason::systemSleep);
    forget();
    pass(8 * 3600);
    sendResume(PauseReason::systemSleep);
    settle();
    EXPECT_EQ(happened(),
              lines({"16:00:00 log system resume signal (systemSleep) clearing systemSleep pause",
                     "16:00:00 log resumed work (20:00 to break)",
                     "16:00:00 record systemSleep pause from 08:00:00, 28800 s, day 2026-03-09"}));
    EXPECT_EQ(state(), "working until 16:20:00");
    EXPECT_EQ(engine().now(), at("16:00:00"));
}

TEST_F(ResumingTest, EachSystemPauseNeedsItsOwnConsent) {
    const std::pair<PauseReason, std::string_view> rows[] = {
        {PauseReason::systemSleep, "pauseOnSystemSleep"},
        {PauseReason::screenLocked, "pauseOnScreenLock"},
        {PauseReason::displaySleep, "pauseOnDisplaySleep"}};
    for (const auto& [reason, key] : rows) {
        create();
        start();
        prefer(key, false);
        sendPause(reason);
        EXPECT_FALSE(isPaused()) << key;
        EXPECT_EQ(happened(), "");
        prefer(key, true);
        sendPause(reason);
        EXPECT_TRUE(isPaused()) << key;
        forget();
    }
}

TEST_F(ResumingTest, AManualPauseDuringALockIsLeftByTheUnlock) {
    start();
    sendPause(PauseReason::screenLocked);
    engine().resume(now());
    engine().pause(PauseReason::manual);
    forget();
    sendResume(PauseReason::screenLocked);
    EXPECT_EQ(state(), "paused (manual)");
    EXPECT_EQ(happened(), "");
}

TEST_F(ResumingTest, ASystemPauseDuringABreakKeepsItsRest) {
    start();
    tickAt("08:20:00");
    tickAt("08:20:05");
    sendPause(PauseReason::screenLocked);
    pass(100);
    sendResume(PauseReason::screenLocked);
    EXPECT_EQ(state(), "onBreak until 08:22:00");
}

} // namespace
} // namespace kestrelfen
