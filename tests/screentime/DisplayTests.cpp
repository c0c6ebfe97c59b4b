#include "platform/ports/WindowList.hpp"
#include "screentime/TrackerTest.hpp"

namespace kestrelfen {
namespace {

/// Windows as they are listed, and how often that happened.
class ListedWindows final : public WindowList {
  public:
    std::optional<std::vector<ScreenWindow>> windows = std::vector<ScreenWindow>();
    mutable int walks = 0;

    std::optional<std::vector<ScreenWindow>> onScreen() const override {
        ++walks;
        return windows;
    }
};

class DisplayLocatorTest : public testing::Test {
  protected:
    DisplayLocatorTest() { displays.setCount(2); }

    std::int64_t displayOf(std::vector<ScreenWindow> windows, std::int32_t process = 7) {
        list.windows = std::move(windows);
        return locator.resolveDisplayID(process);
    }

    static constexpr ScreenRect onFirst{100, 100, 800, 600};
    static constexpr ScreenRect onSecond{2000, 100, 800, 600};

    ListedWindows list;
    FakeDisplays displays;
    DisplayLocator locator{list, displays};
};

TEST_F(DisplayLocatorTest, FindsTheDisplayUnderTheWindow) {
    EXPECT_EQ(displayOf({{7, 0, onFirst}}), 1);
    EXPECT_EQ(displayOf({{7, 0, onSecond}}), 2);
}

TEST_F(DisplayLocatorTest, TheFrontmostWindowDecides) {
    EXPECT_EQ(displayOf({{7, 0, onSecond}, {7, 0, onFirst}}), 2);
}

TEST_F(DisplayLocatorTest, SkipsTheWindowsOfOthers) {
    EXPECT_EQ(displayOf({{8, 0, onFirst}, {std::nullopt, 0, onFirst}, {7, 0, onSecond}}), 2);
    EXPECT_EQ(displayOf({{8, 0, onFirst}}), 0);
}

TEST_F(DisplayLocatorTest, AnOwnerBeyondThirtyTwoBitsIsAnother) {
    EXPECT_EQ(displayOf({{7 + (std::int64_t{1} << 32), 0, onFirst}}), 0);
}

TEST_F(DisplayLocatorTest, SkipsWindowsOfOtherLayers) {
    EXPECT_EQ(displayOf({{7, 3, onFirst}, {7, -1, onFirst}, {7, std::nullopt, onFirst}, {7, 0, onSecond}}),
              2);
}

TEST_F(DisplayLocatorTest, SkipsWindowsWithoutASize) {
    EXPECT_EQ(displayOf({{7, 0, std::nullopt},
                         {7, 0, ScreenRect{100, 100, 0, 600}},
                         {7, 0, ScreenRect{100, 100, 800, 0}},
                         {7, 0, onSecond}}),
              2);
}

TEST_F(DisplayLocatorTest, FindsWindowsOfTheLeastSize) {
    EXPECT_EQ(displayOf({{7, 0, ScreenRect{100, 100, 1, 600}}}), 1);
    EXPECT_EQ(displayOf({{7, 0, ScreenRect{100, 100, 800, 1}}}), 1);
}

TEST_F(DisplayLocatorTest, SkipsWindowsOutsideEveryDisplay) {
    EXPECT_EQ(displayOf({{7, 0, ScreenRect{9000, 100, 800, 600}}, {7, 0, onSecond}}), 2);
    EXPECT_EQ(displayOf({{7, 0, ScreenRect{100, -700, 800, 600}}}), 0);
}

TEST_F(DisplayLocatorTest, AStraddlingWindowBelongsToTheDisplayUnderItsCentre) {
    EXPECT_EQ(displayOf({{7, 0, ScreenRect{1520, 0, 799, 600}}}), 1) << "its centre lies at 1919.5";
    EXPECT_EQ(displayOf({{7, 0, ScreenRect{1520, 0, 800, 600}}}), 2) << "its centre lies at 1920";
    EXPECT_EQ(displayOf({{7, 0, ScreenRect{0, -600, 800, 1200}}}), 1) << "its centre lies on the upper edge";
    EXPECT_EQ(displayOf({{7, 0, ScreenRect{0, 480, 800, 1200}}}), 0) << "its centre lies on the lower edge";
    EXPECT_EQ(displayOf({{7, 0, ScreenRect{-400, 0, 800, 600}}}), 1) << "its centre lies on the left edge";
    EXPECT_EQ(displayOf({{7, 0, ScreenRect{3440, 0, 800, 600}}}), 0) << "its centre lies on the right edge";
}

TEST_F(DisplayLocatorTest, WithoutAListOrDisplaysThereIsNone) {
    list.windows.reset();
    EXPECT_EQ(locator.resolveDisplayID(7), 0);
    EXPECT_EQ(displayOf({}), 0);
    displays.setCount(0);
    EXPECT_EQ(displayOf({{7, 0, onFirst}}), 0);
}

TEST_F(DisplayLocatorTest, AnAnswerStaysInUseForJustUnderFiveSeconds) {
    list.windows = {{{7, 0, onSecond}}};
    const Date start = at("08:00:00");
    EXPECT_EQ(locator.displayID(7, start), 2);
    list.windows = {{{7, 0, onFirst}}};
    EXPECT_EQ(locator.displayID(7, start + 4.999999), 2);
    EXPECT_EQ(list.walks, 1);
    EXPECT_EQ(locator.displayID(7, start + 5), 1);
    EXPECT_EQ(locator.displayID(7, start + 9.9), 1);
    EXPECT_EQ(list.walks, 2);
}

TEST_F(DisplayLocatorTest, AnAnswerOfNoneStaysInUseToo) {
    EXPECT_EQ(locator.displayID(7, at("08:00:00")), 0);
    list.windows = {{{7, 0, onFirst}}};
    EXPECT_EQ(locator.displayID(7, at("08:00:04")), 0);
    EXPECT_EQ(locator.displayID(7, at("08:00:05")), 1);
}

TEST_F(DisplayLocatorTest, AnotherProcessIsLookedUpAtOnce) {
    list.windows = {{{7, 0, onFirst}, {8, 0, onSecond}}};
    EXPECT_EQ(locator.displayID(7, at("08:00:00")), 1);
    EXPECT_EQ(locator.displayID(8, at("08:00:01")), 2);
    EXPECT_EQ(locator.displayID(7, at("08:00:02")), 1);
    EXPECT_EQ(list.walks, 3) << "one answer alone is kept";
}

TEST_F(DisplayLocatorTest, AfterAClockSetBackTheAnswerStaysUntilTheClockHasCaughtUp) {
    list.windows = {{{7, 0, onFirst}}};
    EXPECT_EQ(locator.displayID(7, at("08:00:00")), 1);
    list.windows = {{{7, 0, onSecond}}};
    EXPECT_EQ(locator.displayID(7, at("07:00:00")), 1);
    EXPECT_EQ(locator.displayID(7, at("08:00:05")), 2);
}

class TrackerDisplayTest : public TrackerTest {
  protected:
    TrackerDisplayTest() {
        platform.displays.setCount(2);
        create();
        tick();
    }
};

TEST_F(TrackerDisplayTest, AMovedWindowIsNoticedFiveSecondsLater) {
    tick();
    platform.applications.move(1, 2);
    run(6);
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 1: 5", "org.editor 'Editor' 2: 2"}));
}

TEST_F(TrackerDisplayTest, AWindowOnADisplayThatIsGoneCountsAsNone) {
    platform.applications.move(1, 2);
    tick();
    platform.displays.setCount(1);
    run(5);
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 2: 5", "org.editor 'Editor' 0: 1"}));
}

TEST_F(TrackerDisplayTest, AnAppWithoutAWindowIsOnNoDisplay) {
    platform.applications.move(1, 0);
    tick();
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 0: 1"}));
}

TEST_F(TrackerDisplayTest, ASessionThatCannotTellOfWindowsCountsOnNoDisplay) {
    platform.windowList.setAvailable(false);
    tick();
    EXPECT_EQ(pending(), lines({"org.editor 'Editor' 0: 1"}));
}

} // namespace
} // namespace kestrelfen
