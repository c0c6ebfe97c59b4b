#include "platform/fake/FakeLog.hpp"
#include "platform/linux/ChildProcess.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/FocusedWindow.hpp"
#include "platform/linux/X11EscapeKey.hpp"

#include <gmock/gmock.h>

namespace kestrelfen {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr xcb_keysym_t escapeKeysym = 0xff1b;
constexpr xcb_keysym_t letterKeysym = 'a';

/// Longer than the server waits before it repeats a held key, by some repetitions.
constexpr auto repetitions = 400ms;

class X11EscapeKeyTest : public testing::Test {
  protected:
    /// Whatever fails, no key stays down for the next test.
    void TearDown() override { xdotool({"keyup", "Escape", "keyup", "a"}); }

    void grab() {
        handle_ = key_.grab([this] { ++presses_; });
    }

    /// Lets what was done on the display arrive here.
    void settle() { pass(100ms); }

    FakeLog log_;
    X11EscapeKey key_{log_};
    std::unique_ptr<EscapeKey::Handle> handle_;
    int presses_ = 0;
    FocusedWindow other_;
};

TEST_F(X11EscapeKeyTest, EachPressCallsOnceWhileAnotherProgramHasTheFocus) {
    grab();
    xdotool({"key", "Escape"});
    EXPECT_TRUE(waitUntil([this] { return presses_ == 1; }));
    xdotool({"key", "Escape"});
    EXPECT_TRUE(waitUntil([this] { return presses_ == 2; }));
    settle();
    EXPECT_EQ(presses_, 2);
    EXPECT_THAT(other_.takePresses(), IsEmpty());
    EXPECT_TRUE(log_.lines().empty());
}

TEST_F(X11EscapeKeyTest, GivenBackTheOtherProgramHasItAgain) {
    grab();
    handle_.reset();
    xdotool({"key", "Escape"});
    settle();
    EXPECT_EQ(presses_, 0);
    EXPECT_THAT(other_.takePresses(), ElementsAre(other_.keycodeOf(escapeKeysym)));
}

TEST_F(X11EscapeKeyTest, EveryOtherKeyReachesTheOtherProgram) {
    grab();
    xdotool({"key", "a"});
    settle();
    EXPECT_EQ(presses_, 0);
    EXPECT_THAT(other_.takePresses(), ElementsAre(other_.keycodeOf(letterKeysym)));
}

TEST_F(X11EscapeKeyTest, AHeldKeyCallsOnce) {
    xdotool({"keydown", "a"});
    pass(repetitions);
    xdotool({"keyup", "a"});
    ASSERT_GT(other_.takePresses().size(), 2U) << "this server does not repeat keys";

    grab();
    xdotool({"keydown", "Escape"});
    pass(repetitions);
    EXPECT_EQ(presses_, 1);
    xdotool({"keyup", "Escape"});
    xdotool({"key", "Escape"});
    EXPECT_TRUE(waitUntil([this] { return presses_ == 2; }));
}

TEST_F(X11EscapeKeyTest, AKeyHeldBeforeTheGrabCallsNothingUntilItIsPressedAnew) {
    xdotool({"keydown", "Escape"});
    grab();
    pass(repetitions);
    EXPECT_EQ(presses_, 0);

    xdotool({"keyup", "Escape"});
    settle();
    EXPECT_EQ(presses_, 0);
    xdotool({"key", "Escape"});
    EXPECT_TRUE(waitUntil([this] { return presses_ == 1; }));
}

TEST_F(X11EscapeKeyTest, TheKeyThatWasReleasedBeforeItRepeatedIsHeardAgain) {
    xdotool({"keydown", "Escape"});
    grab();
    xdotool({"keyup", "Escape"});
    settle();
    xdotool({"key", "Escape"});
    EXPECT_TRUE(waitUntil([this] { return presses_ == 1; }));
}

class X11EscapeKeyWithLock : public X11EscapeKeyTest, public testing::WithParamInterface<const char*> {};

TEST_P(X11EscapeKeyWithLock, IsHeard) {
    grab();
    xdotool({"key", GetParam()});
    xdotool({"key", "Escape"});
    EXPECT_TRUE(waitUntil([this] { return presses_ == 1; }, 1s));
    xdotool({"key", GetParam()});
}

INSTANTIATE_TEST_SUITE_P(EachLock, X11EscapeKeyWithLock, testing::Values("Caps_Lock", "Num_Lock"));

TEST_F(X11EscapeKeyTest, AKeyTakenByAnotherProgramIsOneLineInTheLog) {
    const xcb_keycode_t escape = other_.keycodeOf(escapeKeysym);
    xcb_connection_t* const raw = other_.connection().raw();
    xcb_grab_key(raw, 0, other_.connection().root(), XCB_MOD_MASK_ANY, escape, XCB_GRAB_MODE_ASYNC,
                 XCB_GRAB_MODE_ASYNC);
    other_.takePresses();

    grab();
    settle();
    xdotool({"key", "Escape"});
    settle();

    EXPECT_EQ(presses_, 0);
    EXPECT_THAT(other_.takePresses(), ElementsAre(escape));
    ASSERT_EQ(log_.lines().size(), 1U);
    EXPECT_EQ(log_.lines().front().category, "EscapeKey");
}

TEST_F(X11EscapeKeyTest, AChangeOfTheKeyboardLayoutIsFollowed) {
    grab();
    const QString spare = QString::number(other_.keycodeOf(0xffc9)); // F12
    outputOf("xmodmap", {"-e", "keycode " + spare + " = Escape"});
    settle();
    xdotool({"key", spare});
    EXPECT_TRUE(waitUntil([this] { return presses_ == 1; }, 1s));
    outputOf("xmodmap", {"-e", "keycode " + spare + " = F12"});
    settle();
    other_.takePresses();

    xdotool({"key", spare});
    settle();
    EXPECT_EQ(presses_, 1);
    EXPECT_THAT(other_.takePresses(), ElementsAre(spare.toInt()));
}

TEST_F(X11EscapeKeyTest, MayBeGivenBackFromWithinTheCall) {
    handle_ = key_.grab([this] {
        ++presses_;
        handle_.reset();
    });
    xdotool({"key", "Escape"});
    EXPECT_TRUE(waitUntil([this] { return presses_ == 1; }));
    settle();
    xdotool({"key", "Escape"});
    settle();
    EXPECT_EQ(presses_, 1);
}

TEST_F(X11EscapeKeyTest, WithoutAServerNothingIsCalled) {
    const QByteArray display = qgetenv("DISPLAY");
    qputenv("DISPLAY", ":4711");
    grab();
    qputenv("DISPLAY", display);
    xdotool({"key", "Escape"});
    settle();
    EXPECT_EQ(presses_, 0);
    EXPECT_EQ(log_.lines().size(), 1U);
}

} // namespace
} // namespace kestrelfen
