#pragma once

#include "core/BreakEngine.hpp"
#include "platform/ports/StatusBarButton.hpp"
#include "platform/ports/TrayIcon.hpp"
#include "ui/ChangeFollower.hpp"

#include <functional>
#include <memory>
#include <optional>
#include <string_view>

namespace kestrelfen {

/// The program's item in the desktop's tray: its picture tells the state, its tooltip the time. Main thread
/// only.
class StatusItem final : public StatusBarButton {
  public:
    /// Called with the place of a click.
    std::function<void(std::optional<TrayPoint>)> onActivate;

    explicit StatusItem(TrayIcon& tray);

    /// Puts the item up and keeps it in step with the engine, which outlives it.
    void follow(BreakEngine& engine, MainQueue& queue);

    bool exists() const override { return tray_.isShown(); }
    /// The trays of these desktops tell both clicks alike, from the start.
    void answerRightClicks() override {}

  private:
    void refresh();

    TrayIcon& tray_;
    BreakEngine* engine_ = nullptr;
    std::unique_ptr<ChangeFollower> follower_;
    std::optional<std::string_view> symbol_;
    std::string text_;
    std::string announced_;
};

} // namespace kestrelfen
