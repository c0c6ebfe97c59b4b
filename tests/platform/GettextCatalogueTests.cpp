#include "platform/posix/GettextCatalogue.hpp"

#include <gtest/gtest.h>

#include <cstdlib>

namespace kestrelfen {
namespace {

/// The language is asked for once in a process.
class GettextCatalogueTest : public testing::Test {
  protected:
    static void SetUpTestSuite() {
        setenv("LC_ALL", "C.UTF-8", 1);
        setenv("LANGUAGE", "de", 1);
    }

    GettextCatalogue catalogue_{CATALOGUES};
};

TEST_F(GettextCatalogueTest, TellsATextInTheLanguageOfTheEnvironment) {
    EXPECT_EQ(catalogue_.text("Paused"), "Angehalten");
}

TEST_F(GettextCatalogueTest, SetsTenthsOffAsTheLanguageDoes) {
    EXPECT_EQ(catalogue_.text("%1.%2h"), "%1,%2\u00A0h");
}

TEST_F(GettextCatalogueTest, LeavesATextThatItLacks) {
    EXPECT_EQ(catalogue_.text("nobody says this"), "nobody says this");
    EXPECT_EQ(catalogue_.counted(2, "one thing", "%1 things"), "%1 things");
}

TEST_F(GettextCatalogueTest, LeavesTheEmptyTextEmpty) {
    EXPECT_EQ(catalogue_.text(""), "");
}

TEST_F(GettextCatalogueTest, TakesTheFormOfTheCount) {
    EXPECT_EQ(catalogue_.counted(1, "%1 day", "%1 days"), "%1 Tag");
    EXPECT_EQ(catalogue_.counted(0, "%1 day", "%1 days"), "%1 Tage");
    EXPECT_EQ(catalogue_.counted(5, "%1 day", "%1 days"), "%1 Tage");
}

TEST_F(GettextCatalogueTest, TakesAPartOfALongerText) {
    const std::string_view sentence = "Paused, %1 left";
    EXPECT_EQ(catalogue_.text(sentence.substr(0, 6)), "Angehalten");
}

} // namespace
} // namespace kestrelfen
