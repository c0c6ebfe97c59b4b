#include "platform/linux/browser/AccessibilityService.hpp"

#include "platform/linux/EventLoop.hpp"

#include <QDBusVariant>
#include <QFileInfo>
#include <gtest/gtest.h>

#include <csignal>

namespace kestrelfen {

namespace {

constexpr char name[] = "org.a11y.Bus";
constexpr char path[] = "/org/a11y/bus";
constexpr char statusInterface[] = "org.a11y.Status";
constexpr char propertiesInterface[] = "org.freedesktop.DBus.Properties";

QString launcherProgram() {
    for (const char* const program : {"/usr/libexec/at-spi-bus-launcher", "/usr/lib/at-spi-bus-launcher",
                                      "/usr/lib/at-spi2-core/at-spi-bus-launcher"}) {
        if (QFileInfo::exists(program)) {
            return program;
        }
    }
    ADD_FAILURE() << "at-spi-bus-launcher is not installed";
    return {};
}

} // namespace

AccessibilityService::AccessibilityService(const BusDaemon& sessionBus) : sessionBus_(sessionBus) {
    start();
}

/// Nothing of it may reach the settings of the person who runs the tests.
void AccessibilityService::start() {
    launcher_ = std::make_unique<ChildProcess>(
        "env", QStringList{"GSETTINGS_BACKEND=memory", "XDG_RUNTIME_DIR=" + folder_.path(),
                           "XDG_CACHE_HOME=" + folder_.path(), launcherProgram(), "--launch-immediately"});
    EXPECT_TRUE(waitUntil([this] { return sessionBus_.hasOwner(name); }));
}

void AccessibilityService::stop() {
    end();
    EXPECT_TRUE(waitUntil([this] { return !sessionBus_.hasOwner(name); }));
}

void AccessibilityService::end() {
    resume();
    launcher_.reset();
}

/// The launcher, its bus and the registry on that.
QStringList AccessibilityService::processes() const {
    QStringList found;
    if (launcher_ && launcher_->isRunning()) {
        found += QString::number(launcher_->id());
    }
    for (qsizetype index = 0; index < found.size(); ++index) {
        found += outputOf("pgrep", {"-P", found[index]}).split('\n', Qt::SkipEmptyParts);
    }
    return found;
}

void AccessibilityService::signalAll(int signal) const {
    for (const QString& process : processes()) {
        ::kill(process.toInt(), signal);
    }
}

void AccessibilityService::suspend() const {
    signalAll(SIGSTOP);
}

void AccessibilityService::resume() const {
    signalAll(SIGCONT);
}

void AccessibilityService::set(const char* property, bool isOn) const {
    sessionBus_.call(QDBusMessage::createMethodCall(name, path, propertiesInterface, "Set")
                     << statusInterface << property << QVariant::fromValue(QDBusVariant(isOn)));
}

bool AccessibilityService::isEnabled() const {
    const auto answer =
        sessionBus_.call(QDBusMessage::createMethodCall(name, path, propertiesInterface, "Get")
                         << statusInterface << "IsEnabled");
    return qvariant_cast<QDBusVariant>(answer.arguments().value(0)).variant().toBool();
}

QString AccessibilityService::address() const {
    return sessionBus_.call(QDBusMessage::createMethodCall(name, path, name, "GetAddress"))
        .arguments()
        .value(0)
        .toString();
}

} // namespace kestrelfen
