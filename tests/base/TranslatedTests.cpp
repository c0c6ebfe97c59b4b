#include "base/Translated.hpp"

#include <gtest/gtest.h>

#include <map>

namespace kestrelfen {
namespace {

class SmallCatalogue : public Catalogue {
  public:
    std::map<std::string, std::string, std::less<>> texts;

    std::string text(std::string_view original) const override {
        const auto found = texts.find(original);
        return found == texts.end() ? std::string(original) : found->second;
    }

    std::string counted(std::int64_t count, std::string_view one, std::string_view many) const override {
        return text(count == 1 ? one : many);
    }
};

class Translated : public testing::Test {
  protected:
    void SetUp() override { useCatalogue(&catalogue_); }
    void TearDown() override { useCatalogue(nullptr); }

    SmallCatalogue catalogue_;
};

TEST_F(Translated, IsTheTextOfTheCatalogue) {
    catalogue_.texts = {{"Paused", "Angehalten"}};
    EXPECT_EQ(translated("Paused"), "Angehalten");
    EXPECT_EQ(translated("Snooze"), "Snooze");
}

TEST_F(Translated, IsTheOriginalWithoutACatalogue) {
    catalogue_.texts = {{"Paused", "Angehalten"}};
    useCatalogue(nullptr);
    EXPECT_EQ(translated("Paused"), "Paused");
    EXPECT_EQ(translatedCount(1, "%1 day", "%1 days"), "1 day");
    EXPECT_EQ(translatedCount(0, "%1 day", "%1 days"), "0 days");
}

TEST_F(Translated, PutsValuesWhereTheTranslationWantsThem) {
    catalogue_.texts = {{"%1 of %2", "von %2 sind es %1"}};
    EXPECT_EQ(translated("%1 of %2", {"3", "4"}), "von 4 sind es 3");
}

TEST_F(Translated, TakesValuesAsTheyAre) {
    EXPECT_EQ(translated("%1 and %2", {"%2", "x"}), "%2 and x");
}

TEST_F(Translated, LeavesSignsThatAreNoPlace) {
    EXPECT_EQ(translated("100%", {"a"}), "100%");
    EXPECT_EQ(translated("%1%", {"50"}), "50%");
    EXPECT_EQ(translated("%2 %0 %x", {"a"}), "%2 %0 %x");
}

TEST_F(Translated, CountsWithTheFormOfTheLanguage) {
    catalogue_.texts = {{"%1 day", "%1 Tag"}, {"%1 days", "%1 Tage"}};
    EXPECT_EQ(translatedCount(1, "%1 day", "%1 days"), "1 Tag");
    EXPECT_EQ(translatedCount(7, "%1 day", "%1 days"), "7 Tage");
}

} // namespace
} // namespace kestrelfen
