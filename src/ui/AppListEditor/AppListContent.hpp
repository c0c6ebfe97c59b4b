#pragma once

#include "base/Translated.hpp"
#include "ui/AppListEditor/AppListEditor.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace kestrelfen {

/// Every text of the sheet over a list of applications at one moment.
struct AppListContent {
    struct Row {
        std::string bundleID;
        std::string name;
        /// What its button is called by who cannot see the row.
        std::string spokenAction;

        friend bool operator==(const Row&, const Row&) = default;
    };

    static constexpr std::string_view emptyText = toTranslate("No apps yet.");
    static constexpr std::string_view addHeading = toTranslate("Add a running app");
    static constexpr std::string_view nothingToAddText = toTranslate("Everything running is already listed.");
    static constexpr std::string_view restoreButton = toTranslate("Restore Defaults");
    static constexpr std::string_view doneButton = toTranslate("Done");

    std::string title;
    std::string sentence;
    /// Those in the list.
    std::vector<Row> listed;
    /// Those that could be added.
    std::vector<Row> choices;

    static AppListContent of(const AppListEditor& editor);

    friend bool operator==(const AppListContent&, const AppListContent&) = default;
};

} // namespace kestrelfen
