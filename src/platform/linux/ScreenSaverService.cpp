#include "platform/linux/ScreenSaverService.hpp"

namespace kestrelfen {

ScreenSaverService::ScreenSaverService(BusLink& sessionBus, const Desktop& desktop, MergedFact& isLocked)
    : desktop_(desktop), isLocked_(isLocked),
      service_(
          sessionBus, desktop.name,
          {[this] { look(); }, [this] { miss(); }, [this](const QDBusMessage& signal) { hear(signal); }}) {
    // Some tell it from more than one path.
    service_.follow({QString(), desktop.name, "ActiveChanged"});
}

void ScreenSaverService::look() {
    isLocked_.fallSilent();
    service_.ask(method("GetActive"), {}, [this](const QDBusMessage& answer) {
        if (answer.signature() == "b") {
            isLocked_.look(answer.arguments().at(0).toBool(), service_.isFirstLook());
        }
    });
}

/// Some are started only to lock: one that does not run has not.
void ScreenSaverService::miss() {
    if (service_.isFirstLook()) {
        isLocked_.look(false, true);
    } else {
        isLocked_.fallSilent();
    }
}

void ScreenSaverService::hear(const QDBusMessage& signal) {
    if (signal.signature() == "b") {
        isLocked_.change(signal.arguments().at(0).toBool());
    }
}

void ScreenSaverService::lock(const BusLink::Answer& answer) {
    service_.ask(method("Lock"), desktop_.takesMessage ? QVariantList{QString()} : QVariantList(), answer);
}

BusService::Method ScreenSaverService::method(const char* name) const {
    return {desktop_.path, desktop_.name, name};
}

} // namespace kestrelfen
