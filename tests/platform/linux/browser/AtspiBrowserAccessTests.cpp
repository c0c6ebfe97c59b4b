#include "platform/linux/browser/BrowserAccessTest.hpp"

#include <QDBusArgument>

#include <unistd.h>

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;

TEST_F(BrowserAccessTest, TellsTheOriginOfTheActiveTab) {
    AccessibleProgram browser({window("https://Example.com:8443/path?query#fragment")});
    runs(browser.process());
    EXPECT_EQ(ask(), "pending");
    EXPECT_EQ(ask(), "pending");
    EXPECT_EQ(read(), "https://Example.com:8443");
}

TEST_F(BrowserAccessTest, IsAvailableWhileTheServiceIsThereOnOrOff) {
    EXPECT_TRUE(waitUntil([this] { return access_->isAvailable(); }));
    service_.set("IsEnabled", false);
    EXPECT_TRUE(access_->isAvailable());
    service_.stop();
    EXPECT_TRUE(waitUntil([this] { return !access_->isAvailable(); }));
    service_.start();
    EXPECT_TRUE(waitUntil([this] { return access_->isAvailable(); }));
}

TEST_F(BrowserAccessTest, EachAnswerIsReadAnew) {
    AccessibleProgram browser({window("https://first.example/")});
    runs(browser.process());
    EXPECT_EQ(read(), "https://first.example");
    browser.show({window("http://second.example/")});
    EXPECT_EQ(ask(), "pending");
    EXPECT_EQ(read(), "http://second.example");
}

TEST_F(BrowserAccessTest, ReadsTheAddressByItsOtherName) {
    auto shown = window("https://example.com/path");
    shown["attribute"] = "DocURL";
    AccessibleProgram browser({shown});
    runs(browser.process());
    EXPECT_EQ(read(), "https://example.com");
}

TEST_F(BrowserAccessTest, AnAnswerIsForgottenAfterAWhile) {
    AtspiBrowserAccess access({link_, applications_, identity_, preferences_, mainQueue_}, 300ms);
    AccessibleProgram browser({window("https://example.com/")});
    runs(browser.process());
    const auto isPending = [&] {
        const auto result = access.run(chromeID, "");
        return result && std::holds_alternative<BrowserAccess::ScriptPending>(*result);
    };
    ASSERT_TRUE(waitUntil(isPending));
    ASSERT_TRUE(waitUntil([&] { return browser.calls().contains("GetAttributes 0"); }));
    pass(100ms + 300ms);
    EXPECT_TRUE(isPending());
}

TEST_F(BrowserAccessTest, WaitsForABrowserThatIsBeingWoken) {
    auto shown = window("https://example.com/");
    shown["asleep"] = true;
    AccessibleProgram browser({shown});
    runs(browser.process());
    EXPECT_EQ(read(), "https://example.com");
}

TEST_F(BrowserAccessTest, APageThatIsNotOfTheWebIsNoSite) {
    AccessibleProgram browser({window("chrome://settings/passwords")});
    runs(browser.process());
    EXPECT_EQ(read(), "");
    browser.show({window("file:///home/person/secret.html")});
    EXPECT_EQ(read(), "");
}

TEST_F(BrowserAccessTest, ABrowserWithoutAWindowHasNoSite) {
    AccessibleProgram browser({});
    runs(browser.process());
    EXPECT_EQ(read(), "");
}

TEST_F(BrowserAccessTest, AWindowWithoutAPageHasNoSite) {
    AccessibleProgram browser({{{"name", "Secret Title - Google Chrome"}, {"active", true}}});
    runs(browser.process());
    EXPECT_EQ(read(), "");
}

TEST_F(BrowserAccessTest, OfAPrivateWindowNoPageIsAskedFor) {
    AccessibleProgram browser({window("https://example.com/", "Secret Title - Google Chrome (Incognito)")});
    runs(browser.process());
    EXPECT_EQ(read(), "");
    EXPECT_EQ(browser.calls(), QStringList({"GetState 0", "Get 0"}));
}

