#pragma once

#include <QJsonObject>
#include <QProcess>
#include <QString>
#include <QStringList>

namespace kestrelfen {

/// A program that a test runs beside itself. It ends with this object, and with the test's process.
class ChildProcess {
  public:
    ChildProcess(const QString& program, const QStringList& arguments);
    ~ChildProcess() { stop(); }

    qint64 id() const { return process_.processId(); }
    bool isRunning() const { return process_.state() == QProcess::Running; }
    void stop();

    /// Runs the event loop until the program has written a line; empty when it writes none.
    QString readLine();

    /// The next line, as JSON.
    QJsonObject readObject();

    void writeLine(const QByteArray& line);

  private:
    QProcess process_;
};

/// Runs a program to its end and answers what it wrote.
QString outputOf(const QString& program, const QStringList& arguments);

/// Does real input on the display.
void xdotool(const QStringList& arguments);

} // namespace kestrelfen
