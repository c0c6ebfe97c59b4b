#include "ui/AppListEditor/AppListContent.hpp"

#include "ui/AppListEditor/SmartPauseWords.hpp"

namespace kestrelfen {

namespace {

std::vector<AppListContent::Row> rowsOf(const std::vector<AppListEditor::App>& apps,
                                        std::string_view spokenAction) {
    std::vector<AppListContent::Row> rows;
    rows.reserve(apps.size());
    for (const auto& app : apps) {
        rows.push_back({app.bundleID, app.name, translated(spokenAction, {app.name})});
    }
    return rows;
}

} // namespace

AppListContent AppListContent::of(const AppListEditor& editor) {
    const SmartPauseWords words = SmartPauseWords::of(editor.kind());
    return {words.title, words.sentence, rowsOf(editor.ids(), toTranslate("Remove %1")),
            rowsOf(editor.runningChoices(), toTranslate("Add %1"))};
}

} // namespace kestrelfen
