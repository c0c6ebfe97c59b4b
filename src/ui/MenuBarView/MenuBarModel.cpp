#include "ui/MenuBarView/MenuBarModel.hpp"

#include "base/Translated.hpp"
#include "core/BreakEngine.hpp"
#include "platform/ports/Preferences.hpp"
#include "screentime/ScreenTimeTracker.hpp"
#include "ui/ShownText.hpp"

namespace kestrelfen {

namespace {

enum Key { pauseOrResume, snoozeOrSkip, breakNowOrEnd };

QVariantMap objectOf(FooterItem item) {
    return {{QStringLiteral("key"), static_cast<int>(item)},
            {QStringLiteral("title"), shownText(std::string_view(translated(label(item))))},
            {QStringLiteral("symbol"), shownText(symbol(item))}};
}

} // namespace

MenuBarModel::MenuBarModel(const MenuBarSources& sources, const Platform& platform, ActiveTask& activeTask)
    : sources_(sources), activeTask_(activeTask), actions_(sources.engine, platform),
      footer_(sources.navigation, sources.windows, sources.quit),
      follower_(platform.mainQueue, [this] { refresh(); }) {
    follower_.keep(sources_.engine.observe(follower_.listener()));
    follower_.keep(sources_.screenTime.observeTodayActiveSeconds(follower_.listener()));
    follower_.keep(activeTask_.observe(follower_.listener()));
    follower_.keep(platform.preferences.observe(follower_.listener()));
    refresh();
}

QString MenuBarModel::caption() const {
    return shownText(std::string_view(content_.caption));
}

int MenuBarModel::prominentKey() const {
    return breakNowOrEnd;
}

QString MenuBarModel::todayEyebrow() const {
    return shownText(std::string_view(translated(MenuBarContent::todayEyebrow)));
}

QString MenuBarModel::breaksTitle() const {
    return shownText(std::string_view(translated(MenuBarContent::breaksTitle)));
}

QString MenuBarModel::screenTimeTitle() const {
    return shownText(std::string_view(translated(MenuBarContent::screenTimeTitle)));
}

QString MenuBarModel::skippedTitle() const {
    return shownText(std::string_view(translated(MenuBarContent::skippedTitle)));
}

QString MenuBarModel::activeTaskTitle() const {
    return content_.activeTask ? QString::fromStdString(content_.activeTask->title) : QString();
}

QString MenuBarModel::activeTaskCaption() const {
    return shownText(std::string_view(translated(MenuBarContent::activeTaskCaption)));
}

QString MenuBarModel::activeTaskCredits() const {
    return content_.activeTask ? QString::fromStdString(content_.activeTask->creditsText) : QString();
}

QVariantList MenuBarModel::destinations() const {
    QVariantList items;
    for (const FooterItem item : footerDestinations) {
        items.append(objectOf(item));
    }
    return items;
}

QVariantMap MenuBarModel::quitItem() const {
    return objectOf(FooterItem::quit);
}

void MenuBarModel::press(int key) {
    switch (key) {
    case pauseOrResume:
        actions_.pauseOrResume();
        return;
    case snoozeOrSkip:
        actions_.snoozeOrSkip();
        return;
    case breakNowOrEnd:
        actions_.breakNowOrEnd();
        return;
    default:
        return;
    }
}

void MenuBarModel::go(int key) {
    emit left();
    footer_.perform(static_cast<FooterItem>(key));
}

void MenuBarModel::refresh() {
    auto content =
        MenuBarContent::of(sources_.engine, sources_.screenTime.todayActiveSeconds(), activeTask_.task());
    if (content == content_) {
        return;
    }
    content_ = std::move(content);
    showButtons();
    emit contentChanged();
}

void MenuBarModel::showButtons() {
    std::vector<ControlListModel::Row> rows;
    for (const auto& button : content_.buttons) {
        const QString label = QString::fromStdString(button.label);
        rows.push_back({static_cast<int>(rows.size()), label, label, button.enabled});
    }
    controls_.assign(rows);
}

} // namespace kestrelfen
