#include "platform/linux/browser/BrowserAccessTest.hpp"
#include "platform/linux/browser/LockedService.hpp"

#include <QElapsedTimer>
#include <QThread>

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;

/// Accessibility is off at first, as on most desktops.
class BrowserPermissionTest : public BrowserAccessTest {
  protected:
    BrowserPermissionTest() {
        service_.set("IsEnabled", false);
        EXPECT_TRUE(waitUntil([this] { return ask("nobody") == "none"; }));
    }

    void turnOnByClick() {
        runs(browser_.process());
        EXPECT_EQ(click(), AutomationStatus::allowed);
    }

    bool turnsOff() {
        return waitUntil([this] { return !service_.isEnabled(); });
    }

    AccessibleProgram browser_{window("https://example.com/")};
};

TEST_F(BrowserPermissionTest, ABrowserThatDoesNotRunIsNotFound) {
    EXPECT_EQ(status(), AutomationStatus::processNotFound);
    EXPECT_EQ(click(), AutomationStatus::processNotFound);
}

TEST_F(BrowserPermissionTest, WithoutAccessibilityItWouldRequireConsent) {
    runs(browser_.process());
    EXPECT_EQ(status(), AutomationStatus::wouldRequireConsent);
    EXPECT_FALSE(service_.isEnabled());
}

TEST_F(BrowserPermissionTest, TheClickTurnsAccessibilityOn) {
    turnOnByClick();
    EXPECT_TRUE(service_.isEnabled());
    EXPECT_EQ(status(), AutomationStatus::allowed);
    EXPECT_TRUE(remembersTurningOn());
    EXPECT_EQ(read(), "https://example.com");
}

TEST_F(BrowserPermissionTest, ABrowserThatIsNotOnTheBusMustBeRestartedFirst) {
    runs(4711);
    EXPECT_EQ(click(), AutomationStatus::wouldRequireConsent);
    EXPECT_TRUE(service_.isEnabled());
    EXPECT_EQ(status(), AutomationStatus::wouldRequireConsent);

    applications_.stop(4711);
    EXPECT_EQ(status(), AutomationStatus::processNotFound);
    runs(browser_.process());
    EXPECT_EQ(status(), AutomationStatus::allowed);
    EXPECT_EQ(read(), "https://example.com");
}

TEST_F(BrowserPermissionTest, ABrowserThatComesOntoTheBusLaterIsAllowed) {
    const auto processOnBus = browser_.process();
    runs(4711);
    service_.set("IsEnabled", true);
    EXPECT_TRUE(becomes(AutomationStatus::allowed));
    EXPECT_EQ(read(), "");
    EXPECT_EQ(status(), AutomationStatus::wouldRequireConsent);
    identity_.products[processOnBus] = chromeID;
    EXPECT_EQ(read(), "https://example.com");
    EXPECT_EQ(status(), AutomationStatus::allowed);
}

TEST_F(BrowserPermissionTest, TheClickWaitsForABrowserThatIsStarting) {
    runs(4711);
    QTimer late;
    late.setSingleShot(true);
    late.callOnTimeout([this] { identity_.products[browser_.process()] = chromeID; });
    late.start(700ms);
    EXPECT_EQ(click(), AutomationStatus::allowed);
}

TEST_F(BrowserPermissionTest, PreparingALaunchTurnsAccessibilityOn) {
    bool isPrepared = false;
    access_->prepareLaunch([&] { isPrepared = true; });
    ASSERT_TRUE(waitUntil([&] { return isPrepared; }));
    EXPECT_TRUE(service_.isEnabled());
    EXPECT_TRUE(remembersTurningOn());
}

TEST_F(BrowserPermissionTest, WhatWasTurnedOnIsUndone) {
    turnOnByClick();
    access_->release();
    EXPECT_TRUE(turnsOff());
    EXPECT_TRUE(waitUntil([this] { return !remembersTurningOn(); }));
    EXPECT_EQ(status(), AutomationStatus::wouldRequireConsent);
    EXPECT_EQ(ask(), "none");
}

TEST_F(BrowserPermissionTest, WhatWasTurnedOnIsUndoneAfterARestart) {
    turnOnByClick();
    restart();
    access_->release();
    EXPECT_TRUE(turnsOff());
    EXPECT_TRUE(waitUntil([this] { return preferences_.all().empty(); }));
}

TEST_F(BrowserPermissionTest, WhatWasTurnedOnIsUndoneOnceTheBusIsJoined) {
    turnOnByClick();
    BusLink late(BusLink::Bus::session);
    access_.emplace(AtspiBrowserAccess::Services{late, applications_, identity_, preferences_, mainQueue_});
    access_->release();
    EXPECT_TRUE(turnsOff());
    EXPECT_TRUE(waitUntil([this] { return !remembersTurningOn(); }));
    access_.reset();
}

