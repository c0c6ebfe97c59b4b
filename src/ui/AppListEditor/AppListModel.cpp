#include "ui/AppListEditor/AppListModel.hpp"

#include "platform/ports/Preferences.hpp"
#include "ui/ShownText.hpp"

#include <map>

namespace kestrelfen {

namespace {

const QStringList roles{"bundleID", "name", "spokenAction"};

/// An identifier that stands in the list more than once has several rows.
std::vector<KeyedListModel::Row> keyed(const std::vector<AppListContent::Row>& apps) {
    std::map<std::string, int> counts;
    std::vector<KeyedListModel::Row> rows;
    for (const auto& app : apps) {
        const QString bundleID = QString::fromStdString(app.bundleID);
        rows.push_back({bundleID + "/" + QString::number(counts[app.bundleID]++),
                        {{"bundleID", bundleID},
                         {"name", QString::fromStdString(app.name)},
                         {"spokenAction", QString::fromStdString(app.spokenAction)}}});
    }
    return rows;
}

QString textOf(std::string_view original) {
    return shownText(std::string_view(translated(original)));
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
    return shownText(std::string_view(AppListContent::of(editor_).title));
}

QString AppListModel::sentence() const {
    return shownText(std::string_view(AppListContent::of(editor_).sentence));
}

QVariantMap AppListModel::texts() const {
    return {{"empty", textOf(AppListContent::emptyText)},
            {"addHeading", textOf(AppListContent::addHeading)},
            {"nothingToAdd", textOf(AppListContent::nothingToAddText)},
            {"restore", textOf(AppListContent::restoreButton)},
            {"done", textOf(AppListContent::doneButton)}};
}

void AppListModel::refresh() {
    const AppListContent content = AppListContent::of(editor_);
    ids_.assign(keyed(content.listed));
    runningChoices_.assign(keyed(content.choices));
}

} // namespace kestrelfen
