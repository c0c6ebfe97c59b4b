#pragma once

#include "platform/fake/FakeApplications.hpp"
#include "platform/fake/FakePreferences.hpp"
#include "platform/linux/AtspiBrowserAccess.hpp"
#include "platform/linux/EventLoop.hpp"
#include "platform/linux/browser/AccessibilityService.hpp"
#include "platform/linux/browser/AccessibleProgram.hpp"
#include "platform/linux/browser/ProcessIdentity.hpp"
#include "platform/qt/QtMainQueue.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {

constexpr char chromeID[] = "com.google.Chrome";
constexpr char braveID[] = "com.brave.Browser";

/// The browsers of a desktop whose accessibility service is real, and whose accessibility is on at first.
class BrowserAccessTest : public testing::Test {
  protected:
    BrowserAccessTest();

    /// From now on the backend is another object, as after a restart of the program.
    void restart();

    /// The person sees that this process is a browser.
    void runs(std::int32_t process, const char* bundleIdentifier = chromeID);

    /// Asks as the tick does until there is an answer. "failed" where it could not be read, "none" where
    /// there is no question.
    std::string read(const char* bundleIdentifier = chromeID);

    /// One question of the tick; "pending" while the answer is on its way.
    std::string ask(const char* bundleIdentifier = chromeID);

    /// From memory.
    AutomationStatus status(const char* bundleIdentifier = chromeID);
    bool becomes(AutomationStatus expected, const char* bundleIdentifier = chromeID);

    /// Off the main thread, as the person's click does. Runs the event loop until the answer is there.
    AutomationStatus click(const char* bundleIdentifier = chromeID);

    bool remembersTurningOn() const { return preferences_.boolean("accessibilityTurnedOn").value_or(false); }

    BusDaemon sessionBus_{"DBUS_SESSION_BUS_ADDRESS"};
    AccessibilityService service_{sessionBus_};
    FakeApplications applications_;
    FakePreferences preferences_;
    ProcessIdentity identity_;
    QtMainQueue mainQueue_;
    BusLink link_{BusLink::Bus::session};
    std::optional<AtspiBrowserAccess> access_;
};

} // namespace kestrelfen
