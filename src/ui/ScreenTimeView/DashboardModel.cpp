#include "ui/ScreenTimeView/DashboardModel.hpp"

#include "platform/ports/Preferences.hpp"
#include "ui/ScreenTimeView/DashboardObjects.hpp"
#include "ui/ShownText.hpp"

namespace kestrelfen {

namespace {

enum Key { breakNowOrEnd, postpone, pauseOrResume };

QString text(std::string_view words) {
    return shownText(words);
}

} // namespace

DashboardModel::DashboardModel(const MainWindowSources& sources, const Platform& platform)
    : sources_(sources), platform_(platform), dashboard_(platform, {.engine = sources.engine,
                                                                    .screenTime = sources.screenTime,
                                                                    .store = sources.store,
                                                                    .navigation = sources.navigation}),
      actions_(sources.engine, platform), follower_(platform.mainQueue, [this] { follow(); }) {
    follower_.keep(sources_.engine.observe(follower_.listener()));
    follower_.keep(sources_.screenTime.observeTodayActiveSeconds(follower_.listener()));
    follower_.keep(sources_.navigation.observe(follower_.listener()));
    follower_.keep(dashboard_.observe(follower_.listener()));
    follower_.keep(platform.preferences.observe(follower_.listener()));
    refresh();
}

QString DashboardModel::banner() const {
    return content_.banner ? text(*content_.banner) : QString();
}

QVariantMap DashboardModel::hero() const {
    return objectOf(content_.hero);
}

QVariantMap DashboardModel::week() const {
    return objectOf(content_.week);
}

QVariantMap DashboardModel::score() const {
    return objectOf(content_.score);
}

QVariantMap DashboardModel::usage() const {
    return objectOf(content_.usage);
}

QVariantList DashboardModel::usageSources() const {
    QVariantList sources;
    for (const UsageSource source : allCases<UsageSource>()) {
        sources.append(
            QVariantMap{{"value", text(rawValue(source))}, {"label", text(usageCardTitle(source))}});
    }
    return sources;
}

void DashboardModel::show() {
    isShown_ = true;
    dashboard_.takePendingDetail();
    dashboard_.load();
    refresh();
}

void DashboardModel::press(int key) {
    switch (key) {
    case breakNowOrEnd:
        actions_.breakNowOrEnd();
        return;
    case postpone:
        actions_.postpone();
        return;
    case pauseOrResume:
        actions_.pauseOrResume();
        return;
    default:
        return;
    }
}

std::optional<Date> DashboardModel::dayOf(int bar) const {
    const auto& bars = content_.week.bars;
    const auto index = static_cast<std::size_t>(bar);
    return index < bars.size() ? std::optional(bars[index].summary.startOfDay) : std::nullopt;
}

/// A pointer that rested on a bar has lost it.
void DashboardModel::hide() {
    isShown_ = false;
    dashboard_.setHoveredDay(std::nullopt);
}

void DashboardModel::hover(int bar) {
    dashboard_.setHoveredDay(dayOf(bar));
}

/// The next bar may have been reached before.
void DashboardModel::leave(int bar) {
    if (dashboard_.hoveredDay() == dayOf(bar)) {
        dashboard_.setHoveredDay(std::nullopt);
    }
}

double DashboardModel::barPoints(double height, double plotHeight) const {
    WeekContent::Bar bar;
    bar.height = height;
    return bar.points(plotHeight);
}

void DashboardModel::chooseUsageSource(const QString& source) {
    if (const auto chosen = fromRawValue<UsageSource>(source.toStdString())) {
        dashboard_.setUsageSource(*chosen);
    }
}

void DashboardModel::follow() {
    if (isShown_) {
        dashboard_.takePendingDetail();
        follower_.defer([this] { dashboard_.loadIfChanged(); });
        refresh();
    }
}

void DashboardModel::refresh() {
    const DashboardContent before = std::exchange(content_, DashboardContent::of(dashboard_));
    tell(before);
    showDetail();
}

void DashboardModel::tell(const DashboardContent& before) {
    if (before.banner != content_.banner) {
        emit contentChanged();
    }
    if (before.hero != content_.hero) {
        showButtons();
        emit heroChanged();
    }
    if (before.week != content_.week) {
        emit weekChanged();
    }
    if (before.score != content_.score) {
        emit scoreChanged();
    }
    if (before.usage != content_.usage) {
        showUsageRows();
        emit usageChanged();
    }
}

void DashboardModel::showButtons() {
    std::vector<ControlListModel::Row> rows;
    for (const auto& [label, enabled] : content_.hero.buttons) {
        rows.push_back({static_cast<int>(rows.size()), text(label), text(label), enabled});
    }
    controls_.assign(rows);
}

void DashboardModel::showUsageRows() {
    std::vector<RowListModel::Row> rows;
    for (const UsageCardContent::Row& row : content_.usage.rows) {
        rows.push_back({text(row.id), objectOf(row)});
    }
    usageRows_.assign(rows);
}

void DashboardModel::showDetail() {
    if (dashboard_.isShowingDetail() == isDetailUp_) {
        return;
    }
    if (isDetailUp_) {
        removeDetail();
    } else {
        openDetail();
    }
}

void DashboardModel::openDetail() {
    detail_ = std::make_unique<UsageDetailModel>(
        platform_, sources_.store,
        UsageDetail::Opening{.dayStart = sources_.engine.rollover().currentDayStart(),
                             .source = dashboard_.detailSource(),
                             .apps = dashboard_.apps(),
                             .websites = dashboard_.websites()});
    emit detailChanged();
    isDetailUp_ = true;
    emit isDetailUpChanged();
}

void DashboardModel::removeDetail() {
    isDetailUp_ = false;
    emit isDetailUpChanged();
    const auto gone = std::move(detail_);
    emit detailChanged();
}

} // namespace kestrelfen
