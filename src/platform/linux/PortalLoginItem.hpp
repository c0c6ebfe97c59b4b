#pragma once

#include "platform/linux/PortalRequests.hpp"
#include "platform/ports/LoginItem.hpp"
#include "platform/ports/Preferences.hpp"

namespace kestrelfen {

/// For a program that runs inside a sandbox, where only the desktop's portal may write the entry, and may ask
/// the person first. The portal cannot be asked for the present state: its last answer is kept among the
/// preferences. Main thread only; it never waits. What it is given outlives this object.
class PortalLoginItem final : public LoginItem {
  public:
    static constexpr const char* grantedKey = "launchAtLoginGranted";

    PortalLoginItem(PortalRequests& requests, Preferences& preferences)
        : requests_(requests), preferences_(preferences) {}

    bool isEnabled() const override;
    void setEnabled(bool enabled, Done done) override;

  private:
    PortalRequests& requests_;
    Preferences& preferences_;
};

} // namespace kestrelfen
