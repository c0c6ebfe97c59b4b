#include "platform/linux/Caseless.hpp"
#include "platform/linux/KnownPrograms.hpp"
#include "sensing/AppCategory.hpp"
#include "sensing/Browser.hpp"
#include "sensing/SmartPauseLists.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace kestrelfen {

namespace {

bool isTranslated(std::string_view product) {
    const auto rows = KnownPrograms::rows();
    return std::any_of(rows.begin(), rows.end(),
                       [&](const auto& row) { return row.bundleIdentifier == product; });
}

bool isAbsent(std::string_view product) {
    const auto absent = KnownPrograms::absentProducts();
    return std::find(absent.begin(), absent.end(), product) != absent.end();
}

/// The products of the lists of meetings, videos and captures, and the browsers.
std::set<std::string> listedProducts() {
    std::set<std::string> products;
    for (const SmartPauseKind kind : allCases<SmartPauseKind>()) {
        const auto& list = SmartPauseLists::defaultBundleIDs(kind);
        products.insert(list.begin(), list.end());
    }
    for (const Browser browser : allCases<Browser>()) {
        products.emplace(bundleID(browser));
    }
    return products;
}

bool isListed(std::string_view product) {
    return listedProducts().count(std::string(product)) > 0 || suggestedCategory(product);
}

TEST(KnownPrograms, EachProductOfTheBuiltInListsIsTranslatedOrAbsentAndNeverBoth) {
    ASSERT_GT(listedProducts().size(), 20U);
    for (const std::string& product : listedProducts()) {
        EXPECT_NE(isTranslated(product), isAbsent(product)) << product;
    }
}

// The table of categories cannot be gone through, but it can be asked: each of its products stands here.
TEST(KnownPrograms, EachProductWithACategoryIsTranslatedOrAbsentAndNeverBoth) {
    for (const char* const product : {"com.apple.dt.Xcode",
                                      "com.apple.Terminal",
                                      "dev.warp.Warp-Stable",
                                      "com.googlecode.iterm2",
                                      "com.microsoft.VSCode",
                                      "com.figma.Desktop",
                                      "com.apple.Notes",
                                      "notion.id",
                                      "com.linear",
                                      "com.tinyspeck.slackmacgap",
                                      "com.microsoft.teams",
                                      "com.microsoft.teams2",
                                      "us.zoom.xos",
                                      "com.apple.mail",
                                      "com.apple.MobileSMS",
                                      "com.apple.FaceTime",
                                      "com.hnc.Discord",
                                      "ru.keepcoder.Telegram",
                                      "net.whatsapp.WhatsApp",
                                      "com.apple.Safari",
                                      "com.google.Chrome",
                                      "com.brave.Browser",
                                      "org.mozilla.firefox",
                                      "company.thebrowser.Browser",
                                      "ai.perplexity.comet",
                                      "app.zen-browser.zen",
                                      "com.apple.Music",
                                      "com.spotify.client",
                                      "com.apple.TV",
                                      "com.apple.QuickTimePlayerX",
                                      "org.videolan.vlc",
                                      "com.colliderli.iina",
                                      "com.apple.finder",
                                      "com.apple.systempreferences",
                                      "com.apple.ActivityMonitor",
                                      "app.kestrelfen.mac"}) {
        EXPECT_TRUE(suggestedCategory(product)) << product;
        EXPECT_NE(isTranslated(product), isAbsent(product)) << product;
    }
}

TEST(KnownPrograms, NothingIsTranslatedThatNoListNames) {
    for (const auto& row : KnownPrograms::rows()) {
        EXPECT_TRUE(isListed(row.bundleIdentifier)) << row.bundleIdentifier;
    }
    for (const std::string_view product : KnownPrograms::absentProducts()) {
        EXPECT_TRUE(isListed(product)) << product;
    }
}

TEST(KnownPrograms, NoNameStandsForTwoProducts) {
    std::set<std::string> names;
    for (const auto& row : KnownPrograms::rows()) {
        EXPECT_TRUE(names.insert(lowered(row.name)).second) << row.name;
    }
}

TEST(KnownPrograms, NamesAreComparedWithoutCase) {
    EXPECT_EQ(KnownPrograms::bundleIdentifier("Google-chrome"), "com.google.Chrome");
    EXPECT_EQ(KnownPrograms::bundleIdentifier("DISCORD"), "com.hnc.Discord");
    EXPECT_EQ(KnownPrograms::bundleIdentifier("Code"), "com.microsoft.VSCode");
}

TEST(KnownPrograms, OtherProductsOfTheKindAreNotTakenForThem) {
    for (const char* const name : {"", "chromium", "chromium-browser", "VSCodium", "google-chrome-beta",
                                   "discord-canary", "Navigator", "electron"}) {
        EXPECT_FALSE(KnownPrograms::bundleIdentifier(name)) << name;
    }
}

} // namespace

} // namespace kestrelfen
