#pragma once

#include "platform/linux/ChildProcess.hpp"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace kestrelfen {

/// A watcher and host of StatusNotifierItems in a process of its own.
class TrayHost {
  public:
    explicit TrayHost(const QStringList& arguments = {})
        : process_("/usr/bin/python3", QStringList{SCRIPT_DIR "/tray_host.py"} + arguments) {
        process_.readLine();
    }

    /// The next thing that it tells.
    QJsonObject next() { return process_.readObject(); }

    QJsonObject ask(const QJsonObject& command) {
        order(command);
        return next();
    }

    QJsonObject call(const QString& method, const QJsonArray& arguments) {
        return ask({{"do", "call"}, {"method", method}, {"arguments", arguments}});
    }

    void setHost(bool isThere) { order({{"do", "host"}, {"is", isThere}}); }

  private:
    void order(const QJsonObject& command) {
        process_.writeLine(QJsonDocument(command).toJson(QJsonDocument::Compact));
    }

    ChildProcess process_;
};

} // namespace kestrelfen
