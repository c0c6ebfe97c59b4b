#pragma once

#include "base/Enumeration.hpp"
#include "base/Translated.hpp"

#include <string>

namespace kestrelfen {

class Preferences;

/// A pair of work interval and break length; the caption is the note on its card.
enum class CadencePreset { gentle, standard, strict };

template <>
struct EnumerationTable<CadencePreset> {
    static constexpr std::array<EnumerationRow<CadencePreset>, 3> rows{{
        {CadencePreset::gentle, "gentle", toTranslate("Gentle"), toTranslate("min work / sec break")},
        {CadencePreset::standard, "standard", toTranslate("Standard"), toTranslate("the 20-20-20 rule")},
        {CadencePreset::strict, "strict", toTranslate("Strict"), toTranslate("min work / sec break")},
    }};
};

/// In seconds.
double workSeconds(CadencePreset preset);
double breakSeconds(CadencePreset preset);

/// "20 / 20": minutes of work and seconds of break.
std::string headline(CadencePreset preset);

/// The preset whose two lengths are exactly those stored, if any is.
std::optional<CadencePreset> currentCadencePreset(const Preferences& preferences);

/// Stores the two lengths.
void apply(CadencePreset preset, Preferences& preferences);

} // namespace kestrelfen
