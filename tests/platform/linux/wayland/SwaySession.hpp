#pragma once

#include "EnvironmentValue.hpp"
#include "platform/linux/ChildProcess.hpp"

#include <QString>
#include <QTemporaryDir>

#include <map>
#include <memory>
#include <optional>

namespace kestrelfen {

/// A real compositor with two displays that nobody sees, side by side: 800 × 600 and 640 × 480.
/// $WAYLAND_DISPLAY names it while it lives.
class SwaySession {
  public:
    /// Absent when all that a session needs is installed, else what is lacking.
    static std::optional<QString> lacking();

    SwaySession();

    /// Tells the compositor what to do.
    static void command(const QString& words);

    /// A program with one window; `key` is the test's own name for it.
    void start(const QString& key, const QString& applicationId);
    void stop(const QString& key) { programs_.erase(key); }
    void type(const QString& text) const;

    /// The compositor ends at once, without a farewell.
    void kill();

  private:
    QString configure() const;
    QString socket() const { return folder_.filePath("wayland-1"); }
    QString commandSocket() const { return folder_.filePath("commands"); }

    QTemporaryDir folder_;
    EnvironmentValue runtimeFolder_{"XDG_RUNTIME_DIR", folder_.path().toUtf8()};
    EnvironmentValue commands_{"SWAYSOCK", commandSocket().toUtf8()};
    EnvironmentValue display_{"WAYLAND_DISPLAY", socket().toUtf8()};
    EnvironmentValue type_{"XDG_SESSION_TYPE", "wayland"};
    std::unique_ptr<ChildProcess> compositor_;
    std::map<QString, std::unique_ptr<ChildProcess>> programs_;
};

} // namespace kestrelfen
