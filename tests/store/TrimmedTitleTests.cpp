#include "store/TrimmedTitle.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

TEST(TrimmedTitle, losesBlanksAndLineEndsAtBothEndsOnly) {
    EXPECT_EQ(trimmedTitle(" \t\r\n\v\f a  b \n c \r\n"), "a  b \n c");
    EXPECT_EQ(trimmedTitle("plain"), "plain");
    EXPECT_EQ(trimmedTitle(""), "");
}

TEST(TrimmedTitle, losesTheBlanksOfUnicode) {
    for (const char* const blank :
         {"\xC2\x85", "\xC2\xA0", "\xE1\x9A\x80", "\xE2\x80\x80", "\xE2\x80\x81", "\xE2\x80\x82",
          "\xE2\x80\x83", "\xE2\x80\x84", "\xE2\x80\x85", "\xE2\x80\x86", "\xE2\x80\x87", "\xE2\x80\x88",
          "\xE2\x80\x89", "\xE2\x80\x8A", "\xE2\x80\xA8", "\xE2\x80\xA9", "\xE2\x80\xAF", "\xE2\x81\x9F",
          "\xE3\x80\x80"}) {
        EXPECT_EQ(trimmedTitle(std::string(blank) + "a" + blank + blank), "a") << blank;
    }
}

TEST(TrimmedTitle, keepsWhatOnlyLooksEmpty) {
    const std::string zeroWidth = "\xE2\x80\x8B";
    EXPECT_EQ(trimmedTitle(zeroWidth), zeroWidth);
    EXPECT_EQ(trimmedTitle("\xF0\x9F\xA6\x85 "), "\xF0\x9F\xA6\x85");
    EXPECT_EQ(trimmedTitle("\x1F"), "\x1F");
}

TEST(TrimmedTitle, takesNoPartOfACharacter) {
    EXPECT_EQ(trimmedTitle("\xE2\x80\x94 dash \xE2\x80\x94"), "\xE2\x80\x94 dash \xE2\x80\x94");
    EXPECT_EQ(trimmedTitle("\xC3\xA0"), "\xC3\xA0");
    EXPECT_EQ(trimmedTitle("\x80 \x85"), "\x80 \x85");
}

} // namespace
} // namespace kestrelfen
