#include "ScenarioError.hpp"
#include "Words.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

using Words = std::vector<std::string>;

std::string errorOf(std::string_view line) {
    try {
        splitWords(line);
    } catch (const ScenarioError& error) {
        return error.what();
    }
    return "no error";
}

TEST(Words, AreSplitAtBlanks) {
    EXPECT_EQ(splitWords("run 20 0.5"), (Words{"run", "20", "0.5"}));
    EXPECT_EQ(splitWords("  run\t 20  "), (Words{"run", "20"}));
}

TEST(Words, BlankLineHasNone) {
    EXPECT_EQ(splitWords(""), Words());
    EXPECT_EQ(splitWords(" \t "), Words());
}

TEST(Words, LineWithNumberSignInFrontHasNone) {
    EXPECT_EQ(splitWords("# run 20"), Words());
    EXPECT_EQ(splitWords(" \t#run \"20"), Words());
}

TEST(Words, NumberSignFurtherOnIsOrdinary) {
    EXPECT_EQ(splitWords("run # 20#"), (Words{"run", "#", "20#"}));
    EXPECT_EQ(splitWords("\"#run\" 20"), (Words{"#run", "20"}));
}

TEST(Words, QuotedWordKeepsBlanks) {
    EXPECT_EQ(splitWords("task \"  Write\tthe letter \" x"), (Words{"task", "  Write\tthe letter ", "x"}));
}

TEST(Words, EmptyQuotesAreAWord) {
    EXPECT_EQ(splitWords("\"\" a \"\""), (Words{"", "a", ""}));
}

TEST(Words, QuotedWordKnowsThreeEscapes) {
    EXPECT_EQ(splitWords(R"("a\"b\\c\nd")"), (Words{"a\"b\\c\nd"}));
    EXPECT_EQ(splitWords(R"("\\n" "\\" "\"")"), (Words{"\\n", "\\", "\""}));
}

TEST(Words, BackslashOutsideQuotesIsOrdinary) {
    EXPECT_EQ(splitWords(R"(a\nb \)"), (Words{R"(a\nb)", R"(\)"}));
}

TEST(Words, AnyOtherEscapeIsMalformed) {
    EXPECT_EQ(errorOf(R"("a\tb")"), R"(unknown escape \t)");
    EXPECT_EQ(errorOf(R"("a\ b")"), R"(unknown escape \ )");
    EXPECT_EQ(errorOf(R"("a\'")"), R"(unknown escape \')");
    EXPECT_EQ(errorOf(R"("a\→b")"), R"(unknown escape \→)");
}

TEST(Words, QuoteInsideAWordIsMalformed) {
    EXPECT_EQ(errorOf("run a\"b"), "a quote inside a word");
    EXPECT_EQ(errorOf("run a\""), "a quote inside a word");
}

TEST(Words, WordGluedToAClosingQuoteIsMalformed) {
    EXPECT_EQ(errorOf("\"a\"b"), "a word is glued to a closing quote");
    EXPECT_EQ(errorOf("\"a\"\"b\""), "a word is glued to a closing quote");
    EXPECT_EQ(errorOf("\"a\"#"), "a word is glued to a closing quote");
}

TEST(Words, UnclosedQuoteIsMalformed) {
    EXPECT_EQ(errorOf("run \"20"), "a quote is not closed");
    EXPECT_EQ(errorOf("run \""), "a quote is not closed");
    EXPECT_EQ(errorOf("run \"20\\"), "a quote is not closed");
    EXPECT_EQ(errorOf("run \"20\\\""), "a quote is not closed");
}

TEST(Words, CarriageReturnIsNoBlank) {
    EXPECT_EQ(splitWords("run 20\r"), (Words{"run", "20\r"}));
    EXPECT_EQ(errorOf("run \"20\"\r"), "a word is glued to a closing quote");
}

TEST(Words, TextBeyondAsciiIsOrdinary) {
    EXPECT_EQ(splitWords("task add Grüße\u00a0an \"→ π\""), (Words{"task", "add", "Grüße\u00a0an", "→ π"}));
}

} // namespace
} // namespace kestrelfen
