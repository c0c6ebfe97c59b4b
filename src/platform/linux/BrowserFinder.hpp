#pragma once

#include "platform/linux/AccessibleCalls.hpp"
#include "platform/linux/AccessibleObject.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace kestrelfen {

class ProgramIdentity;

/// A browser to be found on the accessibility bus: one of the processes, or what the identity takes for it.
struct SoughtBrowser {
    std::string bundleIdentifier;
    std::vector<std::int32_t> processes;
};

/// Finds out which of the programs on the accessibility bus are a browser, without asking any program. Main
/// thread only; what it is made with outlives it.
class BrowserFinder final {
  public:
    /// None when the browser is not on the bus; absent when the bus did not answer in time.
    using Found = std::function<void(const std::optional<AccessibleObjects>& programs)>;

    BrowserFinder(AccessibilityBus& bus, ProgramIdentity& identity);

    /// Gives up what it is about. `found` is called once, unless it is given up, and must not destroy this.
    void find(SoughtBrowser browser, Found found);
    void cancel();

  private:
    void askForPrograms();
    void askForProcesses();
    void forgetThoseThatWent();
    void tell();
    AccessibleObjects programsWhere(const std::function<bool(std::uint32_t process)>& isMeant) const;
    bool isBrowser(std::uint32_t process) const;
    bool isIdentifiedAsBrowser(std::uint32_t process) const;
    void end(const std::optional<AccessibleObjects>& programs);

    AccessibilityBus& bus_;
    ProgramIdentity& identity_;
    SoughtBrowser browser_;
    Found found_;
    std::optional<AccessibleObjects> programs_;
    AccessibleCalls calls_;
};

} // namespace kestrelfen
