#include "platform/fake/FakeLog.hpp"
#include "platform/linux/DBusSingleInstance.hpp"
#include "platform/linux/PrivateBus.hpp"
#include "platform/linux/VirtualDisplay.hpp"

#include <QGuiApplication>
#include <gtest/gtest.h>

#include <iostream>
#include <string_view>

namespace kestrelfen {
namespace {

const char* nameOf(SingleInstance::Claim claim) {
    switch (claim) {
    case SingleInstance::Claim::first:
        return "first";
    case SingleInstance::Claim::second:
        return "second";
    case SingleInstance::Claim::unavailable:
        return "unavailable";
    }
    return "";
}

/// An instance of a program that runs once: it says what its claim came to, and each request to show itself.
int runInstance(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    FakeLog log;
    log.onLine = [](const FakeLog::Line& line) { std::cout << line.category << std::endl; };
    DBusSingleInstance instance(QDBusConnection::sessionBus(), log);
    instance.onShow([] { std::cout << "show" << std::endl; });
    const auto claim = instance.claim();
    std::cout << nameOf(claim) << std::endl;
    return claim == SingleInstance::Claim::first ? QCoreApplication::exec() : 0;
}

int runTests(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    // No Wayland session around the tests may leak in; the display is reached by the backends' own means.
    qunsetenv("WAYLAND_DISPLAY");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argumentCount, arguments);
    const VirtualDisplay display;
    const PrivateBus bus;
    return RUN_ALL_TESTS();
}

} // namespace
} // namespace kestrelfen

int main(int argumentCount, char** arguments) {
    if (argumentCount > 1 && std::string_view(arguments[1]) == "--instance") {
        return kestrelfen::runInstance(argumentCount, arguments);
    }
    return kestrelfen::runTests(argumentCount, arguments);
}
