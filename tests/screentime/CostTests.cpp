#include "base/AllocationCounter.hpp"
#include "screentime/TrackerTest.hpp"

namespace kestrelfen {
namespace {

class TrackerCostTest : public TrackerTest {
  protected:
    TrackerCostTest() {
        platform.applications.start({"org.example.a-long-identifier", "An application with a long name", 4},
                                    1);
        platform.applications.setFrontmost(4);
        create();
        tick();
        tick();
    }

    template <typename Action>
    static std::uint64_t allocationsOf(Action action) {
        const std::uint64_t before = allocationCount();
        action();
        return allocationCount() - before;
    }

    /// What naming the application in front takes by itself.
    std::uint64_t baseline() {
        return allocationsOf([this] { platform.applications.frontmost(); });
    }
};

TEST_F(TrackerCostTest, ATickInAnAppOfAShortNameTakesNoMemory) {
    platform.applications.setFrontmost(1);
    run(2);
    EXPECT_EQ(allocationsOf([this] { sample(); }), 0U);
}

TEST_F(TrackerCostTest, ATickInTheSameAppTakesNoMoreThanTwiceItsNames) {
    EXPECT_EQ(baseline(), 2U);
    EXPECT_EQ(allocationsOf([this] { sample(); }), 4U);
}

TEST_F(TrackerCostTest, ATickOnTheSameWebsiteTakesNoMoreThanTwiceTheAppsNames) {
    useChrome();
    run(2);
    EXPECT_EQ(allocationsOf([this] { sample(); }), 2 * baseline());
    forget();
}

TEST_F(TrackerCostTest, ATickThatDoesNotCountTakesNone) {
    inState(BreakState::onBreak(at("09:00:00")));
    tick();
    EXPECT_EQ(allocationsOf([this] { sample(); }), 0U);
}

} // namespace
} // namespace kestrelfen
