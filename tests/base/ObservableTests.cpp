#include "base/AllocationCounter.hpp"
#include "base/Heard.hpp"
#include "base/Observable.hpp"

#include <gtest/gtest.h>

#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <string>
#include <vector>

namespace kestrelfen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Observers, areToldInTheOrderInWhichTheyCame) {
    Heard heard;
    Observers observers;
    const auto first = observers.add(heard.listener("first"));
    const auto second = observers.add(heard.listener("second"));
    const auto third = observers.add(heard.listener("third"));
    observers.notify();
    EXPECT_THAT(heard.names, ElementsAre("first", "second", "third"));
}

TEST(Observers, anEndedSubscriptionHearsNoMore) {
    Heard heard;
    Observers observers;
    auto first = observers.add(heard.listener("first"));
    const auto second = observers.add(heard.listener("second"));
    first.cancel();
    first.cancel();
    observers.notify();
    EXPECT_THAT(heard.names, ElementsAre("second"));
}

TEST(Observers, aSubscriptionEndsWithItsScope) {
    Heard heard;
    Observers observers;
    { const auto subscription = observers.add(heard.listener("gone")); }
    observers.notify();
    EXPECT_THAT(heard.names, IsEmpty());
}

TEST(Observers, aMovedSubscriptionListensOn) {
    Heard heard;
    Observers observers;
    Subscription moved;
    {
        Subscription original = observers.add(heard.listener("first"));
        moved = std::move(original);
    }
    const Subscription movedOn(std::move(moved));
    observers.notify();
    EXPECT_THAT(heard.names, ElementsAre("first"));
}

TEST(Observers, aSubscriptionThatIsReplacedEnds) {
    Heard heard;
    Observers observers;
    Subscription subscription = observers.add(heard.listener("old"));
    subscription = observers.add(heard.listener("new"));
    observers.notify();
    EXPECT_THAT(heard.names, ElementsAre("new"));
}

TEST(Observers, aSubscriptionAssignedToItselfListensOn) {
    Heard heard;
    Observers observers;
    Subscription subscription = observers.add(heard.listener("first"));
    Subscription& same = subscription;
    subscription = std::move(same);
    observers.notify();
    EXPECT_THAT(heard.names, ElementsAre("first"));
}

TEST(Observers, aSubscriptionMayOutliveItsList) {
    Heard heard;
    auto observers = std::make_unique<Observers>();
    Subscription early = observers->add(heard.listener("early"));
    const Subscription late = observers->add(heard.listener("late"));
    observers.reset();
    early.cancel();
    EXPECT_THAT(heard.names, IsEmpty());
}

TEST(Observers, aListenerMayRemoveItselfWhileItIsTold) {
    Heard heard;
    Observers observers;
    Subscription self;
    self = observers.add([&] {
        heard.names.emplace_back("once");
        self.cancel();
    });
    const auto other = observers.add(heard.listener("other"));
    observers.notify();
    observers.notify();
    EXPECT_THAT(heard.names, ElementsAre("once", "other", "other"));
}

TEST(Observers, aListenerThatRemovesItselfKeepsWhatItHoldsUntilItReturns) {
    Observers observers;
    Subscription self;
    std::string seen;
    self = observers.add([&self, &seen, text = std::string("a text too long to be kept in place")] {
        self.cancel();
        seen = text;
    });
    observers.notify();
    EXPECT_EQ(seen, "a text too long to be kept in place");
}

TEST(Observers, aListenerRemovedBeforeItsTurnIsNotTold) {
    Heard heard;
    Observers observers;
    Subscription later;
    const auto first = observers.add([&] { later.cancel(); });
    later = observers.add(heard.listener("later"));
    const auto last = observers.add(heard.listener("last"));
    observers.notify();
    EXPECT_THAT(heard.names, ElementsAre("last"));
}

TEST(Observers, aListenerRemovedAfterItsTurnHasBeenTold) {
    Heard heard;
    Observers observers;
    Subscription first = observers.add(heard.listener("first"));
    const auto second = observers.add([&] { first.cancel(); });
    observers.notify();
    observers.notify();
    EXPECT_THAT(heard.names, ElementsAre("first"));
}

TEST(Observers, aListenerAddedDuringATellingIsFirstToldTheNextTime) {
    Heard heard;
    Observers observers;
    std::vector<Subscription> added;
    const auto first = observers.add([&] {
        if (added.empty()) {
            for (int count = 0; count < 20; ++count) {
                added.push_back(observers.add(heard.listener("new")));
            }
        }
    });
    observers.notify();
    EXPECT_THAT(heard.names, IsEmpty());
    observers.notify();
    EXPECT_EQ(heard.names.size(), 20U);
}

TEST(Observers, aTellingWithinATellingReachesAllAndRemovalsHold) {
    Heard heard;
    Observers observers;
    bool isInner = false;
    Subscription fleeting;
    const auto first = observers.add([&] {
        heard.names.emplace_back("first");
        if (!std::exchange(isInner, true)) {
            observers.notify();
        }
    });
    fleeting = observers.add([&] {
        heard.names.emplace_back("fleeting");
        fleeting.cancel();
    });
    const auto last = observers.add(heard.listener("last"));
    observers.notify();
    EXPECT_THAT(heard.names, ElementsAre("first", "first", "fleeting", "last", "last"));
}

TEST(Observers, aListEndedByAListenerTellsNoFurther) {
    Heard heard;
    auto observers = std::make_unique<Observers>();
    const auto first = observers->add([&] { observers.reset(); });
    const auto second = observers->add(heard.listener("second"));
    observers->notify();
    EXPECT_EQ(observers, nullptr);
    EXPECT_THAT(heard.names, IsEmpty());
}

TEST(Observers, aListenersEndMayEndOtherSubscriptionsOfTheList) {
    Heard heard;
    Observers observers;
    auto held = std::make_shared<std::vector<Subscription>>();
    held->push_back(observers.add(heard.listener("held before")));
    Subscription holder = observers.add([held] {});
    held->push_back(observers.add(heard.listener("held after")));
    const auto other = observers.add(heard.listener("other"));
    held.reset();
    holder.cancel();
    observers.notify();
    EXPECT_THAT(heard.names, ElementsAre("other"));
}

TEST(Observers, theSameHoldsForAListenerThatEndsDuringATelling) {
    Heard heard;
    Observers observers;
    auto held = std::make_shared<std::vector<Subscription>>();
    held->push_back(observers.add(heard.listener("held")));
    Subscription holder;
    holder = observers.add([&holder, held] { holder.cancel(); });
    const auto other = observers.add(heard.listener("other"));
    held.reset();
    observers.notify();
    observers.notify();
    EXPECT_THAT(heard.names, ElementsAre("held", "other", "other"));
}

TEST(Observers, tellingAllocatesNothing) {
    Observers observers;
    int calls = 0;
    const auto first = observers.add([&calls] { ++calls; });
    const auto second = observers.add([&calls] { ++calls; });
    const std::uint64_t before = allocationCount();
    observers.notify();
    EXPECT_EQ(allocationCount(), before);
    EXPECT_EQ(calls, 2);
    EXPECT_GT(before, 0U);
}

} // namespace
} // namespace kestrelfen
