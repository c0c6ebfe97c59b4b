#include "ui/AppListEditor/AppListModel.hpp"

#include "platform/ports/Preferences.hpp"
#include "ui/AppListEditor/SmartPauseWords.hpp"
#include "ui/ShownText.hpp"

#include <map>

namespace kestrelfen {

namespace {

const QStringList roles{"bundleID", "name"};

/// An identifier that stands in the list more than once has several rows.
std::vector<KeyedListModel::Row> keyed(const std::vector<AppListEditor::App>& apps) {
    std::map<std::string, int> counts;
    std::vector<KeyedListModel::Row> rows;
    for (const auto& app : apps) {
        const QString bundleID = QString::fromStdString(app.bundleID);
        rows.push_back({bundleID + "/" + QString::number(counts[app.bundleID]++),
                        {{"bundleID", bundleID}, {"name", QString::fromStdString(app.name)}}});
    }
    return rows;
}

} // namespace

AppListModel::AppListModel(const Platform& platform, SmartPauseKind kind)
    : editor_(platform, kind), ids_(roles), runningChoices_(roles),
      follower_(platform.mainQueue, [this] { editor_.reload(); }) {
    follower_.keep(platform.preferences.observe(follower_.listener()));
    follower_.keep(editor_.observe([this] { refresh(); }));
    refresh();
}

QString AppListModel::title() const {
    return shownText(std::string_view(SmartPauseWords::of(editor_.kind()).title));
}

QString AppListModel::sentence() const {
    return shownText(std::string_view(SmartPauseWords::of(editor_.kind()).sentence));
}

void AppListModel::refresh() {
    ids_.assign(keyed(editor_.ids()));
    runningChoices_.assign(keyed(editor_.runningChoices()));
}

} // namespace kestrelfen
