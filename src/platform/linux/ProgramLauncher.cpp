#include "platform/linux/ProgramLauncher.hpp"

#include <QProcess>

#include <utility>

namespace kestrelfen {

void ProgramLauncher::launch(std::string_view bundleIdentifier, std::function<void()> completion) {
    const auto words = catalogue_.launchCommand(bundleIdentifier);
    if (words && !words->empty()) {
        QStringList command;
        for (const std::string& word : *words) {
            command << QString::fromStdString(word);
        }
        const QString program = command.takeFirst();
        QProcess::startDetached(program, command);
    }
    QMetaObject::invokeMethod(&context_, std::move(completion), Qt::QueuedConnection);
}

} // namespace kestrelfen
