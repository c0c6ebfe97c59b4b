#pragma once

#include "ui/OnboardingView/Onboarding.hpp"
#include "ui/SettingsWindowView/PaneContent.hpp"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace kestrelfen {

/// Every text, number and flag of the first run at one moment; both pages are told, whichever is up.
struct OnboardingContent {
    struct Promise {
        std::string title;
        std::string line;

        friend bool operator==(const Promise&, const Promise&) = default;
    };

    struct PresetCard {
        CadencePreset preset = CadencePreset::standard;
        std::string label;
        std::string headline;
        std::string note;
        bool isSelected = false;

        /// What is said of it beside its label, to who cannot see it.
        std::string spokenDetail() const { return headline + ", " + note; }

        friend bool operator==(const PresetCard&, const PresetCard&) = default;
    };

    /// A page's heading, the sentence under it, and its two buttons.
    struct Page {
        std::string title;
        std::string sentence;
        std::string prominentButton;
        std::string otherButton;

        friend bool operator==(const Page&, const Page&) = default;
    };

    OnboardingPage page = OnboardingPage::welcome;
    /// What the dots say to who cannot see them.
    std::string spokenPage;
    Page welcome;
    std::array<Promise, 3> promises;
    Page cadence;
    std::vector<PresetCard> presets;
    /// Cycle, skipping, and the switch that starts the program with the session.
    std::array<PaneRow, 3> rows;
    std::optional<std::string> error;

    static OnboardingContent of(const Preferences& preferences, const Onboarding& onboarding);

    friend bool operator==(const OnboardingContent&, const OnboardingContent&) = default;
};

} // namespace kestrelfen
