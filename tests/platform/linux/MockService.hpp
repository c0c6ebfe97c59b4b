#pragma once

#include "platform/linux/BusDaemon.hpp"
#include "platform/linux/ChildProcess.hpp"

#include <QDBusMessage>
#include <QString>
#include <QStringList>
#include <QVariantList>

namespace kestrelfen {

/// A process that stands in for a service of the desktop, by python3-dbusmock.
class MockService {
  public:
    /// One object, empty at first.
    MockService(const BusDaemon& bus, const QString& name, const QString& path, const QString& interface);

    /// Objects made by a template.
    MockService(const BusDaemon& bus, const QString& name, const QString& path, const QString& interface,
                const QString& templateName);

    /// Calls a method of the object at `path`; an error fails the test.
    QVariant ask(const QString& path, const QString& interface, const QString& method,
                 const QVariantList& arguments = {}) const;

    /// Tells the stand-in what to do.
    QVariant tell(const QString& path, const QString& method, const QVariantList& arguments) const;

    /// Gives the object a method; `code` is Python.
    void addMethod(const QString& name, const QString& in, const QString& out, const QString& code) const;

    void emitSignal(const QString& path, const QString& interface, const QString& name,
                    const QString& signature, const QVariantList& arguments) const;
    void changeProperties(const QString& path, const QString& interface, const QVariantMap& values) const;

    /// How often a method of the object at `path` was called.
    int callsOf(const QString& path, const QString& method) const;

    void suspend() const;
    void resume() const;

  private:
    MockService(const BusDaemon& bus, const QString& name, const QString& path, const QString& interface,
                const QStringList& arguments);

    const BusDaemon& bus_;
    QString name_;
    QString path_;
    QString interface_;
    ChildProcess process_;
};

} // namespace kestrelfen
