#include "X11WindowsTest.hpp"

#include <QTemporaryDir>

#include <csignal>

namespace kestrelfen {

X11WindowsTest::X11WindowsTest() {
    startWindowManager();
    watch = std::make_unique<X11WindowWatch>(catalogue);
    applications = std::make_unique<X11Applications>(*watch);
    windows = std::make_unique<X11WindowList>(*watch);
    EXPECT_TRUE(waitUntil([this] { return applications->isAvailable(); }));
}

void X11WindowsTest::startWindowManager() {
    // While it starts, it passes over windows that open.
    windowManager_ =
        std::make_unique<ChildProcess>("openbox", QStringList{"--sm-disable", "--startup", "echo started"});
    QString line = windowManager_->readLine();
    while (line != "started" && !line.isEmpty()) {
        line = windowManager_->readLine();
    }
    EXPECT_FALSE(line.isEmpty()) << "openbox did not start";
}

void X11WindowsTest::killWindowManager() {
    ::kill(static_cast<pid_t>(windowManager_->id()), SIGKILL);
}

qint64 X11WindowsTest::start(const QString& className, const QString& geometry) {
    programs_[className] =
        std::make_unique<ChildProcess>("xterm", QStringList{"-class", className, "-name", "one", "-geometry",
                                                            geometry, "-e", "sleep", "600"});
    EXPECT_TRUE(comesToFront(className)) << className.toStdString();
    return processOf(className);
}

QString X11WindowsTest::windowOf(const QString& className) {
    return outputOf("xdotool", {"search", "--class", "^" + className + "$"}).section('\n', -1);
}

bool X11WindowsTest::comesToFront(const QString& className) {
    return waitUntil([&] {
        const auto application = applications->frontmost();
        return application && application->bundleIdentifier == "org.example." + className.toStdString();
    });
}

bool X11WindowsTest::nothingIsInFront() {
    return waitUntil([this] { return !applications->frontmost(); });
}

std::string X11WindowsTest::runningClasses() const {
    std::string result;
    for (const auto& application : applications->running()) {
        result += application.bundleIdentifier->substr(std::string("org.example.").size()) + " ";
    }
    return result;
}

std::string X11WindowsTest::classesOnScreen() const {
    std::string result;
    const auto all = windows->onScreen();
    for (const auto& window : all ? *all : std::vector<ScreenWindow>()) {
        for (const auto& [className, program] : programs_) {
            if (program->id() == window.ownerProcess) {
                result += className.toStdString() + " ";
            }
        }
    }
    return result;
}

std::optional<ScreenWindow> X11WindowsTest::windowOnScreen(const QString& className) const {
    const auto all = windows->onScreen();
    for (const auto& window : all ? *all : std::vector<ScreenWindow>()) {
        if (programs_.at(className)->id() == window.ownerProcess) {
            return window;
        }
    }
    return std::nullopt;
}

} // namespace kestrelfen
