#include "base/AllocationCounter.hpp"
#include "platform/JsonPreferencesFixture.hpp"
#include "platform/fake/FakePreferences.hpp"

#include <chrono>
#include <string>
#include <thread>

namespace kestrelfen {
namespace {

/// How often reading `preferences` takes memory, whether it finds the key or not.
std::uint64_t allocationsOfReads(Preferences& preferences) {
    const std::string key = "a key too long to be kept within a string itself";
    preferences.set(key, 1200.0);
    preferences.set("list", PreferenceStrings{"one", "two"});
    const auto before = allocationCount();
    const auto real = preferences.real(std::string_view(key));
    const auto* const list = preferences.strings("list");
    const auto absent = preferences.boolean("another key that is too long for that, and absent");
    const auto after = allocationCount();
    EXPECT_TRUE(real && list && !absent);
    return after - before;
}

using PreferencesReadCost = JsonPreferencesFixture;

TEST_F(PreferencesReadCost, aReadTakesNoMemory) {
    FakePreferences fake;
    EXPECT_EQ(allocationsOfReads(fake), 0U);
    EXPECT_EQ(allocationsOfReads(*open()), 0U);
}

TEST_F(PreferencesReadCost, aLookAtAnUnchangedFileReadsNothing) {
    constexpr int keys = 200;
    const auto preferences = open();
    for (int number = 0; number < keys; ++number) {
        preferences->set(std::to_string(number), true);
    }
    preferences->flush();
    constexpr auto untilDatesCanBeTrusted = std::chrono::milliseconds(30);
    std::this_thread::sleep_for(untilDatesCanBeTrusted);
    preferences->reloadIfChanged();
    const auto before = allocationCount();
    preferences->reloadIfChanged();
    EXPECT_LT(allocationCount() - before, keys / 10);
}

} // namespace
} // namespace kestrelfen
