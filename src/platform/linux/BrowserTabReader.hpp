#pragma once

#include "platform/linux/BrowserFinder.hpp"

#include <functional>
#include <string>
#include <vector>

namespace kestrelfen {

/// Reads over the accessibility bus which page the active tab of a browser shows, one browser at a time. Of
/// the address only its origin is kept; nothing is read of private windows. Main thread only; what it is made
/// with outlives it.
class BrowserTabReader final {
  public:
    struct Reading {
        enum class Outcome {
            read,
            /// The browser does not speak on the accessibility bus.
            notOnBus,
            /// Somebody did not answer in time.
            late,
        };
        Outcome outcome = Outcome::read;
        /// Empty without a window, in a private one, and on a page that is not of the web.
        std::string origin;
    };
    using Told = std::function<void(const Reading& reading)>;

    BrowserTabReader(AccessibilityBus& bus, ProgramIdentity& identity);

    /// Gives up what it is about. `told` is called once, unless it is given up, and must not destroy this.
    void read(const SoughtBrowser& browser, Told told);
    void cancel();

  private:
    struct Window {
        AccessibleObject object;
        bool isActive = false;
        bool isNamed = false;
        bool isOrdinary = false;
    };

    void askForWindows(const AccessibleObjects& programs);
    void askAboutWindows();
    void takeName(std::size_t window, const QDBusMessage& answer);
    void chooseWindow();
    const Window* windowInUse() const;
    void askForDocument(const AccessibleObject& window);
    void askForAddress(const AccessibleObject& window);
    void takeAddress(const QDBusMessage& answer);
    void waitForDocument(const AccessibleObject& window);
    void end(const Reading& reading);

    BrowserFinder finder_;
    AccessibleCalls calls_;
    Told told_;
    std::string bundleIdentifier_;
    std::vector<Window> windows_;
    AccessibleObjects documents_;
    /// Absent until the document tells its address.
    std::optional<std::string> origin_;
    int looksLeft_ = 0;
};

} // namespace kestrelfen
