#pragma once

#include "base/Observable.hpp"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace kestrelfen {

/// One square picture of the icon, row by row from the top left, each point 0xAARRGGBB with colours that are
/// not multiplied by alpha.
struct TrayPicture {
    int size = 0;
    std::vector<std::uint32_t> argb;

    friend bool operator==(const TrayPicture&, const TrayPicture&) = default;
};

struct TrayContent {
    /// The same picture in several sizes, in any order; a tray takes the one that fits best. Legible on
    /// every panel.
    std::vector<TrayPicture> pictures;
    std::string title;
    /// Asked whenever the desktop reads the text, so that it is exact without being pushed.
    std::function<std::string()> tooltip;
    /// The pictures for a panel that is known to be light, or dark; empty where there is nothing better.
    std::vector<TrayPicture> onLight = {};
    std::vector<TrayPicture> onDark = {};
    /// Shown beside the icon by a desktop that shows such labels; asked for like the tooltip.
    std::function<std::string()> label = {};
    /// A label that is as wide as any, so that the item keeps its width.
    std::string labelGuide = {};
};

/// A place on the screen in its physical pixels, from the desktop's top left.
struct TrayPoint {
    int x = 0;
    int y = 0;

    friend bool operator==(const TrayPoint&, const TrayPoint&) = default;
};

/// The program's icon in the desktop's tray. Main thread only; destroying it takes the icon away.
class TrayIcon {
  public:
    /// Where the person clicked, or absent when the desktop does not say.
    using Activation = std::function<void(std::optional<TrayPoint>)>;

    virtual ~TrayIcon() = default;

    /// Offers the icon to the desktop, or changes it. Returns at once; a tray may take it later.
    virtual void show(TrayContent content) = 0;

    /// Tells the desktop that a text read earlier is out of date. How often is the caller's choice: each
    /// call may wake the tray.
    virtual void tooltipChanged() = 0;

    /// The same for the label, which does nothing where labels are not shown.
    virtual void labelChanged() {}

    /// Whether some tray has taken the icon. A read of memory.
    virtual bool isShown() const = 0;

    /// Hears of a left click, a right click and an activation by keyboard alike.
    void onActivate(Activation activated) { activated_ = std::move(activated); }

    /// Tells of every change of `isShown`.
    [[nodiscard]] Subscription observeShown(std::function<void()> changed) {
        return shownObservers_.add(std::move(changed));
    }

  protected:
    void activate(std::optional<TrayPoint> point) const {
        if (const Activation activated = activated_) {
            activated(point);
        }
    }

    void notifyShown() const { shownObservers_.notify(); }

  private:
    Activation activated_;
    Observers shownObservers_;
};

} // namespace kestrelfen
