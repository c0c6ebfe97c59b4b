#include "ui/LaunchAtLogin.hpp"

#include "base/Translated.hpp"
#include "platform/ports/LoginItem.hpp"

namespace kestrelfen {

LaunchAtLogin::LaunchAtLogin(LoginItem& loginItem)
    : loginItem_(loginItem), isOn_(changes_, loginItem.isEnabled()) {}

void LaunchAtLogin::set(bool enabled) {
    if (enabled == isOn()) {
        return;
    }
    isOn_.set(enabled);
    loginItem_.setEnabled(
        enabled, lifeline_.guard([this](const std::optional<std::string>& failure) { finish(failure); }));
}

void LaunchAtLogin::finish(const std::optional<std::string>& failure) {
    error_.set(failure ? std::optional(translated("Couldn't update the login item: %1", {*failure}))
                       : std::nullopt);
    if (failure) {
        reload();
    }
}

void LaunchAtLogin::reload() {
    isOn_.set(loginItem_.isEnabled());
}

} // namespace kestrelfen
