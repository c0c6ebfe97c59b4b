#include "platform/linux/ChildProcess.hpp"

#include "platform/linux/EventLoop.hpp"

#include <QJsonDocument>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/prctl.h>

namespace kestrelfen {

namespace {

void prepare(QProcess& process) {
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); });
}

} // namespace

ChildProcess::ChildProcess(const QString& program, const QStringList& arguments) {
    prepare(process_);
    process_.start(program, arguments);
    EXPECT_TRUE(process_.waitForStarted()) << program.toStdString();
}

void ChildProcess::stop() {
    if (process_.state() == QProcess::NotRunning) {
        return;
    }
    ::kill(static_cast<pid_t>(id()), SIGCONT);
    process_.terminate();
    if (!process_.waitForFinished(2000)) {
        process_.kill();
        process_.waitForFinished();
    }
}

QString ChildProcess::readLine() {
    waitUntil([this] { return process_.canReadLine() || !isRunning(); });
    return QString::fromUtf8(process_.readLine()).trimmed();
}

QJsonObject ChildProcess::readObject() {
    return QJsonDocument::fromJson(readLine().toUtf8()).object();
}

void ChildProcess::writeLine(const QByteArray& line) {
    process_.write(line + '\n');
    process_.waitForBytesWritten();
}

QString outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    prepare(process);
    process.start(program, arguments);
    waitUntil([&process] { return process.state() == QProcess::NotRunning; });
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

void xdotool(const QStringList& arguments) {
    outputOf("xdotool", arguments);
}

} // namespace kestrelfen
