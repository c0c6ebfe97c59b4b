#pragma once

#include "base/Enumeration.hpp"
#include "base/Observable.hpp"
#include "core/CadencePreset.hpp"
#include "platform/ports/Platform.hpp"
#include "ui/LaunchAtLogin.hpp"

#include <functional>

namespace kestrelfen {

/// The pages of the first run, in order.
enum class OnboardingPage { welcome, cadence };

template <>
struct EnumerationTable<OnboardingPage> {
    static constexpr std::array<EnumerationRow<OnboardingPage>, 2> rows{{
        {OnboardingPage::welcome, "welcome"},
        {OnboardingPage::cadence, "cadence"},
    }};
};

/// The first run as it stands on the screen, and what its controls do. Main thread only.
class Onboarding {
  public:
    /// `onFinish` ends the first run and starts the timer.
    Onboarding(const Platform& platform, std::function<void()> onFinish);

    OnboardingPage page() const { return page_.get(); }
    /// Written only when the person starts.
    CadencePreset preset() const { return preset_.get(); }
    /// The second page's switch.
    LaunchAtLogin& launchAtLogin() { return launchAtLogin_; }
    const LaunchAtLogin& launchAtLogin() const { return launchAtLogin_; }

    // The first page's controls.
    void setUp();
    void useDefaults();

    // The second page's.
    void choosePreset(CadencePreset preset) { preset_.set(preset); }
    void back();
    void start();

    /// As if first shown: what was written stays.
    void startOver();

    /// Tells of every real change of all that can be read here.
    [[nodiscard]] Subscription observe(std::function<void()> changed) {
        return changes_.add(std::move(changed));
    }

  private:
    const Platform platform_;
    const std::function<void()> onFinish_;
    Observers changes_;
    Property<OnboardingPage> page_{changes_};
    Property<CadencePreset> preset_{changes_, CadencePreset::standard};
    LaunchAtLogin launchAtLogin_;
    Subscription launchAtLoginObservation_;
};

} // namespace kestrelfen
