#include "base/AllocationCounter.hpp"
#include "base/Heard.hpp"
#include "base/Observable.hpp"

#include <gtest/gtest.h>

#include <gmock/gmock.h>
#include <string>
#include <vector>

namespace kestrelfen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Property, onlyARealChangeIsTold) {
    Heard heard;
    Observers owner;
    Property<int> property(owner, 3);
    const auto own = property.observe(heard.listener("own"));
    const auto any = owner.add(heard.listener("owner"));
    property.set(3);
    EXPECT_THAT(heard.names, IsEmpty());
    property.set(4);
    EXPECT_THAT(heard.names, ElementsAre("own", "owner"));
    property.set(4);
    EXPECT_EQ(heard.names.size(), 2U);
    property.set(3);
    EXPECT_EQ(heard.names.size(), 4U);
}

TEST(Property, theNewValueStandsWhenItIsTold) {
    Observers owner;
    Property<std::string> property(owner, "old");
    std::vector<std::string> seen;
    const auto own = property.observe([&] { seen.push_back(property.get()); });
    const auto any = owner.add([&] { seen.push_back(property.get()); });
    property.set("new");
    EXPECT_THAT(seen, ElementsAre("new", "new"));
}

TEST(Property, aChangeIsNotToldToOtherPropertiesListeners) {
    Heard heard;
    Observers owner;
    Property<int> one(owner);
    Property<int> other(owner);
    const auto listening = other.observe(heard.listener("other"));
    one.set(1);
    EXPECT_THAT(heard.names, IsEmpty());
}

TEST(Property, aListenerMaySetTheValueAgain) {
    Observers owner;
    Property<int> property(owner);
    std::vector<int> seen;
    const auto own = property.observe([&] {
        seen.push_back(property.get());
        property.set(10);
    });
    property.set(1);
    EXPECT_EQ(property.get(), 10);
    EXPECT_THAT(seen, ElementsAre(1, 10));
}

TEST(Property, settingAndTellingAllocateNothing) {
    Observers owner;
    Property<int> property(owner);
    int calls = 0;
    const auto own = property.observe([&calls] { ++calls; });
    const std::uint64_t before = allocationCount();
    property.set(1);
    property.set(1);
    EXPECT_EQ(allocationCount(), before);
    EXPECT_EQ(calls, 1);
}

} // namespace
} // namespace kestrelfen
