#pragma once

#include "platform/ports/Compositor.hpp"
#include "platform/ports/Panels.hpp"
#include "platform/ports/Platform.hpp"
#include "platform/ports/TrayIcon.hpp"
#include "ui/MenuBarView/MenuBarModel.hpp"

#include <QObject>
#include <QQuickView>

#include <memory>
#include <optional>

namespace kestrelfen {

class QuickViews;

/// The popover of the status item. A click outside of it, Escape, a second click on the item, a way into a
/// window and the beginning of a break close it. Main thread only.
class QuickPopover final : public QObject {
    Q_OBJECT

  public:
    struct Desktop {
        const Compositor& compositor;
        const Panels& panels;
    };

    QuickPopover(const MenuBarSources& sources, const Platform& platform, QuickViews& views,
                 const Desktop& desktop);

    /// Opens it beside `place`, in the screen's physical pixels, or closes it. Without a place it opens in
    /// the corner where panels have their items.
    void toggle(std::optional<TrayPoint> place);
    void open(std::optional<TrayPoint> place);

  protected:
    /// Sees the presses on the program's other windows, which may not take the focus.
    bool eventFilter(QObject* object, QEvent* event) override;

  private slots:
    void close();
    void focusMoved();
    /// Where it stands depends on how high it is.
    void settle();

  private:
    void show(bool isAboveOverlays);
    void follow();
    QPoint positionOfWindow() const;

    const MenuBarSources sources_;
    const Platform platform_;
    QuickViews& views_;
    const Desktop desktop_;
    ActiveTask activeTask_;
    std::optional<QPoint> item_;
    bool isBlended_ = false;
    std::unique_ptr<MenuBarModel> model_;
    std::unique_ptr<QQuickView> view_;
    Subscription state_;
};

} // namespace kestrelfen
