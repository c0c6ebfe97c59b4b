#include "core/EngineTest.hpp"

namespace kestrelfen {
namespace {

/// A gate under a quota: in a state where it can be open, with a used count.
struct Quota {
    std::string_view key;
    bool (BreakEngine::*gate)() const;
    bool atWarning;
};

constexpr Quota dailyQuotas[] = {{"snoozesPerDay", &BreakEngine::canPostpone, false},
                                 {"snoozesPerDay", &BreakEngine::canSnooze, true},
                                 {"advanceSkipsPerDay", &BreakEngine::canSkipNextBreak, false}};

class QuotaTest : public EngineTest {
  protected:
    void useUp(std::string_view key, std::int64_t used, std::string_view day = "00:00:00") {
        prefer(std::string(key) + ".day", at(day));
        prefer(std::string(key) + ".count", used);
    }

    bool isOpen(const Quota& quota) { return (engine().*quota.gate)(); }

    void go(const Quota& quota) {
        create();
        jumpTo("08:00:00");
        start();
        if (quota.atWarning) {
            tickAt("08:19:50");
        }
        forget();
    }
};

TEST_F(QuotaTest, IsOpenWithoutALimit) {
    for (const Quota& quota : dailyQuotas) {
        go(quota);
        useUp(quota.key, 1000);
        EXPECT_TRUE(isOpen(quota)) << quota.key << ", absent";
        prefer(quota.key, -1);
        EXPECT_TRUE(isOpen(quota)) << quota.key;
        platform.preferences.remove(quota.key);
    }
}

TEST_F(QuotaTest, IsClosedAtALimitOfZero) {
    for (const Quota& quota : dailyQuotas) {
        go(quota);
        prefer(quota.key, 0);
        EXPECT_FALSE(isOpen(quota)) << quota.key;
        useUp(quota.key, -5);
        EXPECT_FALSE(isOpen(quota)) << quota.key;
    }
}

TEST_F(QuotaTest, IsOpenWhileLessThanTheLimitIsUsed) {
    for (const Quota& quota : dailyQuotas) {
        go(quota);
        for (const std::int64_t limit : {1, 2, 3, 5}) {
            prefer(quota.key, limit);
            for (std::int64_t used = 0; used < 7; ++used) {
                useUp(quota.key, used);
                EXPECT_EQ(isOpen(quota), used < limit) << quota.key << " " << used << " of " << limit;
            }
        }
        platform.preferences.remove(quota.key);
    }
}

TEST_F(QuotaTest, OnlyMinusOneMeansNoLimit) {
    for (const Quota& quota : dailyQuotas) {
        go(quota);
        for (const std::int64_t limit : {-2, -3, -100}) {
            prefer(quota.key, limit);
            EXPECT_FALSE(isOpen(quota)) << quota.key << " " << limit;
            useUp(quota.key, 1);
            EXPECT_FALSE(isOpen(quota)) << quota.key << " " << limit;
        }
    }
}

TEST_F(QuotaTest, UsesOfAnotherDayDoNotCount) {
    for (const Quota& quota : dailyQuotas) {
        go(quota);
        prefer(quota.key, 1);
        useUp(quota.key, 1, "2026-03-08 00:00:00");
        EXPECT_TRUE(isOpen(quota)) << quota.key;
        useUp(quota.key, 1);
        EXPECT_FALSE(isOpen(quota)) << quota.key;
    }
}

TEST_F(QuotaTest, IsOpenAgainInTheTickOfTheRolloverWithoutAnyWrite) {
    for (const Quota& quota : dailyQuotas) {
        prefer("workIntervalSeconds", 86'400.0);
        prefer("preBreakWarningLeadSeconds", quota.atWarning ? 86'400.0 : 0.0);
        create();
        jumpTo("23:59:00");
        start();
        tick();
        prefer(quota.key, 1);
        useUp(quota.key, 1);
        EXPECT_FALSE(isOpen(quota)) << quota.key;
        const auto before = platform.preferences.all();
        bool wasOpenInTheTick = false;
        engine().onTick = [&](Date) { wasOpenInTheTick = isOpen(quota); };
        tickAt("2026-03-10 00:00:00");
        EXPECT_TRUE(wasOpenInTheTick) << quota.key;
        EXPECT_EQ(platform.preferences.all(), before);
        forget();
    }
}

TEST_F(QuotaTest, SnoozesPerBreakCountTheSnoozesSinceTheLastBreakBegan) {
    start();
    tickAt("08:19:50");
    for (const auto& [limit, isOpen] : std::initializer_list<std::pair<int, bool>>{
             {-1, true}, {0, false}, {1, true}, {2, true}, {-2, false}}) {
        prefer("snoozesPerBreak", limit);
        EXPECT_EQ(engine().canSnooze(), isOpen) << "0 of " << limit;
    }
    platform.preferences.remove("snoozesPerBreak");
    engine().snooze(5, now());
    tick();
    for (const auto& [limit, isOpen] : std::initializer_list<std::pair<int, bool>>{
             {-1, true}, {0, false}, {1, false}, {2, true}, {-2, false}}) {
        prefer("snoozesPerBreak", limit);
        EXPECT_EQ(engine().canSnooze(), isOpen) << "1 of " << limit;
    }
    forget();
}

TEST_F(QuotaTest, ASnoozeNeedsBothOfItsQuotas) {
    start();
    tickAt("08:19:50");
    prefer("snoozesPerDay", 1);
    prefer("snoozesPerBreak", 1);
    EXPECT_TRUE(engine().canSnooze());
    useUp("snoozesPerDay", 1);
    EXPECT_FALSE(engine().canSnooze());
    forget();
}

TEST_F(QuotaTest, APostponeDoesNotAskForTheLimitPerBreak) {
    start();
    prefer("snoozesPerBreak", 0);
    EXPECT_TRUE(engine().canPostpone());
}

TEST_F(QuotaTest, CountsSurviveARestartOfTheProgram) {
    prefer("snoozesPerDay", 1);
    start();
    engine().postponeNextBreak(60, now());
    create();
    start();
    EXPECT_FALSE(engine().canPostpone());
}

} // namespace
} // namespace kestrelfen
