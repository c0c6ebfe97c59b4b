#include "platform/linux/VirtualDisplay.hpp"

#include <QGuiApplication>
#include <gtest/gtest.h>

int main(int argumentCount, char** arguments) {
    testing::InitGoogleTest(&argumentCount, arguments);
    qunsetenv("WAYLAND_DISPLAY");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argumentCount, arguments);
    const kestrelfen::VirtualDisplay display;
    return RUN_ALL_TESTS();
}
