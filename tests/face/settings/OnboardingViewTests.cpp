#include "core/Settings.hpp"
#include "face/settings/ViewOverMachine.hpp"
#include "ui/OnboardingView/OnboardingModel.hpp"

#include <QTest>

namespace kestrelfen {
namespace {

class OnboardingViewTest : public ViewOverMachine {
  protected:
    void open(const QSize& size = QSize(1040, 660)) {
        show(QStringLiteral("OnboardingView.qml"), model, size);
    }

    ~OnboardingViewTest() override { view_.setSource(QUrl()); }

    /// What `item` lies in of that type.
    static const QQuickItem* parentOf(const QQuickItem* item, const char* type) {
        const QByteArray prefix = QByteArray(type) + "_QMLTYPE_";
        while (item && !QByteArray(item->metaObject()->className()).startsWith(prefix)) {
            item = item->parentItem();
        }
        return item;
    }

    /// How far under the end of `upper` that `lower` begins.
    static double below(const QQuickItem* upper, const QQuickItem* lower) {
        return lower->mapToScene(QPointF()).y() - upper->mapToScene(QPointF(0, upper->height())).y();
    }

    double real(const char* key) { return Settings::real(platform.preferences, key, -1); }

    int finished = 0;
    OnboardingModel model{platform.ports(), [this] { ++finished; }};
};

TEST_F(OnboardingViewTest, WelcomeShowsItsPromises) {
    open();
    for (const char* const text : {"Welcome to Kestrelfen", "It can't drift", "It keeps its own receipts",
                                   "Set Up My Cadence", "Use the Defaults — 20 / 20 / 5"}) {
        EXPECT_TRUE(shows(text)) << text << " is not among\n" << texts().join('\n').toStdString();
    }
}

TEST_F(OnboardingViewTest, DefaultsFinish) {
    open();
    click(QStringLiteral("Use the Defaults — 20 / 20 / 5"));
    EXPECT_EQ(finished, 1);
    EXPECT_EQ(real("workIntervalSeconds"), 1200.0);
}

TEST_F(OnboardingViewTest, CadenceIsChosenAndStarted) {
    open();
    click(QStringLiteral("Set Up My Cadence"));
    EXPECT_TRUE(shows("Pick a Cadence"));
    click(QStringLiteral("Strict"));
    EXPECT_TRUE(named(QStringLiteral("Strict"))->property("isSelected").toBool());
    click(QStringLiteral("Increase Long break every"));
    EXPECT_TRUE(shows("5 min break on the 5th cycle"));
    click(QStringLiteral("Allow skipping a break"));
    EXPECT_FALSE(Settings::boolean(platform.preferences, "showSkipButton", true));
    EXPECT_EQ(finished, 0);
    click(QStringLiteral("Start the First Interval"));
    EXPECT_EQ(finished, 1);
    EXPECT_EQ(real("workIntervalSeconds"), 900.0);
    EXPECT_EQ(real("breakDurationSeconds"), 30.0);
}

TEST_F(OnboardingViewTest, BackForgets) {
    platform.loginItem.setFailure("refused");
    open();
    click(QStringLiteral("Set Up My Cadence"));
    click(QStringLiteral("Gentle"));
    click(QStringLiteral("Launch at login"));
    EXPECT_TRUE(shows("Couldn't update the login item: refused"));
    click(QStringLiteral("Back"));
    EXPECT_TRUE(shows("Welcome to Kestrelfen"));
    click(QStringLiteral("Set Up My Cadence"));
    EXPECT_TRUE(named(QStringLiteral("Standard"))->property("isSelected").toBool());
    EXPECT_FALSE(shows("Couldn't update the login item: refused"));
}

TEST_F(OnboardingViewTest, ErrorStandsTwelveUnderTheRows) {
    platform.loginItem.setFailure("refused");
    open();
    click(QStringLiteral("Set Up My Cadence"));
    const QQuickItem* const rows = parentOf(named(QStringLiteral("Launch at login")), "PaneRows");
    const QQuickItem* const back = named(QStringLiteral("Back"));
    ASSERT_TRUE(rows && back);
    const double gap = below(rows, back);
    click(QStringLiteral("Launch at login"));
    const QQuickItem* const error = textItem(QStringLiteral("Couldn't update the login item: refused"));
    ASSERT_TRUE(error);
    EXPECT_TRUE(QTest::qWaitFor([&] { return below(rows, error) > 0; })) << "it is laid out";
    EXPECT_EQ(below(rows, error), 12);
    EXPECT_EQ(below(error, back), gap);
}

TEST_F(OnboardingViewTest, ClickBringsTheKeyboardToTheCadence) {
    open();
    click(QStringLiteral("Set Up My Cadence"));
    click(QStringLiteral("Gentle"));
    EXPECT_EQ(focused(), QStringLiteral("Gentle"));
}

TEST_F(OnboardingViewTest, SmallestWindowReachesEverythingByKeyboard) {
    open(QSize(900, 560));
    press(Qt::Key_Tab);
    EXPECT_EQ(focused(), QStringLiteral("Set Up My Cadence"));
    press(Qt::Key_Return);
    for (const char* const stop : {"Standard", "Long break every", "Allow skipping a break",
                                   "Launch at login", "Back", "Start the First Interval"}) {
        press(Qt::Key_Tab);
        EXPECT_EQ(focused(), QString::fromUtf8(stop));
    }
    press(Qt::Key_Return);
    EXPECT_EQ(finished, 1);
}

} // namespace
} // namespace kestrelfen
