#include "platform/fake/FakeDisplayWishes.hpp"
#include "shell/desktop/QuickViews.hpp"

#include <QPointer>
#include <QQmlEngine>
#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

class QuickViewsTest : public testing::Test {
  protected:
    void showSomething() { item_ = views_.makeItem("Eyebrow.qml", {{"text", "Today"}}); }

    FakeDisplayWishes wishes_;
    QuickViews views_{wishes_};
    std::unique_ptr<QQuickItem> item_;
};

TEST_F(QuickViewsTest, theFirstViewLooksAsTheDesktopWishes) {
    wishes_.set({.dark = true, .highContrast = true, .reducedMotion = true});
    showSomething();
    EXPECT_TRUE(Appearance::current()->dark());
    EXPECT_TRUE(Appearance::current()->highContrast());
    EXPECT_TRUE(Appearance::current()->reducedMotion());
}

TEST_F(QuickViewsTest, theWishesAreFollowedLive) {
    showSomething();
    wishes_.set({.dark = true, .reducedMotion = true});
    EXPECT_TRUE(Appearance::current()->dark());
    EXPECT_TRUE(Appearance::current()->reducedMotion());
    wishes_.set({.dark = false});
    EXPECT_FALSE(Appearance::current()->dark());
    EXPECT_FALSE(Appearance::current()->reducedMotion());
}

TEST_F(QuickViewsTest, whatTheProgramWasToldGoesBeforeTheDesktopsColours) {
    views_.set(InterfaceStyle::light);
    wishes_.set({.dark = true});
    showSomething();
    EXPECT_FALSE(Appearance::current()->dark());
    views_.set(InterfaceStyle::system);
    EXPECT_TRUE(Appearance::current()->dark());
}

TEST_F(QuickViewsTest, whatViewsNeedStaysWhileThereIsOneAndGoesAfterIt) {
    showSomething();
    const QPointer<QQmlEngine> engine = qmlEngine(item_.get());
    views_.forgetUnused();
    EXPECT_FALSE(engine.isNull());
    item_.reset();
    views_.forgetUnused();
    EXPECT_TRUE(engine.isNull());
    showSomething();
    EXPECT_NE(item_, nullptr);
}

} // namespace
} // namespace kestrelfen
