#include "FakeOverlayWindows.hpp"
#include "base/Observable.hpp"
#include "platform/fake/FakeClock.hpp"
#include "shell/OverlayWindowController.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

/// Displays of any place and size.
class AnyDisplays final : public Displays {
  public:
    std::vector<Display> list;
    std::optional<Display> front;

    void tell() const { observers_.notify(); }

    std::vector<Display> all() const override { return list; }
    std::int64_t count() const override { return static_cast<std::int64_t>(list.size()); }
    std::optional<Display> main() const override { return front; }
    std::unique_ptr<Observation> observe(std::function<void()> changed) override {
        return std::make_unique<Observing>(observers_.add(std::move(changed)));
    }

  private:
    class Observing final : public Observation {
      public:
        explicit Observing(Subscription subscription) : subscription_(std::move(subscription)) {}

      private:
        Subscription subscription_;
    };

    Observers observers_;
};

Display display(std::int64_t number, const ScreenRect& frame, const ScreenRect& visible) {
    return {number, "", frame, visible};
}

/// Two displays, the left one with a panel at its top and a dock at its right.
class OverlayWindowControllerTest : public testing::Test {
  protected:
    OverlayWindowControllerTest() {
        displays.list = {left, right};
        displays.front = left;
        controller.onChange = [this](std::string_view call) { trace.add("changed " + std::string(call)); };
    }

    void TearDown() override { EXPECT_EQ(happened(), "") << "not expected by the test"; }

    std::string happened() { return trace.take(); }

    void build() {
        controller.buildBreakWindows();
        happened();
    }

    const Display left = display(1, {0, 0, 1920, 1080}, {0, 28, 1840, 1052});
    const Display right = display(2, {1920, 100, 1280, 720}, {1920, 100, 1280, 720});
    FakeClock clock;
    Trace trace{clock};
    FakeOverlayWindows windows{trace};
    AnyDisplays displays;
    OverlayWindowController controller{displays, windows};
};

TEST_F(OverlayWindowControllerTest, BuildsOneWindowOverTheFullFrameOfEachDisplay) {
    controller.buildBreakWindows();
    EXPECT_EQ(controller.breakWindows().size(), 2U);
    EXPECT_EQ(happened(),
              lines({"08:00:00 window 1 over 1920x1080+0+0", "08:00:00 window 2 over 1280x720+1920+100",
                     "08:00:00 changed buildBreakWindows"}));
    controller.tearDownBreakWindows();
    happened();
}

TEST_F(OverlayWindowControllerTest, BuildsNothingWithoutDisplays) {
    displays.list.clear();
    controller.buildBreakWindows();
    EXPECT_TRUE(controller.breakWindows().empty());
}

TEST_F(OverlayWindowControllerTest, TearsDownInOrder) {
    build();
    controller.tearDownBreakWindows();
    EXPECT_TRUE(controller.breakWindows().empty());
    EXPECT_EQ(happened(), lines({"08:00:00 window 1 goes", "08:00:00 window 2 goes",
                                 "08:00:00 changed tearDownBreakWindows"}));
    controller.tearDownBreakWindows();
}

TEST_F(OverlayWindowControllerTest, DisplayChangeYieldsAFreshSet) {
    build();
    controller.observeScreenChanges();
    displays.list = {right};
    displays.tell();
    EXPECT_EQ(
        happened(),
        lines({"08:00:00 window 1 goes", "08:00:00 window 2 goes", "08:00:00 changed tearDownBreakWindows",
               "08:00:00 window 2 over 1280x720+1920+100", "08:00:00 changed buildBreakWindows"}));
    controller.tearDownBreakWindows();
    happened();
}

TEST_F(OverlayWindowControllerTest, NothingComesBackOnceTheLastDisplayIsGone) {
    build();
    controller.observeScreenChanges();
    displays.list.clear();
    displays.tell();
    EXPECT_TRUE(controller.breakWindows().empty());
    happened();
    displays.list = {left};
    displays.tell();
    EXPECT_TRUE(controller.breakWindows().empty());
}

TEST_F(OverlayWindowControllerTest, WatchesOnceHoweverOftenItIsAsked) {
    build();
    controller.observeScreenChanges();
    controller.observeScreenChanges();
    displays.list = {left};
    displays.tell();
    EXPECT_EQ(
        happened(),
        lines({"08:00:00 window 1 goes", "08:00:00 window 2 goes", "08:00:00 changed tearDownBreakWindows",
               "08:00:00 window 1 over 1920x1080+0+0", "08:00:00 changed buildBreakWindows"}));
    controller.stopObservingScreenChanges();
    displays.tell();
    controller.stopObservingScreenChanges();
    EXPECT_EQ(happened(), "");
    controller.tearDownBreakWindows();
    happened();
}

TEST_F(OverlayWindowControllerTest, DisplayChangeWithoutBreakWindowsDoesNothing) {
    controller.showWarning();
    controller.observeScreenChanges();
    happened();
    displays.front = right;
    displays.tell();
    EXPECT_EQ(happened(), "");
    controller.hideWarning();
    happened();
}

TEST_F(OverlayWindowControllerTest, DisplayChangeInABreakMovesTheCard) {
    displays.list = {left};
    build();
    controller.showWarning();
    controller.observeScreenChanges();
    happened();
    displays.front = right;
    displays.tell();
    EXPECT_EQ(happened(), lines({"08:00:00 window 1 goes", "08:00:00 changed tearDownBreakWindows",
                                 "08:00:00 window 1 over 1920x1080+0+0", "08:00:00 changed buildBreakWindows",
                                 "08:00:00 card at 2770, 110"}));
    controller.hideWarning();
    controller.tearDownBreakWindows();
    happened();
}

TEST_F(OverlayWindowControllerTest, CardSitsInTheUpperRightCornerOfTheVisibleArea) {
    controller.showWarning();
    EXPECT_TRUE(controller.isWarningShown());
    EXPECT_EQ(happened(),
              lines({"08:00:00 card at 1410, 38", "08:00:00 card shows", "08:00:00 changed showWarning"}));
    controller.hideWarning();
    EXPECT_FALSE(controller.isWarningShown());
    EXPECT_EQ(happened(), lines({"08:00:00 card goes", "08:00:00 changed hideWarning"}));
}

TEST_F(OverlayWindowControllerTest, CardIsShownAndPlacedOnce) {
    controller.showWarning();
    happened();
    displays.front = right;
    controller.showWarning();
    EXPECT_EQ(happened(), "");
    controller.hideWarning();
    happened();
    controller.hideWarning();
}

TEST_F(OverlayWindowControllerTest, CardWithoutADisplayStaysWhereItIs) {
    displays.list.clear();
    displays.front.reset();
    controller.showWarning();
    EXPECT_EQ(happened(), lines({"08:00:00 card shows", "08:00:00 changed showWarning"}));
    controller.hideWarning();
    happened();
}

} // namespace
} // namespace kestrelfen
