#include "platform/linux/browser/BrowserAccessTest.hpp"
#include "platform/linux/browser/RealBrowser.hpp"

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;

/// A real browser of the family, that the test gives out as another product of it.
class ChromiumTest : public BrowserAccessTest {
  protected:
    void SetUp() override {
        if (!RealBrowser::isInstalled()) {
            GTEST_SKIP() << "chromium is not installed";
        }
    }

    bool readsOrigin(const QString& origin) {
        return waitUntil([&] { return read() == origin.toStdString(); }, 20s);
    }

    static bool shows(const QString& title) {
        return waitUntil([&] { return RealBrowser::showsTitle(title); }, 20s);
    }

    const ChildProcess windowManager_{"openbox", {"--sm-disable"}};
    const PageServer pages_;
};

TEST_F(ChromiumTest, TheActiveTabOfARealBrowserIsRead) {
    RealBrowser browser({pages_.page()});
    runs(browser.process());
    EXPECT_TRUE(readsOrigin(pages_.origin()));
    EXPECT_EQ(status(), AutomationStatus::allowed);

    browser.open(pages_.page("localhost"));
    EXPECT_TRUE(readsOrigin(pages_.origin("localhost")));

    xdotool({"key", "ctrl+t"});
    ASSERT_TRUE(shows("New Tab"));
    EXPECT_TRUE(readsOrigin(""));

    xdotool({"key", "ctrl+1"});
    EXPECT_TRUE(readsOrigin(pages_.origin()));
}

TEST_F(ChromiumTest, ARealPrivateWindowIsNotRead) {
    const RealBrowser browser({"--incognito", pages_.page()});
    runs(browser.process());
    ASSERT_TRUE(shows("Secret Title"));
    ASSERT_TRUE(waitUntil([this] { return read().empty() && status() == AutomationStatus::allowed; }));
    for (int times = 0; times < 5; ++times) {
        pass(300ms);
        EXPECT_EQ(read(), "");
    }
    EXPECT_EQ(status(), AutomationStatus::allowed);
}

TEST_F(ChromiumTest, ARealBrowserThatStartedBeforeMustBeRestarted) {
    service_.set("IsEnabled", false);
    ASSERT_TRUE(waitUntil([this] { return ask() == "none"; }));
    {
        const RealBrowser browser({pages_.page()});
        runs(browser.process());
        ASSERT_TRUE(shows("Secret Title"));
        EXPECT_EQ(click(), AutomationStatus::wouldRequireConsent);
        EXPECT_EQ(read(), "");
        applications_.stop(browser.process());
    }
    const RealBrowser browser({pages_.page()});
    runs(browser.process());
    EXPECT_EQ(click(), AutomationStatus::allowed);
    EXPECT_TRUE(readsOrigin(pages_.origin()));
}

} // namespace
} // namespace kestrelfen
