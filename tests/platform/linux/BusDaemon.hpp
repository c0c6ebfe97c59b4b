#pragma once

#include "platform/linux/ChildProcess.hpp"

#include <QByteArray>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace kestrelfen {

/// A message bus of its own that can be stopped, and started again at the same address. While it lives, its
/// address stands in the environment.
class BusDaemon {
  public:
    enum class Start { atOnce, later };

    /// `variable` is the one in which programs look for the address.
    explicit BusDaemon(const char* variable, Start when = Start::atOnce);
    BusDaemon(const BusDaemon&) = delete;
    BusDaemon& operator=(const BusDaemon&) = delete;
    ~BusDaemon();

    void start();
    void stop();
    /// Without a last word to anybody.
    void crash();
    void suspend() const;
    void resume() const;

    QString address() const { return "unix:path=" + socket(); }

    /// The test's own connection.
    QDBusConnection connection() const { return QDBusConnection(connectionName_); }

    /// From its next start on it would start a service of that name when somebody asks for it.
    void offerToStart(const QString& name) const;

    bool hasOwner(const QString& name) const;

    /// Runs the event loop until the answer has come.
    QDBusMessage call(const QDBusMessage& message) const;

  private:
    QString socket() const { return folder_.filePath("bus"); }
    QString writeConfiguration() const;

    const char* variable_;
    QByteArray outerAddress_;
    QTemporaryDir folder_;
    QString connectionName_;
    std::unique_ptr<ChildProcess> daemon_;
};

} // namespace kestrelfen
