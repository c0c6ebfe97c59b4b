#pragma once

#include "base/Date.hpp"
#include "sensing/Browser.hpp"

#include <optional>
#include <string>

namespace kestrelfen {

class BrowserScripting;
struct RunningApplication;

/// The domain that the person looks at, asked of an enabled browser in front at most once in a while. Main
/// thread only.
class DomainCache {
  public:
    /// How long an answer stays in use, in seconds. While the next one is on its way it stays for as long
    /// again.
    static constexpr double lifetime = 5.0;

    DomainCache(const BrowserScripting& browserScripting, const Preferences& preferences)
        : browserScripting_(browserScripting), preferences_(preferences) {}

    /// Null when there is none. Valid until the next call.
    const std::string* currentDomain(const RunningApplication& application, Date now);

  private:
    struct CachedDomain {
        Browser browser;
        std::optional<std::string> domain;
        Date resolvedAt;
    };

    void refresh(Browser browser, Date now);
    bool isYounger(Browser browser, Date now, double seconds) const;

    const BrowserScripting& browserScripting_;
    const Preferences& preferences_;
    std::optional<CachedDomain> cached_;
};

} // namespace kestrelfen
