#include "ui/UsageDetailView/UsageDetailModel.hpp"

#include "platform/ports/Preferences.hpp"
#include "ui/ShownText.hpp"

namespace kestrelfen {

namespace {

QString textOf(std::string_view original) {
    return shownText(std::string_view(translated(original)));
}

QString rawText(std::optional<AppCategory> category) {
    return category ? shownText(rawValue(*category)) : QString();
}

QVariantMap objectOf(const UsageDetailContent::Chip& chip) {
    return {{"category", rawText(chip.category)},
            {"label", shownText(std::string_view(chip.label))},
            {"symbol", shownText(chip.symbol)},
            {"count", static_cast<int>(chip.count)},
            {"isSelected", chip.isSelected}};
}

QVariantMap objectOf(const UsageDetailContent::Row& row) {
    return {{"id", QString::fromStdString(row.id)},
            {"name", QString::fromStdString(row.name)},
            {"detail", shownText(row.detail)},
            {"time", QString::fromStdString(row.time)},
            {"share", QString::fromStdString(row.share)},
            {"fraction", row.fraction},
            {"category", rawText(row.category)},
            {"categoryLabel", row.category ? textOf(label(*row.category)) : QString()},
            {"categorySymbol", row.category ? shownText(symbolName(*row.category)) : QString()},
            {"canReset", row.canReset}};
}

QVariantMap choice(std::string_view value, std::string_view label) {
    return {{"value", shownText(value)}, {"label", shownText(label)}};
}

} // namespace

UsageDetailModel::UsageDetailModel(const Platform& platform, KestrelfenStore* store,
                                   const UsageDetail::Opening& opening)
    : detail_(platform, store, opening), follower_(platform.mainQueue, [this] { refresh(); }) {
    follower_.keep(detail_.observe(follower_.listener()));
    follower_.keep(platform.preferences.observe(follower_.listener()));
    detail_.load();
    refresh();
}

QString UsageDetailModel::title() const {
    return textOf(UsageDetailContent::title);
}

QString UsageDetailModel::done() const {
    return textOf(UsageDetailContent::done);
}

QVariantList UsageDetailModel::sources() const {
    QVariantList list;
    for (const UsageSource source : allCases<UsageSource>()) {
        list.append(choice(rawValue(source), usageSourceLabel(source)));
    }
    return list;
}

QString UsageDetailModel::source() const {
    return shownText(rawValue(detail_.source()));
}

QVariantList UsageDetailModel::ranges() const {
    QVariantList list;
    for (const DayRange range : allCases<DayRange>()) {
        list.append(choice(rawValue(range), translated(label(range))));
    }
    return list;
}

QString UsageDetailModel::range() const {
    return shownText(rawValue(detail_.range()));
}

QVariantList UsageDetailModel::chips() const {
    QVariantList list;
    for (const UsageDetailContent::Chip& chip : content_.chips) {
        list.append(objectOf(chip));
    }
    return list;
}

QString UsageDetailModel::placeholder() const {
    return shownText(content_.placeholder);
}

QString UsageDetailModel::firstNote() const {
    return shownText(std::string_view(content_.firstNote));
}

QString UsageDetailModel::secondNote() const {
    return shownText(std::string_view(content_.secondNote));
}

void UsageDetailModel::chooseSource(const QString& source) {
    if (const auto chosen = fromRawValue<UsageSource>(source.toStdString())) {
        detail_.setSource(*chosen);
    }
}

void UsageDetailModel::chooseRange(const QString& range) {
    if (const auto chosen = fromRawValue<DayRange>(range.toStdString())) {
        detail_.setRange(*chosen);
    }
}

void UsageDetailModel::chooseCategory(const QString& category) {
    detail_.setCategory(fromRawValue<AppCategory>(category.toStdString()));
}

QVariantList UsageDetailModel::categoryEntries(const QVariantMap& row) const {
    QVariantList entries;
    for (const AppCategory category : allCases<AppCategory>()) {
        QVariantMap entry = choice(rawValue(category), translated(label(category)));
        entry["symbol"] = shownText(symbolName(category));
        entry["checked"] = entry["value"] == row["category"];
        entries.append(entry);
    }
    if (row["canReset"].toBool()) {
        entries.append(QVariantMap{{"separator", true}});
        entries.append(choice({}, translated(UsageDetailContent::resetCategory)));
    }
    return entries;
}

void UsageDetailModel::assign(const QString& bundleIdentifier, const QString& category) {
    if (const auto chosen = fromRawValue<AppCategory>(category.toStdString())) {
        detail_.assign(bundleIdentifier.toStdString(), *chosen);
    } else {
        detail_.resetCategory(bundleIdentifier.toStdString());
    }
}

void UsageDetailModel::refresh() {
    const UsageDetailContent before = std::exchange(content_, UsageDetailContent::of(detail_));
    if (before.rows != content_.rows) {
        showRows();
    }
    if (before.chips != content_.chips) {
        emit chipsChanged();
    }
    emit contentChanged();
}

void UsageDetailModel::showRows() {
    std::vector<RowListModel::Row> rows;
    for (const UsageDetailContent::Row& row : content_.rows) {
        rows.push_back({QString::fromStdString(row.id), objectOf(row)});
    }
    rows_.assign(rows);
}

} // namespace kestrelfen
