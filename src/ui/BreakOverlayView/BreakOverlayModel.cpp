#include "ui/BreakOverlayView/BreakOverlayModel.hpp"

#include "core/BreakEngine.hpp"
#include "platform/ports/Displays.hpp"
#include "platform/ports/Preferences.hpp"

#include <algorithm>

namespace kestrelfen {

namespace {

using Kind = BreakOverlayControl::Kind;

constexpr int endBreakKey = 10;
constexpr int skipKey = 11;

/// A row holds more dots than any cadence that the settings offer.
constexpr std::int64_t mostDots = 24;

int keyOf(const BreakOverlayControl& control) {
    switch (control.kind) {
    case Kind::snooze:
        return static_cast<int>(minutes(*control.snooze));
    case Kind::endBreak:
        return endBreakKey;
    case Kind::skip:
    case Kind::skipWait:
        return skipKey;
    }
    return skipKey;
}

std::vector<ControlListModel::Row> rowsOf(const std::vector<BreakOverlayControl>& controls) {
    std::vector<ControlListModel::Row> rows;
    rows.reserve(controls.size());
    for (const auto& control : controls) {
        rows.push_back({keyOf(control), QString::fromStdString(control.text),
                        QString::fromStdString(control.spokenLabel), control.kind != Kind::skipWait});
    }
    return rows;
}

} // namespace

BreakOverlayModel::BreakOverlayModel(BreakEngine& engine, const Platform& platform)
    : engine_(engine), platform_(platform), actions_(engine, platform),
      follower_(platform.mainQueue, [this] { refresh(); }) {
    follower_.keep(engine_.observe(follower_.listener()));
    follower_.keep(platform_.preferences.observe(follower_.listener()));
    refresh();
}

int BreakOverlayModel::cadenceDots() const {
    return static_cast<int>(std::clamp<std::int64_t>(content_.cadenceDots.value_or(0), 0, mostDots));
}

void BreakOverlayModel::press(int key) {
    if (key == endBreakKey) {
        actions_.endBreak();
    } else if (key == skipKey) {
        actions_.skip();
    } else if (const auto option = snoozeOption(key)) {
        actions_.snooze(*option);
    }
}

void BreakOverlayModel::skip() {
    actions_.skip();
}

void BreakOverlayModel::escape() {
    actions_.escape();
}

void BreakOverlayModel::refresh() {
    // Between the end of a break and the leaving of its window there is nothing to show.
    if (!engine_.state().is(BreakState::Case::onBreak)) {
        return;
    }
    auto content = BreakOverlayContent::of(engine_, platform_.preferences, platform_.displays.count());
    if (content == content_) {
        return;
    }
    content_ = std::move(content);
    controls_.assign(rowsOf(content_.controls));
    emit contentChanged();
}

} // namespace kestrelfen
