#include "ui/SettingsWindowView/PaneRows.hpp"

#include "base/Fault.hpp"
#include "base/Translated.hpp"
#include "core/Formatters.hpp"
#include "core/Settings.hpp"
#include "ui/LaunchAtLogin.hpp"
#include "ui/SettingsWindowView/SettingChoice.hpp"

namespace kestrelfen {

namespace {

const SettingChoice& choiceOf(std::string_view key) {
    const SettingChoice* const choice = SettingChoice::find(key);
    if (!choice) {
        fault("a control without a preference");
    }
    return *choice;
}

PaneRow row(RowText text) {
    return {.key = std::string(text.key),
            .title = std::move(text.title),
            .caption = std::move(text.caption),
            .control = {}};
}

} // namespace

PaneRow stepperRow(const Stepper& stepper, const Preferences& preferences, RowText text, std::string shown) {
    PaneRow result = row(std::move(text));
    result.control = StepperState{.value = std::move(shown),
                                  .canDecrement = stepper.can(StepDirection::down, preferences),
                                  .canIncrement = stepper.can(StepDirection::up, preferences),
                                  .decrementLabel = translated("Decrease %1", {result.title}),
                                  .incrementLabel = translated("Increase %1", {result.title})};
    return result;
}

PaneRow durationRow(const Stepper& stepper, const Preferences& preferences, std::string title,
                    std::optional<std::string> caption) {
    return stepperRow(stepper, preferences, {stepper.key(), std::move(title), std::move(caption)},
                      Formatters::duration(stepper.value(preferences)));
}

PaneRow cyclesRow(const Preferences& preferences, std::optional<std::string> caption) {
    const Stepper& stepper = Steppers::longBreakEvery;
    const std::int64_t cycles = Settings::integer(preferences, stepper.key(), Steppers::cyclesFallback);
    return stepperRow(stepper, preferences,
                      {stepper.key(), translated("Long break every"), std::move(caption)},
                      translatedCount(cycles, "%1 cycles", "%1 cycles"));
}

PaneRow toggleRow(const Preferences& preferences, RowText text) {
    const bool isOn = choiceOf(text.key).selected(preferences) == std::size_t{1};
    PaneRow result = row(std::move(text));
    result.control = ToggleState{isOn};
    return result;
}

PaneRow launchAtLoginRow(const LaunchAtLogin& launchAtLogin, std::string caption) {
    PaneRow result = row({LaunchAtLogin::key, translated("Launch at login"), std::move(caption)});
    result.control = ToggleState{launchAtLogin.isOn()};
    return result;
}

PaneRow pillsRow(const Preferences& preferences, RowText text, PillsEmphasis emphasis) {
    const SettingChoice& choice = choiceOf(text.key);
    PillsState pills{.selected = choice.selected(preferences),
                     .accentSelection = emphasis == PillsEmphasis::accent};
    for (const SettingChoice::Option& option : choice.options()) {
        pills.options.push_back({option.word, option.label()});
    }
    PaneRow result = row(std::move(text));
    result.control = std::move(pills);
    return result;
}

std::vector<PaneRow> cards(const Preferences& preferences, std::string_view key,
                           const std::vector<std::string>& captions) {
    const SettingChoice& choice = choiceOf(key);
    std::vector<PaneRow> rows;
    for (const SettingChoice::Option& option : choice.options()) {
        PaneRow card = row({key, option.label(), captions.at(rows.size())});
        card.control =
            CardState{.isSelected = choice.selected(preferences) == rows.size(), .word = option.word};
        rows.push_back(std::move(card));
    }
    return rows;
}

void markInvalid(PaneRow& row) {
    if (auto* const stepper = std::get_if<StepperState>(&row.control)) {
        stepper->isInvalid = true;
        row.captionTint = "amber";
    }
}

} // namespace kestrelfen
