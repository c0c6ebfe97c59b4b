#include "platform/linux/sound/SoundProgram.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {

SoundProgram::SoundProgram(const std::string& product)
    : process_(SOUND_CLIENT, {QString::fromStdString(product)}) {
    EXPECT_EQ(process_.readLine(), "connected");
}

void SoundProgram::tell(const std::string& command) {
    process_.writeLine(QByteArray::fromStdString(command));
    EXPECT_EQ(process_.readLine(), "done") << command;
}

} // namespace kestrelfen
