#include "ui/OnboardingView/OnboardingContent.hpp"

#include "core/Formatters.hpp"
#include "core/Settings.hpp"
#include "ui/SettingsWindowView/PaneRows.hpp"

namespace kestrelfen {

namespace {

/// Told on the page, whatever the settings say.
constexpr double toldLongBreakSeconds = 300.0;

std::string ordinal(std::int64_t number) {
    constexpr std::array<const char*, 4> spelled{"first", "second", "third", "fourth"};
    const bool isSpelled = number >= 1 && number <= std::int64_t{spelled.size()};
    return isSpelled ? spelled[static_cast<std::size_t>(number - 1)] : std::to_string(number) + "th";
}

PaneRow longBreakRow(const Preferences& preferences) {
    const std::int64_t every =
        Settings::integer(preferences, Steppers::longBreakEvery.key(), Steppers::cyclesFallback);
    return cyclesRow(preferences, Formatters::duration(toldLongBreakSeconds) + " break on the " +
                                      ordinal(every) + " cycle");
}

std::vector<OnboardingContent::PresetCard> presetCards(CadencePreset selected) {
    std::vector<OnboardingContent::PresetCard> cards;
    for (const CadencePreset preset : allCases<CadencePreset>()) {
        cards.push_back({preset, std::string(label(preset)), headline(preset), std::string(caption(preset)),
                         preset == selected});
    }
    return cards;
}

std::string placeOf(OnboardingPage page) {
    return "Page " + std::to_string(static_cast<int>(page) + 1) + " of " +
           std::to_string(allCases<OnboardingPage>().size());
}

OnboardingContent::Page welcomePage() {
    return {"Welcome to Kestrelfen",
            "Every 20 minutes, look at something 20 feet away for 20 seconds. Kestrelfen keeps the clock so "
            "you don't have to.",
            "Set Up My Cadence", "Use the Defaults — 20 / 20 / 5"};
}

std::array<OnboardingContent::Promise, 3> allPromises() {
    return {{
        {"It can't drift", "The timer reads the wall clock, so a closed lid doesn't shift the schedule."},
        {"It won't nag you while you're away",
         "Sleep, screen lock, display sleep and idle all pause it automatically."},
        {"It keeps its own receipts",
         "Break history and honest screen time, stored locally. No permissions required."},
    }};
}

} // namespace

OnboardingContent OnboardingContent::of(const Preferences& preferences, const Onboarding& onboarding) {
    return {
        .page = onboarding.page(),
        .spokenPage = placeOf(onboarding.page()),
        .welcome = welcomePage(),
        .promises = allPromises(),
        .cadence = {"Pick a Cadence", "Every value here is adjustable later in Settings.",
                    "Start the First Interval", "Back"},
        .presets = presetCards(onboarding.preset()),
        .rows = {longBreakRow(preferences),
                 toggleRow(preferences, {"showSkipButton", "Allow skipping a break",
                                         "Skips are recorded as skips, not completed breaks"}),
                 launchAtLoginRow(onboarding.launchAtLogin(), "Registered through SMAppService")},
        .error = onboarding.launchAtLogin().error(),
    };
}

} // namespace kestrelfen
