#include "sensing/DockPresence.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

bool isReal(const ProgramWindow& window) {
    return window.isVisible && window.isTitled && !window.isPanel;
}

} // namespace

ActivationPolicyKind DockPresence::desiredPolicy() const {
    const auto windows = policy_.windows();
    return std::any_of(windows.begin(), windows.end(), isReal) ? ActivationPolicyKind::regular
                                                               : ActivationPolicyKind::accessory;
}

ActivationPolicyKind DockPresence::apply() const {
    const ActivationPolicyKind desired = desiredPolicy();
    if (desired == policy_.current()) {
        return desired;
    }
    policy_.set(desired);
    if (desired == ActivationPolicyKind::regular) {
        policy_.activate();
    }
    return desired;
}

} // namespace kestrelfen
