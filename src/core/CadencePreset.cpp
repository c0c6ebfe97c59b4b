#include "core/CadencePreset.hpp"

#include "core/Settings.hpp"

#include <cstdint>

namespace kestrelfen {

namespace {

struct Lengths {
    double work;
    double rest;
};

constexpr std::array<Lengths, 3> lengths{{{1800.0, 20.0}, {1200.0, 20.0}, {900.0, 30.0}}};

const Lengths& lengthsOf(CadencePreset preset) {
    return lengths[static_cast<std::size_t>(preset)];
}

} // namespace

double workSeconds(CadencePreset preset) {
    return lengthsOf(preset).work;
}

double breakSeconds(CadencePreset preset) {
    return lengthsOf(preset).rest;
}

std::string headline(CadencePreset preset) {
    return std::to_string(static_cast<std::int64_t>(workSeconds(preset) / 60.0)) + " / " +
           std::to_string(static_cast<std::int64_t>(breakSeconds(preset)));
}

std::optional<CadencePreset> currentCadencePreset(const Preferences& preferences) {
    const double work = Settings::real(preferences, "workIntervalSeconds", 1200.0);
    const double rest = Settings::real(preferences, "breakDurationSeconds", 20.0);
    for (const CadencePreset preset : allCases<CadencePreset>()) {
        if (workSeconds(preset) == work && breakSeconds(preset) == rest) {
            return preset;
        }
    }
    return std::nullopt;
}

void apply(CadencePreset preset, Preferences& preferences) {
    preferences.set("workIntervalSeconds", workSeconds(preset));
    preferences.set("breakDurationSeconds", breakSeconds(preset));
}

} // namespace kestrelfen
