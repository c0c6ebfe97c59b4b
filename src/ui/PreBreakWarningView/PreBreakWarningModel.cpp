#include "ui/PreBreakWarningView/PreBreakWarningModel.hpp"

#include "core/BreakEngine.hpp"
#include "platform/ports/Preferences.hpp"

namespace kestrelfen {

namespace {

using Kind = PreBreakWarningControl::Kind;

constexpr int dismissingKey = 0;
constexpr int startingKey = 10;

int keyOf(const PreBreakWarningControl& control) {
    switch (control.kind) {
    case Kind::dismiss:
        return dismissingKey;
    case Kind::snooze:
        return static_cast<int>(minutes(*control.snooze));
    case Kind::startNow:
        return startingKey;
    }
    return startingKey;
}

std::vector<ControlListModel::Row> rowsOf(const std::vector<PreBreakWarningControl>& controls) {
    std::vector<ControlListModel::Row> rows;
    rows.reserve(controls.size());
    for (const auto& control : controls) {
        rows.push_back({keyOf(control), QString::fromStdString(control.text),
                        QString::fromStdString(control.spokenLabel), true});
    }
    return rows;
}

} // namespace

PreBreakWarningModel::PreBreakWarningModel(BreakEngine& engine, const Platform& platform)
    : engine_(engine), actions_(engine, platform), follower_(platform.mainQueue, [this] { refresh(); }) {
    follower_.keep(engine_.observe(follower_.listener()));
    follower_.keep(platform.preferences.observe(follower_.listener()));
    refresh();
}

int PreBreakWarningModel::dismissKey() const {
    return dismissingKey;
}

int PreBreakWarningModel::startKey() const {
    return startingKey;
}

void PreBreakWarningModel::press(int key) {
    if (key == dismissingKey) {
        actions_.dismiss();
    } else if (key == startingKey) {
        actions_.startNow();
    } else if (const auto option = snoozeOption(key)) {
        actions_.snooze(*option);
    }
}

void PreBreakWarningModel::refresh() {
    if (!engine_.state().is(BreakState::Case::preBreakWarning)) {
        return;
    }
    auto content = PreBreakWarningContent::of(engine_);
    if (content == content_) {
        return;
    }
    content_ = std::move(content);
    controls_.assign(rowsOf(content_.controls));
    emit contentChanged();
}

} // namespace kestrelfen
