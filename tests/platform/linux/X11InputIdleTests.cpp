#include "platform/fake/FakeLog.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/VirtualDisplay.hpp"
#include "platform/linux/X11InputIdle.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <sys/resource.h>
#include <thread>

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;

double asked(X11InputIdle& idle) {
    const auto seconds = idle.secondsSinceLastInput();
    EXPECT_TRUE(seconds.has_value());
    return seconds.value_or(-1);
}

long voluntarySwitches() {
    rusage usage{};
    ::getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nvcsw;
}

long switchesWhileAsked(X11InputIdle& idle) {
    const long before = voluntarySwitches();
    asked(idle);
    return voluntarySwitches() - before;
}

class X11InputIdleAfter : public testing::TestWithParam<QStringList> {};

TEST_P(X11InputIdleAfter, InputBeginsAnew) {
    FakeLog log;
    X11InputIdle idle(log);
    std::this_thread::sleep_for(300ms);
    const double before = asked(idle);
    EXPECT_GE(before, 0.3);

    xdotool(GetParam());

    const double after = asked(idle);
    EXPECT_GE(after, 0.0);
    EXPECT_LT(after, before);
}

INSTANTIATE_TEST_SUITE_P(EachKindOfInput, X11InputIdleAfter,
                         testing::Values(QStringList{"key", "a"}, QStringList{"click", "1"},
                                         QStringList{"click", "4"},
                                         QStringList{"mousemove_relative", "1", "1"}));

TEST(X11InputIdle, GrowsWithRealTimeWhileNothingIsTouched) {
    FakeLog log;
    X11InputIdle idle(log);
    xdotool({"key", "a"});
    const double before = asked(idle);
    std::this_thread::sleep_for(500ms);
    EXPECT_GE(asked(idle) - before, 0.45);
    EXPECT_TRUE(log.lines().empty());
}

/// A busy machine may keep the server from answering soon; who sleeps for the answer does so each time.
TEST(X11InputIdle, RarelySleepsForTheAnswer) {
    constexpr int rounds = 100;
    constexpr int questions = 8;
    FakeLog log;
    X11InputIdle idle(log);
    long fewest = questions;
    for (int round = 0; round < rounds && fewest > 0; ++round) {
        long switches = 0;
        for (int question = 0; question < questions; ++question) {
            std::this_thread::sleep_for(5ms);
            switches += switchesWhileAsked(idle);
        }
        fewest = std::min(fewest, switches);
    }
    EXPECT_EQ(fewest, 0);
}

TEST(X11InputIdle, IsAbsentOnceTheServerHasGone) {
    VirtualDisplay display;
    FakeLog log;
    X11InputIdle idle(log);
    EXPECT_TRUE(idle.secondsSinceLastInput().has_value());

    display.stop();

    EXPECT_EQ(idle.secondsSinceLastInput(), std::nullopt);
    EXPECT_EQ(idle.secondsSinceLastInput(), std::nullopt);
    ASSERT_EQ(log.lines().size(), 1U);
    EXPECT_EQ(log.lines().front().category, "InputIdle");
}

TEST(X11InputIdle, IsAbsentWithoutAServer) {
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":4711");
    FakeLog log;
    X11InputIdle idle(log);
    qputenv("DISPLAY", display);

    EXPECT_EQ(idle.secondsSinceLastInput(), std::nullopt);
    EXPECT_EQ(log.lines().size(), 1U);
}

TEST(X11InputIdle, IsAbsentWithoutTheExtension) {
    const VirtualDisplay display({"-extension", "MIT-SCREEN-SAVER"});
    FakeLog log;
    X11InputIdle idle(log);

    EXPECT_EQ(idle.secondsSinceLastInput(), std::nullopt);
    EXPECT_EQ(log.lines().size(), 1U);
}

} // namespace
} // namespace kestrelfen
