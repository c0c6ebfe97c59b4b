#include "platform/ports/Utf8.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

TEST(Utf8, acceptsTheFirstAndTheLastCharacterOfEachLength) {
    for (const char* const text : {"\x01", "\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF",
                                   "\xEE\x80\x80", "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
        EXPECT_TRUE(isWellFormedUtf8(text)) << text;
        EXPECT_EQ(wellFormedUtf8(text), text);
    }
    EXPECT_TRUE(isWellFormedUtf8(""));
    EXPECT_TRUE(isWellFormedUtf8(std::string_view("\0", 1)));
}

TEST(Utf8, refusesOverlongFormsSurrogatesAndWhatLiesBeyond) {
    for (const char* const text : {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
                                   "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xFF"}) {
        EXPECT_FALSE(isWellFormedUtf8(text)) << text;
    }
}

TEST(Utf8, refusesCharactersThatBreakOff) {
    for (const char* const text : {"\xC2", "\xE2\x82", "\xF0\x9F\x98", "\x80", "\xE2(\xA1"}) {
        EXPECT_FALSE(isWellFormedUtf8(text)) << text;
    }
}

TEST(Utf8, putsOneReplacementInPlaceOfEachBrokenPiece) {
    EXPECT_EQ(wellFormedUtf8("a\xF0\x9F\x98z"), "a\uFFFDz");
    EXPECT_EQ(wellFormedUtf8("\xE2\x82\xE2\x82\xAC"), "\uFFFD\u20AC");
    EXPECT_EQ(wellFormedUtf8("\xED\xA0\x80"), "\uFFFD\uFFFD\uFFFD");
    EXPECT_EQ(wellFormedUtf8("\xC0\xAF"), "\uFFFD\uFFFD");
}

} // namespace
} // namespace kestrelfen
