#include "platform/fake/FakeClock.hpp"
#include "platform/fake/FakeMainQueue.hpp"
#include "platform/posix/AbsentBrowserAccess.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

TEST(AbsentBrowserAccessTest, NoBrowserRunsAndNoneIsAsked) {
    FakeClock clock{Date{}};
    FakeMainQueue queue(clock);
    AbsentBrowserAccess access(queue);
    EXPECT_FALSE(access.isAvailable());
    EXPECT_FALSE(access.run("com.google.Chrome", "a script"));
    EXPECT_EQ(access.permissionStatus("com.google.Chrome", false), -600);
    EXPECT_EQ(access.permissionStatus("com.google.Chrome", true), -600);

    std::optional<int> answer;
    access.askOffMain([&access] { return access.permissionStatus("com.google.Chrome", true); },
                      [&answer](std::optional<int> status) { answer = status; });
    EXPECT_FALSE(answer);
    queue.drain();
    EXPECT_EQ(answer, -600);

    bool isPrepared = false;
    access.prepareLaunch([&isPrepared] { isPrepared = true; });
    EXPECT_TRUE(isPrepared);
}

} // namespace
} // namespace kestrelfen
