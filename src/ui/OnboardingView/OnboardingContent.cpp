#include "ui/OnboardingView/OnboardingContent.hpp"

#include "base/Translated.hpp"
#include "core/Formatters.hpp"
#include "core/Settings.hpp"
#include "ui/SettingsWindowView/PaneRows.hpp"

namespace kestrelfen {

namespace {

/// Told on the page, whatever the settings say.
constexpr double toldLongBreakSeconds = 300.0;

std::string longBreakCaption(std::int64_t cycle) {
    constexpr std::array<std::string_view, 4> spelled{
        toTranslate("%1 break on the first cycle"), toTranslate("%1 break on the second cycle"),
        toTranslate("%1 break on the third cycle"), toTranslate("%1 break on the fourth cycle")};
    const bool isSpelled = cycle >= 1 && cycle <= std::int64_t{spelled.size()};
    const std::string length = Formatters::duration(toldLongBreakSeconds);
    return isSpelled ? translated(spelled[static_cast<std::size_t>(cycle - 1)], {length})
                     : translated("%1 break on the %2th cycle", {length, std::to_string(cycle)});
}

PaneRow longBreakRow(const Preferences& preferences) {
    const std::int64_t every =
        Settings::integer(preferences, Steppers::longBreakEvery.key(), Steppers::cyclesFallback);
    return cyclesRow(preferences, longBreakCaption(every));
}

std::vector<OnboardingContent::PresetCard> presetCards(CadencePreset selected) {
    std::vector<OnboardingContent::PresetCard> cards;
    for (const CadencePreset preset : allCases<CadencePreset>()) {
        cards.push_back({preset, translated(label(preset)), headline(preset), translated(caption(preset)),
                         preset == selected});
    }
    return cards;
}

std::string placeOf(OnboardingPage page) {
    return translated("Page %1 of %2", {std::to_string(static_cast<int>(page) + 1),
                                        std::to_string(allCases<OnboardingPage>().size())});
}

OnboardingContent::Page welcomePage() {
    return {
        translated("Welcome to Kestrelfen"),
        translated(
            "Every 20 minutes, look at something 20 feet away for 20 seconds. Kestrelfen keeps the clock so "
            "you don't have to."),
        translated("Set Up My Cadence"), translated("Use the Defaults — 20 / 20 / 5")};
}

std::array<OnboardingContent::Promise, 3> allPromises() {
    return {{
        {translated("It can't drift"),
         translated("The timer reads the wall clock, so a closed lid doesn't shift the schedule.")},
        {translated("It won't nag you while you're away"),
         translated("Sleep, screen lock, display sleep and idle all pause it automatically.")},
        {translated("It keeps its own receipts"),
         translated("Break history and honest screen time, stored locally. No permissions required.")},
    }};
}

} // namespace

OnboardingContent OnboardingContent::of(const Preferences& preferences, const Onboarding& onboarding) {
    return {
        .page = onboarding.page(),
        .spokenPage = placeOf(onboarding.page()),
        .welcome = welcomePage(),
        .promises = allPromises(),
        .cadence = {translated("Pick a Cadence"),
                    translated("Every value here is adjustable later in Settings."),
                    translated("Start the First Interval"), translated("Back")},
        .presets = presetCards(onboarding.preset()),
        .rows = {longBreakRow(preferences),
                 toggleRow(preferences, {"showSkipButton", translated("Allow skipping a break"),
                                         translated("Skips are recorded as skips, not completed breaks")}),
                 launchAtLoginRow(onboarding.launchAtLogin(), translated("Registered through SMAppService"))},
        .error = onboarding.launchAtLogin().error(),
    };
}

} // namespace kestrelfen