TEST_F(BrowserAccessTest, TheActiveWindowCounts) {
    AccessibleProgram browser(
        {{{"name", "A - Google Chrome"}, {"address", "https://a.example/"}},
         {{"name", "B - Google Chrome"}, {"address", "https://b.example/"}, {"active", true}},
         {{"name", ""}}});
    runs(browser.process());
    EXPECT_EQ(read(), "https://b.example");
    const QStringList calls = browser.calls();
    EXPECT_FALSE(calls.contains("GetMatches 0"));
    EXPECT_EQ(calls.count("GetMatches 1"), 1);
}

TEST_F(BrowserAccessTest, AnActivePrivateWindowHidesTheOthers) {
    AccessibleProgram browser({{{"name", "A - Google Chrome"}, {"address", "https://a.example/"}},
                               window("https://b.example/", "B - Google Chrome (Incognito)")});
    runs(browser.process());
    EXPECT_EQ(read(), "");
}

TEST_F(BrowserAccessTest, AnOnlyWindowIsTakenEvenIfNotToldAsActive) {
    AccessibleProgram browser(
        {{{"name", ""}}, {{"name", "A - Google Chrome"}, {"address", "https://a.example/"}}, {{"name", ""}}});
    runs(browser.process());
    EXPECT_EQ(read(), "https://a.example");
}

TEST_F(BrowserAccessTest, OfSeveralWindowsNoneIsTakenUnlessOneIsActive) {
    AccessibleProgram browser(
        {{{"name", "A - Google Chrome"}, {"address", "https://a.example/"}},
         {{"name", "B - Google Chrome (Incognito)"}, {"address", "https://b.example/"}}});
    runs(browser.process());
    EXPECT_EQ(read(), "");
}

TEST_F(BrowserAccessTest, AsksNoOtherProgram) {
    AccessibleProgram other({window("https://other.example/")});
    AccessibleProgram browser({window("https://example.com/")});
    runs(browser.process());
    runs(other.process(), "org.example.Other");
    EXPECT_EQ(read(), "https://example.com");
    EXPECT_EQ(other.calls(), QStringList());
}

TEST_F(BrowserAccessTest, NeverAsksItself) {
    const auto connection = QDBusConnection::connectToBus(service_.address(), "self");
    const auto embed = QDBusMessage::createMethodCall(
        "org.a11y.atspi.Registry", "/org/a11y/atspi/accessible/root", "org.a11y.atspi.Socket", "Embed");
    QDBusArgument plug;
    plug.beginStructure();
    plug << connection.baseService() << QDBusObjectPath("/org/a11y/atspi/accessible/root");
    plug.endStructure();
    ASSERT_EQ(connection.call(QDBusMessage(embed) << QVariant::fromValue(plug)).type(),
              QDBusMessage::ReplyMessage);

    runs(static_cast<std::int32_t>(::getpid()));
    EXPECT_EQ(read(), "");
    EXPECT_EQ(status(), AutomationStatus::wouldRequireConsent);
    QDBusConnection::disconnectFromBus("self");
}

TEST_F(BrowserAccessTest, ASandboxedBrowserIsKnownByItsIdentity) {
    AccessibleProgram browser({window("https://example.com/")});
    identity_.products[browser.process()] = chromeID;
    runs(4711);
    EXPECT_EQ(read(), "https://example.com");
}

TEST_F(BrowserAccessTest, AnotherBrowserIsAskedInPlaceOfTheFirst) {
    AccessibleProgram first({window("https://first.example/")});
    AccessibleProgram second({window("https://second.example/", "Secret Title - Brave")});
    runs(first.process());
    runs(second.process(), braveID);
    first.suspend();
    EXPECT_EQ(ask(), "pending");
    EXPECT_EQ(read(braveID), "https://second.example");
    first.resume();
    EXPECT_EQ(read(), "https://first.example");
}

