#pragma once

#include "platform/ports/ActivationPolicy.hpp"

namespace kestrelfen {

/// Keeps the program out of the desktop's list of tasks unless one of its real windows is open. Main thread
/// only; it keeps no state.
class DockPresence {
  public:
    explicit DockPresence(ActivationPolicy& policy) : policy_(policy) {}

    /// From the windows as they stand.
    ActivationPolicyKind desiredPolicy() const;

    /// Brings the program to the desired policy, which it answers. Repeated calls never take the focus.
    ActivationPolicyKind apply() const;

  private:
    ActivationPolicy& policy_;
};

} // namespace kestrelfen
