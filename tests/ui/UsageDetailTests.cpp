#include "StoreViewTest.hpp"
#include "ui/UsageDetailView/UsageDetail.hpp"
#include "ui/UsageDetailView/UsageDetailContent.hpp"

namespace kestrelfen {
namespace {

using Content = UsageDetailContent;

class UsageDetailTest : public StoreViewTest {
  protected:
    UsageDetail& detail() {
        if (!detail_) {
            detail_ = std::make_unique<UsageDetail>(platform.ports(), store.get(), opening_);
        }
        return *detail_;
    }

    UsageDetail& loaded() {
        detail().load();
        settleAll();
        return detail();
    }

    Content content() { return Content::of(detail()); }

    std::string names() {
        std::string text;
        for (const Content::Row& row : content().rows) {
            text += row.name + " ";
        }
        return text;
    }

    void recordApp(const std::string& bundle, double seconds, std::string_view day = "00:00:00") {
        store->addActiveTime({.seconds = seconds,
                              .bundleIdentifier = bundle,
                              .displayName = bundle.substr(bundle.rfind('.') + 1),
                              .displayID = 1,
                              .dayStart = at(day)},
                             {});
        settleAll();
    }

    void recordSite(const std::string& domain, double seconds, std::string_view day = "00:00:00") {
        store->addWebsiteTime({.seconds = seconds, .domain = domain, .dayStart = at(day)}, {});
        settleAll();
    }

