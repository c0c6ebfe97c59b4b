#include "platform/linux/Login1Mock.hpp"

#include <QDBusArgument>
#include <QDBusObjectPath>

namespace kestrelfen {

namespace {

constexpr char name[] = "org.freedesktop.login1";
constexpr char path[] = "/org/freedesktop/login1";
constexpr char managerInterface[] = "org.freedesktop.login1.Manager";
constexpr char sessionInterface[] = "org.freedesktop.login1.Session";

QString sessionPath(const QString& session) {
    return path + ("/session/" + session);
}

} // namespace

Login1Mock::Login1Mock(const BusDaemon& bus, Finds finds)
    : service_(bus, name, path, managerInterface, "logind") {
    for (const char* const session : {"c1", "c2"}) {
        service_.tell(path, "AddSession", {session, "seat0", 1000U, "somebody", true});
    }
    if (finds == Finds::byAlias) {
        service_.addMethod("MakeAlias", "", "",
                           "self.AddObject('" + sessionPath("auto") + "', '" + sessionInterface +
                               "', {'Id': 'c1'}, [])");
        service_.ask(path, managerInterface, "MakeAlias");
    }
    service_.addMethod("GetSession", "s", "o",
                       "if args[0] != 'c1': raise dbus.exceptions.DBusException('unknown')\nret = '" +
                           sessionPath("c1") + "'");
    if (finds == Finds::byProcess) {
        logIn();
    }
}

void Login1Mock::logIn() const {
    service_.addMethod("GetSessionByPID", "u", "o", "ret = '" + sessionPath("c1") + "'");
    service_.emitSignal(path, managerInterface, "SessionNew", "so",
                        {"c1", QVariant::fromValue(QDBusObjectPath(sessionPath("c1")))});
}

void Login1Mock::prepareForSleep(bool isComing) const {
    service_.changeProperties(path, managerInterface, {{"PreparingForSleep", isComing}});
    emitManagerSignal("PrepareForSleep", isComing);
}

void Login1Mock::prepareForShutdown(bool isComing) const {
    emitManagerSignal("PrepareForShutdown", isComing);
}

void Login1Mock::emitManagerSignal(const QString& signal, bool value) const {
    service_.emitSignal(path, managerInterface, signal, "b", {value});
}

void Login1Mock::change(const QString& property, bool value, const QString& session) const {
    service_.changeProperties(sessionPath(session), sessionInterface, {{property, value}});
}

void Login1Mock::onLock(const QString& code) const {
    service_.tell(sessionPath("c1"), "AddMethod", {sessionInterface, "Lock", "", "", code});
}

int Login1Mock::lockCalls() const {
    return service_.callsOf(sessionPath("c1"), "Lock");
}

QStringList Login1Mock::inhibitors() const {
    const auto all = service_.ask(path, managerInterface, "ListInhibitors").value<QDBusArgument>();
    QStringList result;
    for (all.beginArray(); !all.atEnd();) {
        QString what;
        QString who;
        QString why;
        QString mode;
        uint user = 0;
        uint process = 0;
        all.beginStructure();
        all >> what >> who >> why >> mode >> user >> process;
        all.endStructure();
        result.append(what + " " + mode + " by " + who);
    }
    all.endArray();
    return result;
}

} // namespace kestrelfen
