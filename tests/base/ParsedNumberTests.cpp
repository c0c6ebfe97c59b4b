#include "base/ParsedNumber.hpp"

#include <gtest/gtest.h>

#include <cstdint>

namespace kestrelfen {
namespace {

TEST(ParsedNumber, IsWrittenByTheWholeText) {
    EXPECT_EQ(parsedNumber<std::int64_t>("-9223372036854775808"), INT64_MIN);
    EXPECT_EQ(parsedNumber<double>("1.5e3"), 1500.0);
    EXPECT_EQ(parsedNumber<std::size_t>("007"), 7U);
}

TEST(ParsedNumber, IsAbsentWhereAnythingElseIsThere) {
    for (const char* const text : {"", " 1", "1 ", "+1", "1x", "x", "1.5", "9223372036854775808"}) {
        EXPECT_EQ(parsedNumber<std::int64_t>(text), std::nullopt) << '"' << text << '"';
    }
    for (const char* const text : {"", " 1.5", "1.5 ", "1,5", "1e", "0x1"}) {
        EXPECT_EQ(parsedNumber<double>(text), std::nullopt) << '"' << text << '"';
    }
    EXPECT_EQ(parsedNumber<std::size_t>("-1"), std::nullopt);
}

} // namespace
} // namespace kestrelfen
