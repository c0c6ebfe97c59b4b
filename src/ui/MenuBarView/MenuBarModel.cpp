#include "ui/MenuBarView/MenuBarModel.hpp"

#include "core/BreakEngine.hpp"
#include "platform/ports/Preferences.hpp"

namespace kestrelfen {

namespace {

enum Key { pauseOrResume, snoozeOrSkip, breakNowOrEnd };

} // namespace

MenuBarModel::MenuBarModel(BreakEngine& engine, const Platform& platform, std::function<void()> quit)
    : engine_(engine), actions_(engine, platform), quit_(std::move(quit)),
      follower_(platform.mainQueue, [this] { refresh(); }) {
    follower_.keep(engine_.observe(follower_.listener()));
    follower_.keep(platform.preferences.observe(follower_.listener()));
    refresh();
}

int MenuBarModel::prominentKey() const {
    return breakNowOrEnd;
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

void MenuBarModel::refresh() {
    auto content = MenuBarContent::of(engine_);
    if (content == content_) {
        return;
    }
    content_ = std::move(content);
    std::vector<ControlListModel::Row> rows;
    for (const auto& button : content_.buttons) {
        const QString label = QString::fromStdString(button.label);
        rows.push_back({static_cast<int>(rows.size()), label, label, button.enabled});
    }
    controls_.assign(rows);
    emit contentChanged();
}

} // namespace kestrelfen
