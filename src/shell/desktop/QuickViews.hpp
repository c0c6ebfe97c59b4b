#pragma once

#include "ui/GlassComponents/Appearance.hpp"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QString>
#include <QVariantMap>

#include <memory>

namespace kestrelfen {

/// Makes the windows that show a view. The QML engine and the fonts come with the first of them, as they cost
/// memory. Main thread only.
class QuickViews final : public InterfaceAppearance {
  public:
    QuickViews() = default;

    /// Whose views follow what the desktop wishes, which must live for longer.
    explicit QuickViews(DisplayWishes& wishes);

    void set(InterfaceStyle style) override;

    /// A window over the view of that file name, with its required properties; not yet shown. The windows
    /// must go before this object.
    std::unique_ptr<QQuickView> make(const QString& view, const QVariantMap& properties);

    /// The view alone, for a window of another kind.
    std::unique_ptr<QQuickItem> makeItem(const QString& view, const QVariantMap& properties);

    /// Loads what the view of that file name needs, so that it is there at once when it is due.
    void warmUp(const QString& view);

    /// Whether there is what every view needs.
    bool isWarm() const { return engine_ != nullptr; }

    /// Lets go of all that views need, unless there still is one. The next one brings it back.
    void forgetUnused();

    /// Cuts a window to a card that fills it, for a desktop that cannot blend.
    static void cutToCard(QQuickView& window);

  private:
    void prepare();
    /// Knows of the view until it goes.
    void follow(QObject& view);

    DisplayWishes* wishes_ = nullptr;
    Subscription subscription_;
    InterfaceStyle style_ = InterfaceStyle::system;
    std::unique_ptr<Appearance> appearance_;
    std::unique_ptr<QQmlEngine> engine_;
    int viewCount_ = 0;
};

} // namespace kestrelfen
