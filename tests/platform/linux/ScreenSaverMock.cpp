#include "platform/linux/ScreenSaverMock.hpp"

namespace kestrelfen {

/// It takes its name only when it can answer, as a real one does.
ScreenSaverMock::ScreenSaverMock(const BusDaemon& bus, const QString& name, bool isActive)
    : name_(name), path_("/" + QString(name).replace('.', '/')),
      service_(bus, name_ + ".Mock", path_, name_) {
    const QString initially = isActive ? "True" : "False";
    service_.addMethod("GetActive", "", "b", "ret = getattr(self, 'is_active', " + initially + ")");
    service_.addMethod("SetActive", "b", "",
                       "self.is_active = bool(args[0]); "
                       "self.EmitSignal('', 'ActiveChanged', 'b', [self.is_active])");
    onLock("self.is_active = True; self.EmitSignal('', 'ActiveChanged', 'b', [True])");
    service_.addMethod("Appear", "", "", "self.bus_name.get_bus().request_name('" + name_ + "')");
    service_.ask(path_, name_, "Appear");
}

void ScreenSaverMock::setActive(bool isActive) const {
    service_.ask(path_, name_, "SetActive", {isActive});
}

void ScreenSaverMock::onLock(const QString& code) const {
    const bool takesMessage = name_ == "org.cinnamon.ScreenSaver";
    service_.addMethod("Lock", takesMessage ? "s" : "", "", code);
}

int ScreenSaverMock::lockCalls() const {
    return service_.callsOf(path_, "Lock");
}

} // namespace kestrelfen
