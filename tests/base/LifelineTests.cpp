#include "base/Lifeline.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <type_traits>

namespace kestrelfen {
namespace {

TEST(Lifeline, aGuardedClosureRunsWhileItsOwnerLives) {
    const Lifeline lifeline;
    int runs = 0;
    auto guarded = lifeline.guard([&runs] { ++runs; });
    guarded();
    guarded();
    EXPECT_EQ(runs, 2);
}

TEST(Lifeline, aGuardedClosureDoesNothingOnceItsOwnerHasEnded) {
    std::optional<Lifeline> lifeline(std::in_place);
    int runs = 0;
    std::function<void()> guarded = lifeline->guard([&runs] { ++runs; });
    lifeline.reset();
    guarded();
    EXPECT_EQ(runs, 0);
}

TEST(Lifeline, aLaterOwnerAtTheSamePlaceDoesNotReviveIt) {
    std::optional<Lifeline> lifeline(std::in_place);
    int runs = 0;
    std::function<void()> guarded = lifeline->guard([&runs] { ++runs; });
    lifeline.emplace();
    guarded();
    EXPECT_EQ(runs, 0);
}

TEST(Lifeline, theArgumentsReachTheClosure) {
    const Lifeline lifeline;
    std::string heard;
    auto guarded = lifeline.guard(
        [&heard](const std::string& text, int number) { heard = text + std::to_string(number); });
    guarded(std::string("take "), 5);
    EXPECT_EQ(heard, "take 5");
}

TEST(Lifeline, anArgumentThatCanOnlyMoveReachesTheClosure) {
    const Lifeline lifeline;
    int heard = 0;
    auto guarded = lifeline.guard([&heard](std::unique_ptr<int> number) { heard = *number; });
    guarded(std::make_unique<int>(7));
    EXPECT_EQ(heard, 7);
}

TEST(Lifeline, aClosureMayEndItsOwner) {
    std::optional<Lifeline> lifeline(std::in_place);
    int runs = 0;
    std::function<void()> guarded = lifeline->guard([&] {
        ++runs;
        lifeline.reset();
    });
    guarded();
    guarded();
    EXPECT_EQ(runs, 1);
}

TEST(Lifeline, twoOwnersNeverShareALife) {
    static_assert(!std::is_copy_constructible_v<Lifeline> && !std::is_move_constructible_v<Lifeline>);
    static_assert(!std::is_copy_assignable_v<Lifeline> && !std::is_move_assignable_v<Lifeline>);
}

} // namespace
} // namespace kestrelfen
