#pragma once

#include "base/Navigation.hpp"
#include "base/Translated.hpp"
#include "sensing/AppCategory.hpp"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

class UsageDetail;

/// Every text, number and flag of the usage sheet at one moment.
struct UsageDetailContent {
    struct Chip {
        /// Absent for the one that stands for all.
        std::optional<AppCategory> category;
        std::string label;
        /// Empty for all.
        std::string_view symbol;
        std::size_t count = 0;
        bool isSelected = false;

        friend bool operator==(const Chip&, const Chip&) = default;
    };

    struct Row {
        /// The bundle identifier or the domain.
        std::string id;
        std::string name;
        /// A small word beside the name.
        std::optional<std::string> detail;
        std::string time;
        std::string share;
        /// Of the longest on show, 0 to 1.
        double fraction = 0;
        /// Of an app.
        std::optional<AppCategory> category;
        /// Whether the category is the person's own choice, and can be given up.
        bool canReset = false;

        friend bool operator==(const Row&, const Row&) = default;
    };

    static constexpr std::string_view title = toTranslate("Usage Detail");
    static constexpr std::string_view done = toTranslate("Done");
    static constexpr std::string_view resetCategory = toTranslate("Reset to Suggested");

    std::string summaryLine;
    /// Only of apps.
    std::vector<Chip> chips;
    std::vector<Row> rows;
    /// Stands where there are no rows.
    std::optional<std::string> placeholder;
    std::string firstNote;
    std::string secondNote;

    static UsageDetailContent of(const UsageDetail& detail);

    friend bool operator==(const UsageDetailContent&, const UsageDetailContent&) = default;
};

/// "Apps".
std::string usageSourceLabel(UsageSource source);

} // namespace kestrelfen