    UsageDetail::Opening opening_{.dayStart = at("00:00:00"), .apps = {}, .websites = {}};
    std::unique_ptr<UsageDetail> detail_;
};

TEST_F(UsageDetailTest, LoadingBeforeTheFirstAnswer) {
    EXPECT_EQ(content().placeholder, "Loading…");
    opening_.source = UsageSource::websites;
    detail_.reset();
    EXPECT_EQ(content().placeholder, "Loading…");
    EXPECT_EQ(content().summaryLine, "0 s across 0 sites");
}

TEST_F(UsageDetailTest, DashboardsListsStandUntilTheFirstAnswer) {
    opening_.apps = {{"org.a", "a", 1, 50}, {"org.b", "b", 1, 40}, {"org.b", "b", 2, 20}};
    opening_.websites = {{"example.org", 5}};
    EXPECT_EQ(names(), "b a ");
    EXPECT_EQ(detail().totals().at(0), (AppTotal{"org.b", "b", 60, 2}));
    EXPECT_EQ(detail().sites().at(0), (WebsiteTotal{"example.org", 5, 1}));
    EXPECT_EQ(content().placeholder, std::nullopt);
    loaded();
    EXPECT_EQ(content().placeholder, "Nothing recorded in this range.");
}

TEST_F(UsageDetailTest, NothingRecorded) {
    loaded();
    EXPECT_EQ(content().placeholder, "Nothing recorded in this range.");
    EXPECT_EQ(content().summaryLine, "0 s across 0 apps");
    detail().setCategory(AppCategory::media);
    EXPECT_EQ(content().placeholder, "No apps in this category.");
    detail().setSource(UsageSource::websites);
    settleAll();
    EXPECT_EQ(content().placeholder,
              "No website time in this range. Turn a browser on in Settings › Website Stats.");
}

TEST_F(UsageDetailTest, WithoutAStoreItIsEmpty) {
    store.reset();
    EXPECT_TRUE(loaded().hasLoaded());
    EXPECT_EQ(content().placeholder, "Nothing recorded in this range.");
}

TEST_F(UsageDetailTest, RowsOfApps) {
    recordApp("com.apple.Safari", 900);
    recordApp("org.editor", 300);
    loaded();
    EXPECT_EQ(content().rows, (std::vector<Content::Row>{{.id = "com.apple.Safari",
                                                          .name = "Safari",
                                                          .detail = {},
                                                          .time = "15 m",
                                                          .share = "75%",
                                                          .fraction = 1,
                                                          .category = AppCategory::browsing},
                                                         {.id = "org.editor",
                                                          .name = "editor",
                                                          .detail = {},
                                                          .time = "5 m",
                                                          .share = "25%",
                                                          .fraction = 1.0 / 3,
                                                          .category = AppCategory::other}}));
    EXPECT_EQ(content().summaryLine, "20 m across 2 apps");
    EXPECT_EQ(content().placeholder, std::nullopt);
    EXPECT_EQ(content().firstNote, "Categories are yours to change and only affect this view.");
    EXPECT_EQ(content().secondNote, "attributed from window bounds · no extra permissions");
}

TEST_F(UsageDetailTest, ChipsCountTheCategories) {
    recordApp("com.apple.Safari", 900);
    recordApp("com.google.Chrome", 300);
    recordApp("org.editor", 30);
    loaded().setCategory(AppCategory::browsing);
    std::string text;
    for (const Content::Chip& chip : content().chips) {
        text += std::string(chip.label) + " " + std::to_string(chip.count) + (chip.isSelected ? "! " : " ");
    }
    EXPECT_EQ(text, "All 3 Work 0 Communication 0 Browsing 2! Media 0 Utilities 0 Uncategorised 1 ");
    EXPECT_EQ(content().chips[0].symbol, "");
    EXPECT_EQ(content().chips[3].symbol, "safari");
    detail().setCategory({});
    EXPECT_TRUE(content().chips[0].isSelected);
}

TEST_F(UsageDetailTest, FilterCountsInTheSummaryTheSharesAndTheBars) {
    recordApp("com.apple.Safari", 900);
    recordApp("org.editor", 60);
    loaded().setCategory(AppCategory::other);
    EXPECT_EQ(names(), "editor ");
    EXPECT_EQ(content().summaryLine, "1 m across 1 app");
    EXPECT_EQ(content().rows[0].share, "100%");
    EXPECT_EQ(content().rows[0].fraction, 1);
}

TEST_F(UsageDetailTest, RowMovesOutOfAFilteredListAtOnce) {
    recordApp("com.apple.Safari", 900);
    loaded().setCategory(AppCategory::browsing);
    int changes = 0;
    const auto subscription = detail().observe([&changes] { ++changes; });
    detail().assign("com.apple.Safari", AppCategory::work);
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(content().placeholder, "No apps in this category.");
    detail().setCategory(AppCategory::work);
    EXPECT_EQ(content().rows.at(0).detail, "set by you");
    EXPECT_TRUE(content().rows.at(0).canReset);
    detail().resetCategory("com.apple.Safari");
    EXPECT_EQ(changes, 3);
    detail().setCategory({});
    EXPECT_EQ(content().rows.at(0).detail, std::nullopt);
    EXPECT_FALSE(content().rows.at(0).canReset);
    EXPECT_EQ(content().rows.at(0).category, AppCategory::browsing);
}

TEST_F(UsageDetailTest, StaleChoiceCanBeReset) {
    recordApp("com.apple.Safari", 900);
    prefer("appCategoryOverrides", PreferenceDictionary{{"com.apple.Safari", "gardening"}});
    loaded();
    EXPECT_EQ(content().rows.at(0).category, AppCategory::browsing);
    EXPECT_TRUE(content().rows.at(0).canReset);
}

TEST_F(UsageDetailTest, ChosenUncategorisedWinsOverTheSuggestion) {
    recordApp("com.apple.Safari", 900);
    loaded().assign("com.apple.Safari", AppCategory::other);
    EXPECT_EQ(content().rows.at(0).category, AppCategory::other);
}

TEST_F(UsageDetailTest, RowsOfWebsites) {
    recordSite("example.org", 600);
    recordSite("example.net", 200);
    recordSite("example.org", 600, "2026-03-08 00:00:00");
    opening_.source = UsageSource::websites;
    loaded();
    EXPECT_EQ(names(), "example.org example.net ");
    EXPECT_EQ(content().rows.at(0).detail, std::nullopt);
    EXPECT_EQ(content().rows.at(0).category, std::nullopt);
    EXPECT_EQ(content().rows.at(0).share, "75%");
    EXPECT_TRUE(content().chips.empty());
    EXPECT_EQ(content().firstNote, "Domains only — never full URLs, page titles, or contents.");
    EXPECT_EQ(content().secondNote, "from the browsers you enabled · Automation permission");
    detail().setRange(DayRange::week);
    settleAll();
    EXPECT_EQ(content().rows.at(0).detail, "2 days");
    EXPECT_EQ(content().rows.at(1).detail, "1 day");
    EXPECT_EQ(content().summaryLine, "23 m across 2 sites");
}

TEST_F(UsageDetailTest, CategoryHasNoEffectOnWebsitesAndIsKept) {
    recordSite("example.org", 60);
    loaded().setCategory(AppCategory::media);
    detail().setSource(UsageSource::websites);
    settleAll();
    EXPECT_EQ(content().summaryLine, "1 m across 1 site");
    detail().setSource(UsageSource::apps);
    EXPECT_EQ(detail().category(), AppCategory::media);
}

TEST_F(UsageDetailTest, RangesReachBackFromTheGivenDay) {
    recordApp("org.today", 1);
    recordApp("org.week", 1, "2026-03-03 00:00:00");
    recordApp("org.month", 1, "2026-02-08 00:00:00");
    recordApp("org.older", 1, "2026-02-07 00:00:00");
    EXPECT_EQ(loaded().totals().size(), 1U);
    detail().setRange(DayRange::week);
    settleAll();
    EXPECT_EQ(detail().totals().size(), 2U);
    detail().setRange(DayRange::month);
    settleAll();
    EXPECT_EQ(detail().totals().size(), 3U);
    EXPECT_EQ(detail().loadToken(), "apps-month");
}

TEST_F(UsageDetailTest, CategoryDoesNotLoad) {
    loaded();
    recordApp("org.a", 1);
    detail().setCategory(AppCategory::other);
    settleAll();
    EXPECT_TRUE(detail().totals().empty());
}

TEST_F(UsageDetailTest, AnswersToAnEarlierLoadAreDropped) {
    recordApp("org.a", 1, "2026-03-08 00:00:00");
    loaded().setRange(DayRange::week);
    detail().setRange(DayRange::today);
    settleAll();
    EXPECT_TRUE(detail().totals().empty());
    detail().setRange(DayRange::week);
    detail_.reset();
    settleAll();
    EXPECT_EQ(content().placeholder, "Loading…");
}

TEST_F(UsageDetailTest, NoSecondsDivideNothing) {
    opening_.apps = {{"org.a", "a", 1, 0}};
    EXPECT_EQ(content().rows.at(0).share, "0%");
    EXPECT_EQ(content().rows.at(0).fraction, 0);
}

TEST_F(UsageDetailTest, SourcesAreNamed) {
    EXPECT_EQ(usageSourceLabel(UsageSource::apps), "Apps");
    EXPECT_EQ(usageSourceLabel(UsageSource::websites), "Websites");
}

} // namespace
} // namespace kestrelfen
