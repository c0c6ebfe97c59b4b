#pragma once

#include <functional>
#include <optional>
#include <string>

namespace kestrelfen {

/// Whether the system starts the program when the person logs in. Main thread only.
class LoginItem {
  public:
    /// Gets nothing on success, otherwise the system's description of what went wrong.
    using Done = std::function<void(std::optional<std::string> error)>;

    virtual ~LoginItem() = default;

    /// As the system has it now.
    virtual bool isEnabled() const = 0;

    /// `done` is called once: before this returns, or later on the main thread where the person is asked
    /// first.
    virtual void setEnabled(bool enabled, Done done) = 0;
};

} // namespace kestrelfen
