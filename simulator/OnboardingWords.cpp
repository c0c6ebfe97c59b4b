#include "Commands.hpp"
#include "Readers.hpp"
#include "ScenarioError.hpp"
#include "Simulation.hpp"
#include "Values.hpp"
#include "ui/OnboardingView/OnboardingContent.hpp"

namespace kestrelfen {

namespace {

/// The first run if that page of it is up, or null.
Onboarding* onboardingOn(OnboardingPage page, Simulation& simulation) {
    SimulatedProgram& program = simulation.program();
    const bool isUp = program.delegate().needsOnboarding() && program.onboarding().page() == page;
    return isUp ? &program.onboarding() : nullptr;
}

struct Control {
    std::string_view name;
    OnboardingPage page;
    void (Onboarding::*click)();
};

constexpr std::array<Control, 4> controls{{
    {"set-up", OnboardingPage::welcome, &Onboarding::setUp},
    {"defaults", OnboardingPage::welcome, &Onboarding::useDefaults},
    {"back", OnboardingPage::cadence, &Onboarding::back},
    {"start", OnboardingPage::cadence, &Onboarding::start},
}};

void choosePreset(Simulation& simulation, Arguments& arguments) {
    const std::string& name = arguments.take("NAME");
    arguments.end();
    const auto preset = fromRawValue<CadencePreset>(name);
    if (!preset) {
        throw ScenarioError(quoted(name) + " is no preset");
    }
    if (Onboarding* const onboarding = onboardingOn(OnboardingPage::cadence, simulation)) {
        onboarding->choosePreset(*preset);
    } else {
        notAvailable();
    }
}

Json objectOf(const OnboardingContent& content, CadencePreset preset) {
    const auto& [longBreakEvery, allowSkip, launchAtLogin] = content.rows;
    return {{"visible", true},
            {"page", rawValue(content.page)},
            {"preset", rawValue(preset)},
            {"longBreakEvery", std::get<StepperState>(longBreakEvery.control).value},
            {"caption", jsonOf(longBreakEvery.caption)},
            {"allowSkip", std::get<ToggleState>(allowSkip.control).isOn},
            {"launchAtLogin", std::get<ToggleState>(launchAtLogin.control).isOn},
            {"error", jsonOf(content.error)}};
}

Json onboardingReading(Simulation& simulation, Arguments& arguments) {
    arguments.end();
    SimulatedProgram& program = simulation.program();
    if (!program.delegate().needsOnboarding()) {
        return absentView({"visible", "page", "preset", "longBreakEvery", "caption", "allowSkip",
                           "launchAtLogin", "error"});
    }
    Onboarding& onboarding = program.onboarding();
    onboarding.launchAtLogin().reload();
    return objectOf(OnboardingContent::of(simulation.world().preferences, onboarding), onboarding.preset());
}

constexpr std::array<NamedCommand, 1> commands{
    {{"choose-preset", choosePreset, rawValueForms<CadencePreset>}}};
constexpr std::array<NamedReader, 1> readers{{{"onboarding", onboardingReading}}};

} // namespace

void pressOnboarding(Simulation& simulation, Arguments& arguments) {
    const std::string name = arguments.take("the control");
    arguments.end();
    for (const Control& control : controls) {
        if (control.name == name) {
            if (Onboarding* const onboarding = onboardingOn(control.page, simulation)) {
                (onboarding->*control.click)();
            } else {
                notAvailable();
            }
            return;
        }
    }
    throw ScenarioError(quoted(name) + " is no control of the onboarding");
}

FormList onboardingControlForms() {
    FormList forms;
    for (const Control& control : controls) {
        forms.emplace_back(control.name);
    }
    return forms;
}

Commands onboardingCommands() {
    return commands;
}

Readers onboardingReaders() {
    return readers;
}

} // namespace kestrelfen
