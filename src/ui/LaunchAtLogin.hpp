#pragma once

#include "base/Lifeline.hpp"
#include "base/Observable.hpp"

#include <functional>
#include <optional>
#include <string>

namespace kestrelfen {

class LoginItem;

/// The switch that makes the program start when the person logs in, and what is said when that fails. Main
/// thread only.
class LaunchAtLogin {
  public:
    /// What the switch goes by among the controls that are bound to preferences.
    static constexpr const char* key = "launchAtLogin";

    explicit LaunchAtLogin(LoginItem& loginItem);

    /// As the switch stands on the screen.
    bool isOn() const { return isOn_.get(); }

    /// Why the last change failed; absent when it did not.
    const std::optional<std::string>& error() const { return error_.get(); }

    /// What the switch does. Nothing when it stands so already. After a failure it stands as the system has
    /// it.
    void set(bool enabled);

    /// The switch as the system has it now. What was said stays.
    void reload();

    void forgetError() { error_.set(std::nullopt); }

    /// Tells of every real change of both.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return changes_.add(std::move(changed));
    }

  private:
    void finish(const std::optional<std::string>& failure);

    LoginItem& loginItem_;
    Observers changes_;
    Property<bool> isOn_;
    Property<std::optional<std::string>> error_{changes_};
    Lifeline lifeline_;
};

} // namespace kestrelfen
