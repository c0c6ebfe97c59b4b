#include "screentime/TrackerTest.hpp"

#include <map>
#include <random>

namespace kestrelfen {
namespace {

/// What the random person and machine do; the oracle counts beside the tracker, second by second, with sums
/// of its own. All steps are whole parts of a second in which sums of doubles are exact.
class RandomDayTest : public TrackerTest, public testing::WithParamInterface<unsigned> {
  protected:
    struct Oracle {
        double day = 0;
        std::map<std::string, double> apps;
        std::map<std::string, double> sites;
        bool counted = false;
    };

    RandomDayTest() : random_(GetParam()) {
        platform.displays.setCount(2);
        platform.applications.start({"org.mail", "Mail", 3}, 2);
        platform.applications.start({std::nullopt, "Tool", 4});
        useChrome();
        openStore();
        create();
    }

    unsigned dice(unsigned sides) { return static_cast<unsigned>(random_() % sides); }

    double step() {
        static constexpr double steps[]{1, 1, 1, 1, 1, 0.5, 1.25, 0.015625, 4.984375, 5, 5.015625, 60, 0, -2};
        return steps[dice(std::size(steps))];
    }

    void changeSomething() {
        switch (dice(8)) {
        case 0:
            inState(anyState());
            break;
        case 1:
            platform.displayPower.setAsleep(dice(4) == 0);
            break;
        case 2:
            age_ = dice(100);
            platform.inputIdle.setAge(age_);
            break;
        case 3:
        case 4:
            front_ = dice(6);
            platform.applications.setFrontmost(static_cast<std::int32_t>(front_));
            break;
        case 5:
            tracker->flush();
            break;
        default:
            inState(BreakState::working(at("09:00:00")));
            age_ = 0;
            platform.inputIdle.setActive();
        }
    }

    BreakState anyState() {
        const auto reason = allCases<PauseReason>()[dice(9)];
        const BreakState states[]{BreakState::working(at("09:00:00")), BreakState::preBreakWarning(),
                                  BreakState::onBreak(at("09:00:00")), BreakState::idle(),
                                  BreakState::paused(reason),          BreakState::paused(reason)};
        return states[dice(std::size(states))];
    }

    /// Whether a person who is told of nothing but the rules would say that this tick counts.
    bool isAttentive() const {
        if (platform.displayPower.isMainDisplayAsleep() || state.is(BreakState::Case::onBreak) ||
            state.is(BreakState::Case::idle)) {
            return false;
        }
        if (const auto reason = state.reason(); reason && *reason != PauseReason::manual) {
            return *reason >= PauseReason::meeting;
        }
        return age_ <= idleThreshold;
    }

    void count(double gap) {
        const bool counts = isAttentive();
        if (counts && oracle_.counted && gap > 0 && gap <= 5) {
            static const std::map<unsigned, std::string> names{
                {1, "org.editor 'Editor'"}, {2, "com.google.Chrome 'Chrome'"}, {3, "org.mail 'Mail'"}};
            oracle_.day += gap;
            if (names.contains(front_)) {
                oracle_.apps[names.at(front_)] += gap;
            }
            if (front_ == 2) {
                oracle_.sites["example.com"] += gap;
            }
        }
        oracle_.counted = counts;
    }

    void liveOneTick() {
        if (dice(5) == 0) {
            changeSomething();
        }
        const double gap = step();
        sample(gap);
        if (dice(40) == 0) {
            settle();
        }
        count(gap);
        ASSERT_EQ(tracker->todayActiveSeconds(), oracle_.day);
    }

    std::string expectedRows() const {
        std::string text = "active: " + secondsText(oracle_.day) + "\n";
        for (const auto& [name, seconds] : oracle_.apps) {
            const char* display = name.starts_with("org.mail") ? " 2: " : " 1: ";
            text += name + display + secondsText(seconds) + "\n";
        }
        for (const auto& [domain, seconds] : oracle_.sites) {
            text += domain + ": " + secondsText(seconds) + "\n";
        }
        return text;
    }

    Oracle oracle_;

  private:
    std::mt19937 random_;
    unsigned front_ = 2;
    double age_ = 0;
};

TEST_P(RandomDayTest, SecondsCountedAreSecondsTrulyActive) {
    for (int index = 0; index < 3000; ++index) {
        liveOneTick();
        if (HasFatalFailure()) {
            FAIL() << "at tick " << index;
        }
    }
    tracker->flush();
    settle();
    EXPECT_EQ(pending(), "");
    EXPECT_EQ(storedToday(), expectedRows());
    EXPECT_GT(oracle_.day, 500);
    forget();
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomDayTest, testing::Range(1U, 9U));

} // namespace
} // namespace kestrelfen