TEST_F(BrowserPermissionTest, WhatIsOffAtTheStartIsNoLongerItsOwn) {
    turnOnByClick();
    access_.reset();
    service_.set("IsEnabled", false);
    restart();
    EXPECT_TRUE(waitUntil([this] { return !remembersTurningOn(); }));
    EXPECT_EQ(status(), AutomationStatus::wouldRequireConsent);
}

TEST_F(BrowserPermissionTest, WhoChangesTheirMindAtOnceIsHeard) {
    access_->prepareLaunch([] {});
    access_->release();
    pass(200ms);
    EXPECT_FALSE(service_.isEnabled());
    EXPECT_FALSE(remembersTurningOn());

    access_->prepareLaunch([] {});
    ASSERT_TRUE(waitUntil([this] { return remembersTurningOn(); }));
    access_->release();
    EXPECT_TRUE(waitUntil([this] { return !remembersTurningOn(); }));
    EXPECT_FALSE(service_.isEnabled());
}

TEST_F(BrowserPermissionTest, WhatOthersTurnedOnStaysOn) {
    service_.set("IsEnabled", true);
    runs(browser_.process());
    ASSERT_TRUE(becomes(AutomationStatus::allowed));
    EXPECT_EQ(click(), AutomationStatus::allowed);
    EXPECT_FALSE(remembersTurningOn());
    access_->release();
    pass(200ms);
    EXPECT_TRUE(service_.isEnabled());
}

TEST_F(BrowserPermissionTest, AScreenReaderThatCameSinceKeepsIt) {
    turnOnByClick();
    service_.set("ScreenReaderEnabled", true);
    access_->release();
    EXPECT_TRUE(waitUntil([this] { return !remembersTurningOn(); }));
    pass(200ms);
    EXPECT_TRUE(service_.isEnabled());
}

TEST_F(BrowserPermissionTest, WhoTurnsItOffAgainHasRefused) {
    turnOnByClick();
    service_.set("IsEnabled", false);
    EXPECT_TRUE(becomes(AutomationStatus::notPermitted));
    EXPECT_FALSE(remembersTurningOn());
    EXPECT_EQ(ask(), "none");

    EXPECT_EQ(click(), AutomationStatus::allowed);
    EXPECT_EQ(status(), AutomationStatus::allowed);
}

TEST_F(BrowserPermissionTest, ADesktopThatDoesNotLetItHasRefused) {
    runs(browser_.process());
    service_.stop();
    const LockedService locked(sessionBus_.connection());
    EXPECT_EQ(click(), AutomationStatus::notPermitted);
    EXPECT_EQ(status(), AutomationStatus::notPermitted);
    EXPECT_FALSE(remembersTurningOn());
}

TEST_F(BrowserPermissionTest, UndoingIsNoRefusal) {
    turnOnByClick();
    access_->release();
    ASSERT_TRUE(turnsOff());
    pass(100ms);
    EXPECT_EQ(status(), AutomationStatus::wouldRequireConsent);
}

TEST_F(BrowserPermissionTest, WithoutAServiceTheClickStillEnds) {
    runs(browser_.process());
    service_.stop();
    EXPECT_EQ(click(), AutomationStatus::wouldRequireConsent);
    EXPECT_FALSE(remembersTurningOn());
}

TEST_F(BrowserPermissionTest, TheQuestionRunsOffTheMainThreadAndItsAnswerOnIt) {
    QThread* asking = nullptr;
    QThread* answered = nullptr;
    std::optional<int> answer;
    access_->askOffMain(
        [&] {
            asking = QThread::currentThread();
            return 7;
        },
        [&](std::optional<int> status) {
            answered = QThread::currentThread();
            answer = status;
        });
    EXPECT_TRUE(waitUntil([&] { return answer.has_value(); }));
    EXPECT_EQ(answer, 7);
    EXPECT_NE(asking, QThread::currentThread());
    EXPECT_EQ(answered, QThread::currentThread());
}

TEST_F(BrowserPermissionTest, EndingDoesNotWaitForAQuestion) {
    runs(4711);
    bool isAnswered = false;
    access_->askOffMain([this] { return access_->permissionStatus(chromeID, true); },
                        [&](std::optional<int>) { isAnswered = true; });
    pass(200ms);
    ASSERT_FALSE(isAnswered);
    QElapsedTimer time;
    time.start();
    access_.reset();
    EXPECT_LT(time.elapsed(), 100);
}

} // namespace
} // namespace kestrelfen
