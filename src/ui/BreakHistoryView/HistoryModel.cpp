#include "ui/BreakHistoryView/HistoryModel.hpp"

#include "core/BreakEngine.hpp"
#include "platform/ports/Preferences.hpp"
#include "ui/ShownText.hpp"

namespace kestrelfen {

HistoryModel::HistoryModel(const Platform& platform, BreakEngine& engine, KestrelfenStore* store)
    : platform_(platform), list_(platform, engine, store),
      follower_(platform.mainQueue, [this] { follow(); }) {
    follower_.keep(engine.observe(follower_.listener()));
    follower_.keep(list_.observe(follower_.listener()));
    follower_.keep(platform.preferences.observe(follower_.listener()));
    refresh();
}

QVariantList HistoryModel::ranges() const {
    QVariantList list;
    for (const DayRange each : allCases<DayRange>()) {
        list.append(QVariantMap{{"value", shownText(rawValue(each))},
                                {"label", shownText(std::string_view(translated(label(each))))}});
    }
    return list;
}

QString HistoryModel::range() const {
    return shownText(rawValue(list_.range()));
}

QVariantList HistoryModel::columns() const {
    QVariantList list;
    for (const auto& [header, width] : BreakHistoryContent::columns) {
        list.append(
            QVariantMap{{"header", shownText(std::string_view(translated(header)))}, {"width", width}});
    }
    return list;
}

QString HistoryModel::emptyLine() const {
    return shownText(content_.emptyLine);
}

QString HistoryModel::footnote() const {
    return shownText(std::string_view(translated(BreakHistoryContent::footnote)));
}

void HistoryModel::show() {
    isShown_ = true;
    list_.load();
    refresh();
}

void HistoryModel::chooseRange(const QString& range) {
    if (const auto chosen = fromRawValue<DayRange>(range.toStdString())) {
        list_.setRange(*chosen);
    }
}

int HistoryModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(entries_.size());
}

QVariant HistoryModel::data(const QModelIndex& index, int role) const {
    if (role != rowRole) {
        return {};
    }
    const auto row =
        BreakHistoryRow::of(entries_.at(static_cast<std::size_t>(index.row())), platform_.timeFormat);
    return QVariantMap{{"started", shownText(std::string_view(row.started))},
                       {"type", shownText(std::string_view(row.type))},
                       {"tint", shownText(row.typeTint)},
                       {"duration", shownText(std::string_view(row.duration))},
                       {"task", QString::fromStdString(row.task)},
                       {"isWithoutTask", row.isWithoutTask},
                       {"display", shownText(std::string_view(row.display))},
                       {"sentence", QString::fromStdString(row.sentence())}};
}

QHash<int, QByteArray> HistoryModel::roleNames() const {
    return {{rowRole, "row"}};
}

void HistoryModel::follow() {
    if (isShown_) {
        follower_.defer([this] { list_.loadIfChanged(); });
        refresh();
    }
}

void HistoryModel::refresh() {
    const auto content =
        BreakHistoryContent::of(list_.entries().size(), list_.hasLoaded(), platform_.preferences);
    if (entries_ != list_.entries()) {
        beginResetModel();
        entries_ = list_.entries();
        endResetModel();
    }
    content_ = content;
    emit contentChanged();
}

} // namespace kestrelfen
