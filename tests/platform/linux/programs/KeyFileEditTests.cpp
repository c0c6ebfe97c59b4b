#include "platform/linux/KeyFileEdit.hpp"

#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

TEST(KeyFileEdit, AKeyIsSetInItsGroupAlone) {
    EXPECT_EQ(withKey("# top\n[A]\nx=1\n[B]\nx=2\n", "B", "x", "3"), "# top\n[A]\nx=1\n[B]\nx=3\n");
    EXPECT_EQ(withKey("[A]\n x = 1\ny=2\nx=5\n", "A", "x", "3"), "[A]\nx=3\ny=2\n");
    EXPECT_EQ(withKey("[A]\ny=2\n", "A", "x", "3"), "[A]\nx=3\ny=2\n");
}

TEST(KeyFileEdit, OnlyTheFirstGroupOfANameCounts) {
    EXPECT_EQ(withKey("[A]\n[B]\n[A]\nx=1\n", "A", "x", "3"), "[A]\nx=3\n[B]\n[A]\nx=1\n");
}

TEST(KeyFileEdit, ATextWithoutTheGroupStaysAsItIs) {
    EXPECT_EQ(withKey("[A]\nx=1\n", "B", "x", "3"), "[A]\nx=1\n");
    EXPECT_EQ(withKey("", "B", "x", "3"), "");
}

TEST(KeyFileEdit, ALastLineMayLackItsLineFeed) {
    EXPECT_EQ(withKey("[A]", "A", "x", "3"), "[A]\nx=3\n");
    EXPECT_EQ(withoutKey("[A]\nx=1", "A", "x"), "[A]\n");
}

TEST(KeyFileEdit, CommentsAndKeysOfALikeNameStay) {
    EXPECT_EQ(withoutKey("[A]\n#x=1\nxx=2\nx[de]=4\nx=3\n", "A", "x"), "[A]\n#x=1\nxx=2\nx[de]=4\n");
}

} // namespace
} // namespace kestrelfen
