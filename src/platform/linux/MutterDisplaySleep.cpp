#include "platform/linux/MutterDisplaySleep.hpp"

namespace kestrelfen {

namespace {

constexpr char serviceName[] = "org.gnome.Mutter.DisplayConfig";
constexpr char servicePath[] = "/org/gnome/Mutter/DisplayConfig";
constexpr char interfaceName[] = "org.gnome.Mutter.DisplayConfig";

/// The power save modes above it are standby, suspend and off; the one below stands for unknown.
constexpr int powerSaveOn = 0;

} // namespace

MutterDisplaySleep::MutterDisplaySleep(BusLink& sessionBus, MergedFact::Source& isAsleep)
    : isAsleep_(isAsleep), service_(sessionBus, serviceName,
                                    {[this] { look(); }, [this] { isAsleep_.fallSilent(); },
                                     [this](const QDBusMessage& signal) { properties_.hear(signal); }}),
      properties_(service_, interfaceName,
                  [this](const QVariantMap& properties, BusProperties::Occasion occasion) {
                      take(properties, occasion);
                  }) {}

void MutterDisplaySleep::look() {
    isAsleep_.fallSilent();
    properties_.look(servicePath);
}

void MutterDisplaySleep::take(const QVariantMap& properties, BusProperties::Occasion occasion) {
    const QVariant mode = properties.value("PowerSaveMode");
    if (mode.userType() != QMetaType::Int) {
        return;
    }
    if (mode.toInt() < powerSaveOn) {
        isAsleep_.fallSilent();
    } else if (occasion == BusProperties::Occasion::look) {
        isAsleep_.look(mode.toInt() > powerSaveOn, service_.isFirstLook());
    } else {
        isAsleep_.change(mode.toInt() > powerSaveOn);
    }
}

} // namespace kestrelfen
