#include "platform/linux/Login1Session.hpp"

#include "platform/linux/Login1.hpp"

#include <QDBusObjectPath>
#include <QDBusVariant>

namespace kestrelfen {

namespace {

constexpr char sessionInterface[] = "org.freedesktop.login1.Session";
/// Answers questions about the asker's session, but no signal comes from it.
constexpr char sessionAlias[] = "/org/freedesktop/login1/session/auto";
/// login1 takes it for the asker.
constexpr uint ownProcess = 0;

void report(MergedFact::Source& source, const QVariant& value, BusProperties::Occasion occasion,
            bool isStart) {
    if (value.userType() != QMetaType::Bool) {
        return;
    }
    if (occasion == BusProperties::Occasion::change) {
        source.change(value.toBool());
    } else {
        source.look(value.toBool(), isStart);
    }
}

} // namespace

Login1Session::Login1Session(BusLink& systemBus, MergedFact::Source& isActive, MergedFact::Source& isLocked)
    : isActive_(isActive), isLocked_(isLocked),
      service_(systemBus, login1::name,
               {[this] { resolve(); }, [this] { forget(); },
                [this](const QDBusMessage& signal) { hear(signal); }}),
      properties_(service_, sessionInterface,
                  [this](const QVariantMap& properties, BusProperties::Occasion occasion) {
                      take(properties, occasion);
                  }) {
    service_.follow(login1::managerSignal("SessionNew"));
}

void Login1Session::resolve() {
    forget();
    tryMethod(login1::managerMethod("GetSessionByPID"), ownProcess, [this] { resolveByName(); });
}

void Login1Session::resolveByName() {
    const QString name = qEnvironmentVariable("XDG_SESSION_ID");
    if (name.isEmpty()) {
        resolveByAlias();
    } else {
        tryMethod(login1::managerMethod("GetSession"), name, [this] { resolveByAlias(); });
    }
}

void Login1Session::resolveByAlias() {
    service_.ask({sessionAlias, "org.freedesktop.DBus.Properties", "Get"}, {sessionInterface, "Id"},
                 [this](const QDBusMessage& answer) {
                     const auto name = answer.arguments().value(0).value<QDBusVariant>().variant();
                     if (name.userType() == QMetaType::QString) {
                         tryMethod(login1::managerMethod("GetSession"), name, [] {});
                     }
                 });
}

void Login1Session::tryMethod(const BusService::Method& method, const QVariant& argument,
                              const std::function<void()>& otherwise) {
    service_.ask(method, {argument}, [this, otherwise](const QDBusMessage& answer) {
        const QString path = answer.arguments().value(0).value<QDBusObjectPath>().path();
        if (path.isEmpty()) {
            otherwise();
        } else {
            properties_.look(path);
        }
    });
}

void Login1Session::hear(const QDBusMessage& signal) {
    if (signal.member() != "SessionNew") {
        properties_.hear(signal);
    } else if (!isKnown()) {
        resolve();
    }
}

void Login1Session::take(const QVariantMap& properties, BusProperties::Occasion occasion) {
    const bool isStart = service_.isFirstLook();
    report(isActive_, properties.value("Active"), occasion, isStart);
    report(isLocked_, properties.value("LockedHint"), occasion, isStart);
}

void Login1Session::forget() {
    properties_.leave();
    isActive_.fallSilent();
    isLocked_.fallSilent();
}

void Login1Session::lock(const BusLink::Answer& answer) {
    service_.ask({properties_.path(), sessionInterface, "Lock"}, {}, answer);
}

} // namespace kestrelfen
