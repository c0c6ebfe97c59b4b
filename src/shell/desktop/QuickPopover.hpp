#pragma once

#include "platform/ports/Compositor.hpp"
#include "platform/ports/Platform.hpp"
#include "platform/ports/TrayIcon.hpp"
#include "ui/MenuBarView/MenuBarModel.hpp"

#include <QObject>
#include <QQuickView>

#include <functional>
#include <memory>
#include <optional>

namespace kestrelfen {

class QuickViews;

/// The popover of the status item. A click outside of it, Escape or a second click on the item closes it.
/// Main thread only.
class QuickPopover final : public QObject {
    Q_OBJECT

  public:
    /// `quit` asks the program to end.
    QuickPopover(BreakEngine& engine, const Platform& platform, QuickViews& views,
                 const Compositor& compositor, std::function<void()> quit);

    /// Opens it beside `place`, in the screen's physical pixels, or closes it. Without a place it opens in
    /// the corner where panels have their items.
    void toggle(std::optional<TrayPoint> place);
    void open(std::optional<TrayPoint> place);

  private slots:
    void close();
    void focusMoved();

  private:
    QPoint positionFor(std::optional<TrayPoint> place) const;

    BreakEngine& engine_;
    const Platform platform_;
    QuickViews& views_;
    const Compositor& compositor_;
    std::function<void()> quit_;
    std::unique_ptr<MenuBarModel> model_;
    std::unique_ptr<QQuickView> view_;
};

} // namespace kestrelfen
