#include "platform/linux/browser/BrowserAccessTest.hpp"

namespace kestrelfen {

BrowserAccessTest::BrowserAccessTest() {
    service_.set("IsEnabled", true);
    restart();
    EXPECT_TRUE(waitUntil([this] { return ask("nobody") != "none"; }));
}

void BrowserAccessTest::restart() {
    access_.reset();
    access_.emplace(AtspiBrowserAccess::Services{link_, applications_, identity_, preferences_, mainQueue_});
}

void BrowserAccessTest::runs(std::int32_t process, const char* bundleIdentifier) {
    applications_.start({bundleIdentifier, "Browser", process});
}

std::string BrowserAccessTest::ask(const char* bundleIdentifier) {
    const auto result = access_->run(bundleIdentifier, "a script");
    if (!result) {
        return "none";
    }
    if (std::holds_alternative<BrowserAccess::ScriptPending>(*result)) {
        return "pending";
    }
    const auto* const text = std::get_if<std::optional<std::string>>(&*result);
    return text ? text->value_or("no text") : "failed";
}

std::string BrowserAccessTest::read(const char* bundleIdentifier) {
    std::string answer;
    EXPECT_TRUE(waitUntil([&] { return (answer = ask(bundleIdentifier)) != "pending"; }));
    return answer;
}

AutomationStatus BrowserAccessTest::status(const char* bundleIdentifier) {
    return static_cast<AutomationStatus>(access_->permissionStatus(bundleIdentifier, false).value_or(1));
}

bool BrowserAccessTest::becomes(AutomationStatus expected, const char* bundleIdentifier) {
    return waitUntil([&] { return status(bundleIdentifier) == expected; });
}

AutomationStatus BrowserAccessTest::click(const char* bundleIdentifier) {
    std::optional<std::optional<int>> answer;
    access_->askOffMain(
        [this, bundleIdentifier] { return access_->permissionStatus(bundleIdentifier, true); },
        [&](std::optional<int> status) { answer = status; });
    EXPECT_TRUE(waitUntil([&] { return answer.has_value(); }, std::chrono::seconds(15)));
    return static_cast<AutomationStatus>(answer.value_or(1).value_or(1));
}

} // namespace kestrelfen
