#include "platform/fake/FakeActivationPolicy.hpp"
#include "sensing/DockPresence.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

constexpr auto regular = ActivationPolicyKind::regular;
constexpr auto accessory = ActivationPolicyKind::accessory;

constexpr ProgramWindow mainWindow{.isVisible = true, .isTitled = true, .isPanel = false};
constexpr ProgramWindow hiddenWindow{.isVisible = false, .isTitled = true, .isPanel = false};
constexpr ProgramWindow overlay{.isVisible = true, .isTitled = false, .isPanel = false};
constexpr ProgramWindow titledPanel{.isVisible = true, .isTitled = true, .isPanel = true};

class DockPresenceTest : public testing::Test {
  protected:
    DockPresenceTest() {
        policy.onSet = [this](ActivationPolicyKind kind) {
            calls += "set(" + std::string(rawValue(kind)) + ") ";
        };
        policy.onActivate = [this] { calls += "activate "; };
    }

    ActivationPolicyKind desiredFor(std::vector<ProgramWindow> windows) {
        policy.setWindows(std::move(windows));
        return presence.desiredPolicy();
    }

    /// What applying does to the program with these windows.
    std::string callsFor(std::vector<ProgramWindow> windows) {
        calls.clear();
        policy.setWindows(std::move(windows));
        EXPECT_EQ(presence.apply(), presence.desiredPolicy());
        return calls;
    }

    FakeActivationPolicy policy;
    DockPresence presence{policy};
    std::string calls;
};

TEST_F(DockPresenceTest, WithoutWindowsItIsAnAccessory) {
    EXPECT_EQ(desiredFor({}), accessory);
}

TEST_F(DockPresenceTest, AVisibleTitledWindowMakesItRegular) {
    EXPECT_EQ(desiredFor({mainWindow}), regular);
    EXPECT_EQ(desiredFor({overlay, titledPanel, hiddenWindow, mainWindow}), regular);
    EXPECT_EQ(desiredFor({mainWindow, overlay}), regular);
}

TEST_F(DockPresenceTest, AHiddenTitledWindowDoesNotCount) {
    EXPECT_EQ(desiredFor({hiddenWindow}), accessory);
}

TEST_F(DockPresenceTest, ATitledPanelDoesNotCount) {
    EXPECT_EQ(desiredFor({titledPanel}), accessory);
}

TEST_F(DockPresenceTest, ABorderlessOverlayDoesNotCount) {
    EXPECT_EQ(desiredFor({overlay}), accessory);
}

TEST_F(DockPresenceTest, NoSingleWindowCountsForWhatSeveralAreTogether) {
    EXPECT_EQ(desiredFor({hiddenWindow, overlay, titledPanel}), accessory);
}

TEST_F(DockPresenceTest, AskingForThePolicyChangesNothing) {
    EXPECT_EQ(desiredFor({mainWindow}), regular);
    EXPECT_EQ(policy.current(), accessory);
    EXPECT_EQ(calls, "");
}

TEST_F(DockPresenceTest, AnOpenedMainWindowMakesItRegularAndBringsItToTheFront) {
    EXPECT_EQ(callsFor({mainWindow}), "set(regular) activate ");
    EXPECT_EQ(policy.current(), regular);
}

TEST_F(DockPresenceTest, WithTheMainWindowOpenAFurtherCallDoesNothing) {
    callsFor({mainWindow});
    EXPECT_EQ(callsFor({mainWindow}), "");
    EXPECT_EQ(callsFor({mainWindow, overlay, mainWindow}), "");
}

TEST_F(DockPresenceTest, TheLastTitledWindowClosedMakesItAnAccessoryWithoutTakingTheFocus) {
    callsFor({mainWindow, mainWindow});
    EXPECT_EQ(callsFor({mainWindow}), "");
    EXPECT_EQ(callsFor({overlay}), "set(accessory) ");
    EXPECT_EQ(policy.current(), accessory);
}

TEST_F(DockPresenceTest, AnAccessoryThatIsToStayOneIsLeftAlone) {
    EXPECT_EQ(callsFor({}), "");
    EXPECT_EQ(callsFor({overlay, titledPanel}), "");
}

} // namespace
} // namespace kestrelfen
