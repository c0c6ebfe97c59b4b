#include "platform/linux/VirtualDisplay.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {

namespace {

/// Keys repeat soon, so that no test has to hold one for long.
QStringList serverArguments() {
    return {"-displayfd", "1",   "-screen",  "0",   "800x600x24",  "-noreset",
            "-nolisten",  "tcp", "-ardelay", "150", "-arinterval", "30"};
}

} // namespace

VirtualDisplay::VirtualDisplay(const QStringList& arguments)
    : outerDisplay_(qgetenv("DISPLAY")), server_("Xvfb", serverArguments() + arguments) {
    const QString number = server_.readLine();
    EXPECT_FALSE(number.isEmpty()) << "Xvfb did not start";
    qputenv("DISPLAY", ":" + number.toUtf8());
}

VirtualDisplay::~VirtualDisplay() {
    qputenv("DISPLAY", outerDisplay_);
}

} // namespace kestrelfen
