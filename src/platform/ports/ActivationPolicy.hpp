#pragma once

#include "base/Enumeration.hpp"

#include <functional>
#include <memory>
#include <vector>

namespace kestrelfen {

/// Whether the desktop lists the program among those that the person works with.
enum class ActivationPolicyKind { regular, accessory };

template <>
struct EnumerationTable<ActivationPolicyKind> {
    static constexpr std::array<EnumerationRow<ActivationPolicyKind>, 2> rows{{
        {ActivationPolicyKind::regular, "regular"},
        {ActivationPolicyKind::accessory, "accessory"},
    }};
};

/// What the decision needs to know of one of the program's own windows.
struct ProgramWindow {
    bool isVisible = false;
    bool isTitled = false;
    bool isPanel = false;
};

/// What can happen to one of the program's own windows. A window that is about to close still counts as
/// visible.
enum class ProgramWindowEvent { willClose, didBecomeKey };

/// The program's place in the desktop's list of tasks. Main thread only.
class ActivationPolicy {
  public:
    /// Destroying it ends the telling.
    class Observation {
      public:
        virtual ~Observation() = default;
    };

    virtual ~ActivationPolicy() = default;

    virtual std::vector<ProgramWindow> windows() const = 0;
    virtual ActivationPolicyKind current() const = 0;
    virtual void set(ActivationPolicyKind policy) = 0;
    /// Brings the program to the front.
    virtual void activate() = 0;
    /// Tells of every one of the program's windows, on the main thread.
    virtual std::unique_ptr<Observation> observe(ProgramWindowEvent event, std::function<void()> deliver) = 0;
};

} // namespace kestrelfen
