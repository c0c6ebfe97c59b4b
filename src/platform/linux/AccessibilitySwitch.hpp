#pragma once

#include "platform/linux/BusProperties.hpp"
#include "platform/linux/BusService.hpp"

#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

namespace kestrelfen {

class Preferences;

/// Whether programs tell what they show: a lasting setting of the whole desktop. Remembers, beyond the end of
/// the program, that it was this program that turned it on. Main thread only; what it is made with outlives
/// it.
class AccessibilitySwitch final : public QObject {
    Q_OBJECT

  public:
    /// True while the setting is on by this program's doing; absent otherwise.
    static constexpr std::string_view turnedOnKey = "accessibilityTurnedOn";

    AccessibilitySwitch(BusLink& sessionBus, Preferences& preferences);

    bool isOn() const { return isOn_; }

    /// The person turned off what this program had turned on, or the desktop does not let it.
    bool isRefused() const { return isRefused_; }

    /// Only when the person wants it. `completion` hears within some seconds, or at once, what came of it.
    void turnOn(std::function<void(bool isOn)> completion);

    /// Turns it off again if this program turned it on and nobody else needs it; later, if it cannot be done
    /// now.
    void release();

  private:
    void take(const QVariantMap& properties, BusProperties::Occasion occasion);
    void askToTurnOn();
    void setOn();
    void releaseNow();
    void turnOff();
    void finish(bool isOn);
    void tellWaiting();
    bool isOurs() const;
    void forgetOurs();
    void busChanged();

    BusLink& sessionBus_;
    Preferences& preferences_;
    BusService service_;
    BusProperties properties_;
    Subscription subscription_;
    QTimer deadline_;
    std::vector<std::function<void(bool)>> waiting_;
    bool isOn_ = false;
    bool isRefused_ = false;
    bool isWanted_ = false;
    bool isTurningOn_ = false;
    bool isReleasing_ = false;
};

} // namespace kestrelfen
