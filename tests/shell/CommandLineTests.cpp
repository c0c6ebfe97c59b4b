#include "shell/CommandLine.hpp"

#include <gmock/gmock.h>
#include <vector>

namespace kestrelfen {
namespace {

using testing::HasSubstr;
using testing::Optional;

std::optional<std::string> answerTo(const std::vector<const char*>& arguments) {
    return answerInPlaceOfStarting(arguments, {"1.2.3", "45"});
}

TEST(CommandLine, WithoutArgumentsTheProgramStarts) {
    EXPECT_EQ(answerTo({}), std::nullopt);
}

TEST(CommandLine, TheVersionNamesTheBuild) {
    EXPECT_EQ(answerTo({"--version"}), "Kestrelfen 1.2.3 (build 45)\n");
    EXPECT_EQ(answerTo({"-v"}), answerTo({"--version"}));
}

TEST(CommandLine, TheHelpNamesEveryOption) {
    for (const char* const option : {"-h", "--help", "-v", "--version"}) {
        EXPECT_THAT(answerTo({"--help"}), Optional(HasSubstr(option)));
    }
    EXPECT_EQ(answerTo({"-h"}), answerTo({"--help"}));
}

TEST(CommandLine, TheFirstQuestionIsAnswered) {
    EXPECT_EQ(answerTo({"--version", "--help"}), answerTo({"--version"}));
    EXPECT_EQ(answerTo({"--help", "--version"}), answerTo({"--help"}));
}

TEST(CommandLine, WhatItDoesNotKnowIsLeftToTheToolkit) {
    EXPECT_EQ(answerTo({"-platform", "offscreen", "--versions", "version", ""}), std::nullopt);
    EXPECT_EQ(answerTo({"-platform", "offscreen", "--version"}), answerTo({"--version"}));
}

} // namespace
} // namespace kestrelfen
