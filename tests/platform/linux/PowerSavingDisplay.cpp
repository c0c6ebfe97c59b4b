#include "platform/linux/PowerSavingDisplay.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {

namespace {

/// No server is started with so high a number.
constexpr int distance = 1000;

} // namespace

PowerSavingDisplay::PowerSavingDisplay(const QStringList& options)
    : outerDisplay_(qgetenv("DISPLAY")), number_(outerDisplay_.mid(1).toInt() + distance),
      process_("/usr/bin/python3",
               QStringList{SCRIPT_DIR "/power_saving_display.py", QString::number(number_ - distance),
                           QString::number(number_)} +
                   options) {
    EXPECT_EQ(process_.readLine(), "ready");
    qputenv("DISPLAY", ":" + QByteArray::number(number_));
}

PowerSavingDisplay::~PowerSavingDisplay() {
    qputenv("DISPLAY", outerDisplay_);
}

} // namespace kestrelfen
