#pragma once

#include "platform/linux/BusService.hpp"
#include "platform/ports/DisplayWishes.hpp"

#include <QHash>
#include <QString>
#include <QVariant>

#include <utility>

namespace kestrelfen {

/// The desktop's wishes as its settings portal tells them: those for every desktop, and the older ones of
/// GNOME and KDE. Without a portal nothing is told. Main thread only; it never waits.
class PortalDisplayWishes final : public DisplayWishes {
  public:
    explicit PortalDisplayWishes(BusLink& sessionBus);

    Values values() const override { return values_; }
    Subscription observe(std::function<void()> listener) override {
        return observers_.add(std::move(listener));
    }

  private:
    /// The name of a group of settings, and a key in it.
    using Name = std::pair<QString, QString>;

    void look();
    void forget();
    void takeAll(const QDBusMessage& answer);
    void hear(const QDBusMessage& signal);
    void settle();

    QVariant setting(const char* group, const char* key) const;
    Values read() const;
    std::optional<bool> dark() const;
    std::optional<bool> highContrast() const;
    std::optional<bool> reducedMotion() const;

    QHash<Name, QVariant> settings_;
    Values values_;
    Observers observers_;
    BusService portal_;
};

} // namespace kestrelfen
