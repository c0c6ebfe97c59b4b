#include "SwaySession.hpp"

#include "platform/linux/EventLoop.hpp"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <gtest/gtest.h>

#include <csignal>
#include <unistd.h>

namespace kestrelfen {

namespace {

constexpr uid_t nobody = 65534;

constexpr char configuration[] = "xwayland disable\n"
                                 "output HEADLESS-1 mode 800x600 position 0 0\n"
                                 "output HEADLESS-2 mode 640x480 position 800 0\n"
                                 "workspace left output HEADLESS-1\n"
                                 "workspace right output HEADLESS-2\n";

/// The compositor refuses the superuser, and says much that means nothing here.
QStringList quietlyAsAnybody(const QStringList& command) {
    QStringList words{"-c", "exec \"$@\" 2>/dev/null", "sh"};
    if (::geteuid() == 0) {
        const QString number = QString::number(nobody);
        words << "setpriv"
              << "--pdeathsig=TERM"
              << "--reuid=" + number << "--regid=" + number << "--clear-groups";
    }
    return words + command;
}

const QStringList withoutHardware{"env",
                                  "--unset=WAYLAND_DISPLAY",
                                  "--unset=DISPLAY",
                                  "WLR_BACKENDS=headless",
                                  "WLR_HEADLESS_OUTPUTS=2",
                                  "WLR_RENDERER=pixman",
                                  "WLR_LIBINPUT_NO_DEVICES=1"};

} // namespace

std::optional<QString> SwaySession::lacking() {
    for (const char* const program : {"sway", "swaymsg", "foot", "wtype", "setpriv"}) {
        if (QStandardPaths::findExecutable(program).isEmpty()) {
            return program;
        }
    }
    return std::nullopt;
}

SwaySession::SwaySession() {
    const QString file = configure();
    if (::geteuid() == 0) {
        EXPECT_EQ(::chown(folder_.path().toLocal8Bit().constData(), nobody, nobody), 0);
    }
    compositor_ = std::make_unique<ChildProcess>(
        "sh", quietlyAsAnybody(withoutHardware + QStringList{"sway", "-c", file}));
    EXPECT_TRUE(waitUntil([this] {
        return QFileInfo::exists(socket()) && QFileInfo::exists(commandSocket());
    })) << "sway did not start";
    command("workspace left");
}

QString SwaySession::configure() const {
    QFile file(folder_.filePath("config"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(configuration);
    file.setPermissions(file.permissions() | QFile::ReadOther);
    return file.fileName();
}

void SwaySession::command(const QString& words) {
    const QString answer = outputOf("swaymsg", {"--raw", "-t", "command", words});
    EXPECT_TRUE(answer.contains("success") && !answer.contains("false"))
        << words.toStdString() << ": " << answer.toStdString();
}

void SwaySession::start(const QString& key, const QString& applicationId) {
    programs_[key] =
        std::make_unique<ChildProcess>("foot", QStringList{"--config=/dev/null", "--log-level=none",
                                                           "--app-id=" + applicationId, "sleep", "600"});
}

void SwaySession::type(const QString& text) const {
    outputOf("wtype", {text});
}

void SwaySession::kill() {
    ::kill(static_cast<pid_t>(compositor_->id()), SIGKILL);
    compositor_->stop();
}

} // namespace kestrelfen
