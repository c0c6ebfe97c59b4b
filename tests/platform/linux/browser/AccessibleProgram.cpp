#include "platform/linux/browser/AccessibleProgram.hpp"

#include <QJsonArray>
#include <QJsonDocument>

#include <csignal>

namespace kestrelfen {

namespace {

QByteArray line(const QJsonObject& command) {
    return QJsonDocument(command).toJson(QJsonDocument::Compact);
}

} // namespace

AccessibleProgram::AccessibleProgram(Windows windows)
    : program_("/usr/bin/python3", {"-B", SCRIPT_DIR "/accessible_program.py"}) {
    program_.readLine();
    show(windows);
}

void AccessibleProgram::show(Windows windows) {
    QJsonArray all;
    for (const QJsonObject& each : windows) {
        all.append(each);
    }
    program_.writeLine(line({{"windows", all}}));
    program_.readLine();
}

QStringList AccessibleProgram::calls() {
    program_.writeLine("{}");
    QStringList told;
    for (const QJsonValue call : program_.readObject()["calls"].toArray()) {
        told += call["member"].toString() + ' ' + QString::number(call["window"].toInt());
    }
    return told;
}

void AccessibleProgram::suspend() const {
    ::kill(process(), SIGSTOP);
}

void AccessibleProgram::resume() const {
    ::kill(process(), SIGCONT);
}

QJsonObject window(const char* address, const char* name) {
    return {{"name", name}, {"active", true}, {"address", address}};
}

} // namespace kestrelfen
