#include "platform/linux/ExecLine.hpp"

#include <gmock/gmock.h>

namespace kestrelfen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string nameIn(std::string_view line) {
    return executableName(execWords(line));
}

TEST(ExecLine, PlacesForFilesAndTheLikeAreLeftOut) {
    EXPECT_THAT(execWords("viewer %f %F %u %U %i %c %k -x"), ElementsAre("viewer", "-x"));
    EXPECT_THAT(execWords("viewer --file=%f"), ElementsAre("viewer", "--file="));
}

TEST(ExecLine, TwoPercentSignsAreOne) {
    EXPECT_THAT(execWords("viewer --zoom=50%%"), ElementsAre("viewer", "--zoom=50%"));
}

TEST(ExecLine, ALonePercentSignAtTheEndIsNothing) {
    EXPECT_THAT(execWords("viewer %"), ElementsAre("viewer"));
}

TEST(ExecLine, QuotesHoldAWordTogether) {
    EXPECT_THAT(execWords(R"("/opt/My Program/run" "a \"b\" \$c \\d" "")"),
                ElementsAre("/opt/My Program/run", R"(a "b" $c \d)", ""));
}

TEST(ExecLine, ALineWithAnOpenQuoteHasNoWords) {
    EXPECT_THAT(execWords("viewer \"a b"), IsEmpty());
}

TEST(ExecLine, TheExecutableIsNamedWithoutItsFolder) {
    EXPECT_EQ(nameIn("/usr/bin/viewer %U"), "viewer");
    EXPECT_EQ(nameIn(""), "");
}

TEST(ExecLine, TheEnvironmentIsNotTheProgram) {
    EXPECT_EQ(nameIn("env LANG=C -u HOME=x /usr/bin/viewer --a=b"), "viewer");
    EXPECT_EQ(nameIn("env BAMF_DESKTOP_FILE_HINT=/var/x.desktop /snap/bin/spotify %U"), "spotify");
    EXPECT_EQ(nameIn("env"), "");
}

TEST(ExecLine, ASandboxIsNotTheProgram) {
    EXPECT_EQ(nameIn("/usr/bin/flatpak run --branch=stable --command=firefox org.mozilla.firefox @@u %u @@"),
              "firefox");
    EXPECT_EQ(nameIn("flatpak run org.mozilla.firefox"), "");
    EXPECT_EQ(nameIn("snap run --shell=x chromium"), "chromium");
    EXPECT_EQ(nameIn("snap run office.writer"), "writer");
}

TEST(ExecLine, AnInterpreterIsNotTheProgram) {
    for (const char* const line : {"python3 /usr/share/x/x.py", "/usr/bin/python3.11 x", "sh -c viewer",
                                   "java -jar x.jar", "electron22 /usr/lib/x"}) {
        EXPECT_EQ(nameIn(line), "") << line;
    }
}

} // namespace

} // namespace kestrelfen
