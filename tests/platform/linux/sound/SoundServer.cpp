#include "platform/linux/sound/SoundServer.hpp"

#include "platform/linux/EventLoop.hpp"

#include <QFile>
#include <gtest/gtest.h>

#include <csignal>

namespace kestrelfen {

SoundServer::SoundServer() {
    qputenv("PULSE_SERVER", "unix:" + path("socket"));
    qputenv("PULSE_COOKIE", path("cookie"));
    qputenv("PULSE_RUNTIME_PATH", path("runtime"));
    qputenv("PULSE_STATE_PATH", path("state"));
}

SoundServer::~SoundServer() {
    stop();
    for (const char* const name :
         {"PULSE_SERVER", "PULSE_COOKIE", "PULSE_RUNTIME_PATH", "PULSE_STATE_PATH"}) {
        qunsetenv(name);
    }
}

void SoundServer::start() {
    QFile::remove(path("socket"));
    const QString protocol = "module-native-protocol-unix auth-anonymous=1 socket=" + path("socket");
    server_.emplace("pulseaudio",
                    QStringList{"-n", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                                "--log-level=error", "-L", "module-null-sink sink_name=speakers", "-L",
                                "module-null-source source_name=microphone", "-L", protocol});
    EXPECT_TRUE(waitUntil([this] { return QFile::exists(path("socket")); })) << "pulseaudio did not start";
}

void SoundServer::kill() {
    ::kill(static_cast<pid_t>(server_->id()), SIGKILL);
    EXPECT_TRUE(waitUntil([this] { return !server_->isRunning(); }));
    stop();
}

void SoundServer::hang() {
    ::kill(static_cast<pid_t>(server_->id()), SIGSTOP);
}

void SoundServer::goOn() {
    ::kill(static_cast<pid_t>(server_->id()), SIGCONT);
}

QByteArray SoundServer::path(const char* name) const {
    return QByteArray::fromStdString((folder_ / name).string());
}

} // namespace kestrelfen
