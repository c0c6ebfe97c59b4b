#include "ui/OnboardingView/Onboarding.hpp"

#include "platform/ports/Preferences.hpp"

namespace kestrelfen {

Onboarding::Onboarding(const Platform& platform, std::function<void()> onFinish)
    : platform_(platform), onFinish_(std::move(onFinish)), launchAtLogin_(platform.loginItem),
      launchAtLoginObservation_(launchAtLogin_.observe([this] { changes_.notify(); })) {}

void Onboarding::setUp() {
    startOver();
    page_.set(OnboardingPage::cadence);
}

void Onboarding::useDefaults() {
    apply(CadencePreset::standard, platform_.preferences);
    onFinish_();
}

void Onboarding::back() {
    startOver();
}

void Onboarding::start() {
    apply(preset(), platform_.preferences);
    onFinish_();
}

void Onboarding::startOver() {
    page_.set(OnboardingPage::welcome);
    preset_.set(CadencePreset::standard);
    launchAtLogin_.forgetError();
    launchAtLogin_.reload();
}

} // namespace kestrelfen
