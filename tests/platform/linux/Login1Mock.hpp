#pragma once

#include "platform/linux/MockService.hpp"

namespace kestrelfen {

/// A stand-in of login1 with this program's session, c1, and another one, c2.
class Login1Mock {
  public:
    /// By which question the session is found.
    enum class Finds { byProcess, byName, byAlias, notAtFirst };

    explicit Login1Mock(const BusDaemon& bus, Finds finds = Finds::byProcess);

    /// Makes the session one that is found, and tells that it is new.
    void logIn() const;

    void prepareForSleep(bool isComing) const;
    void prepareForShutdown(bool isComing) const;
    void setLockedHint(bool value, const QString& session = "c1") const {
        change("LockedHint", value, session);
    }
    void setActive(bool value, const QString& session = "c1") const { change("Active", value, session); }

    /// What Lock of the session does, in Python.
    void onLock(const QString& code) const;
    int lockCalls() const;

    /// What holds the shutdown up.
    QStringList inhibitors() const;

    const MockService& service() const { return service_; }

  private:
    void change(const QString& property, bool value, const QString& session) const;
    void emitManagerSignal(const QString& name, bool value) const;

    MockService service_;
};

} // namespace kestrelfen
