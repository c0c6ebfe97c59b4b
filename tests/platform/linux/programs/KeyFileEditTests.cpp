#include "platform/linux/KeyFile.hpp"
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

TEST(KeyFileEdit, ALineThatNamesNoGroupEndsNone) {
    EXPECT_EQ(withoutKey("[A]\nx=1\n[B\nx=2\n[]\nx=3\n[C]\nx=4\n", "A", "x"), "[A]\n[B\n[]\n[C]\nx=4\n");
    EXPECT_EQ(keyFileGroup("[A]\nx=1\n[B\ny=2\n", "A").count("y"), 1U);
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