TEST_F(BrowserAccessTest, ALateAnswerOfTheFirstIsNotTakenForTheOthers) {
    AccessibleProgram first({window("https://first.example/")});
    AccessibleProgram second({window("https://second.example/", "Secret Title - Brave")});
    runs(first.process());
    runs(second.process(), braveID);
    first.suspend();
    second.suspend();
    EXPECT_EQ(ask(), "pending");
    pass(100ms);
    EXPECT_EQ(ask(braveID), "pending");
    pass(100ms);
    first.resume();
    pass(100ms);
    second.resume();
    EXPECT_EQ(read(braveID), "https://second.example");
}

TEST_F(BrowserAccessTest, TheWindowOfOneBrowserIsNotReadAsAnothers) {
    AccessibleProgram browser({window("https://example.com/", "Secret Title - Brave")});
    runs(browser.process());
    EXPECT_EQ(read(), "");
}

TEST_F(BrowserAccessTest, WhileAccessibilityIsOffNobodyIsAsked) {
    AccessibleProgram browser({window("https://example.com/")});
    runs(browser.process());
    EXPECT_EQ(read(), "https://example.com");
    browser.calls();

    service_.set("IsEnabled", false);
    ASSERT_TRUE(becomes(AutomationStatus::wouldRequireConsent));
    EXPECT_EQ(ask(), "none");
    pass(100ms);
    EXPECT_EQ(browser.calls(), QStringList());

    service_.set("IsEnabled", true);
    ASSERT_TRUE(becomes(AutomationStatus::allowed));
    EXPECT_EQ(read(), "https://example.com");
}

TEST_F(BrowserAccessTest, FindsTheServiceAgainAfterItsRestart) {
    {
        AccessibleProgram browser({window("https://example.com/")});
        runs(browser.process());
        EXPECT_EQ(read(), "https://example.com");
        applications_.stop(browser.process());
    }
    service_.stop();
    ASSERT_TRUE(waitUntil([this] { return ask() == "none"; }));
    service_.start();
    service_.set("IsEnabled", true);
    AccessibleProgram browser({window("https://again.example/")});
    runs(browser.process());
    ASSERT_TRUE(becomes(AutomationStatus::allowed));
    EXPECT_TRUE(waitUntil([this] { return read() == "https://again.example"; }));
}

TEST_F(BrowserAccessTest, ABrowserThatEndsInTheMiddleDoesNoHarm) {
    auto browser =
        std::make_optional<AccessibleProgram>(AccessibleProgram::Windows{window("https://example.com/")});
    runs(browser->process());
    browser->suspend();
    EXPECT_EQ(ask(), "pending");
    pass(50ms);
    browser.reset();
    EXPECT_NE(read(), "https://example.com");
}

TEST(BrowserAccessWithoutABusTest, NothingIsAllowed) {
    const QByteArray outer = qgetenv("DBUS_SESSION_BUS_ADDRESS");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere");
    BusLink link(BusLink::Bus::session);
    FakeApplications applications;
    FakePreferences preferences;
    ProcessIdentity identity;
    QtMainQueue mainQueue;
    AtspiBrowserAccess access({link, applications, identity, preferences, mainQueue});
    applications.start({chromeID, "Browser", 4711});
    EXPECT_FALSE(access.run(chromeID, ""));
    EXPECT_EQ(access.permissionStatus(chromeID, false),
              static_cast<int>(AutomationStatus::wouldRequireConsent));
    bool isPrepared = false;
    access.prepareLaunch([&] { isPrepared = true; });
    EXPECT_TRUE(waitUntil([&] { return isPrepared; }));
    access.release();
    EXPECT_TRUE(preferences.all().empty());
    qputenv("DBUS_SESSION_BUS_ADDRESS", outer);
}

} // namespace
} // namespace kestrelfen
