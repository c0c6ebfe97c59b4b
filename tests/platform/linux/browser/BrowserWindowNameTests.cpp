#include "platform/linux/BrowserWindowName.hpp"

#include <QStringList>
#include <gtest/gtest.h>

namespace kestrelfen {
namespace {

constexpr char chrome[] = "com.google.Chrome";
constexpr char edge[] = "com.microsoft.edgemac";

bool isOrdinary(const char* bundleIdentifier, const QString& name) {
    return isOrdinaryBrowserWindow(bundleIdentifier, name);
}

/// How the browsers of one family name their windows in each of their languages.
struct Language {
    const char* window;
    const char* privateMark;
    const char* guestMark;
};

const Language languages[] = {
    {"%1 – Chromium", "%1 (Incognito)", "%1 (Gas)"},
    {"%1 - Chromium", "%1 (ማንነትን የማያሳውቅ)", "%1 (እንግዳ)"},
    {"%1 - Chromium", "%1 (التصفح المتخفي)", "%1 (وضع الضيف)"},
    {"%1 - Chromium", "%1(ছদ্মবেশী)", "%1 (অতিথি)"},
    {"%1: Chromium", "%1 (Incògnit)", "%1 (convidat)"},
    {"%1 - Chromium", "%1 (anonym)", "%1 (Gast)"},
    {"%1 - Chromium", "%1 (Ανώνυμη περιήγηση)", "%1 (Επισκέπτης)"},
    {"%1 – Chromium", "%1 (Navigation privée)", "%1 (invité)"},
    {"%1 - Chromium", "%1 (גלישה בסתר)", "%1 (אורח)"},
    {"%1 - क्रोमियम", "%1 (गुप्त)", "%1 (मेहमान)"},
    {"%1 -- Chromium", "%1 (Inkognitó mód)", "%1 (vendég)"},
    {"%1 - Chromium", "%1（シークレット モード）", "%1（ゲスト）"},
    {"%1 - Chromium", "%1 (시크릿 모드)", "%1(게스트)"},
    {"„%1“ – „Chromium“", "„%1“ (Inkognito)", "„%1“ (svečias)"},
    {"%1 — Chromium", "%1 (Inkognito režīms)", "%1 (viesa režīms)"},
    {"\u200e%1 - Chromium", "%1 (پوشیدگی)", "%1 (مہمان)"},
    {"%1 - Chromium", "%1（无痕）", "%1（访客）"},
    {"%1 - Chromium", "%1 (無痕模式)", "%1 (訪客)"},
};

const QStringList titles{
    "Secret Title",           "New Tab",  "A - B – C: D", "Tips (Incognito) [x]", "Jean-Luc",
    "Get it - Google Chrome", "Chromium", "(12) Inbox",   "Incognito mode",       "“Quoted”"};

TEST(BrowserWindowNameTest, OrdinaryWindowsAreKnownInEveryLanguage) {
    for (const Language& language : languages) {
        for (const QString& title : titles) {
            const QString name = QString(language.window).arg(title);
            EXPECT_TRUE(isOrdinary(chrome, name)) << name.toStdString();
        }
    }
}

TEST(BrowserWindowNameTest, PrivateAndGuestWindowsAreNotOrdinaryInAnyLanguage) {
    for (const Language& language : languages) {
        for (const QString& title : titles) {
            const QString name = QString(language.window).arg(title);
            for (const char* const mark : {language.privateMark, language.guestMark}) {
                EXPECT_FALSE(isOrdinary(chrome, QString(mark).arg(name))) << mark << name.toStdString();
            }
        }
    }
}

TEST(BrowserWindowNameTest, AProfileMayStandBehindTheProduct) {
    for (const char* const name : {"Title - Google Chrome - Alice", "Title - Google Chrome – Alice (Work)",
                                   "Title - Google Chrome - Jean-Luc", "Title - Google Chrome Beta",
                                   "Title - Google Chrome Beta - Alice", "Title - Google Chrome: Alice"}) {
        EXPECT_TRUE(isOrdinary(chrome, name)) << name;
    }
}

TEST(BrowserWindowNameTest, WhatIsNotSurelyOrdinaryIsNot) {
    for (const char* const name :
         {"", "Google Chrome", "Title", "Title - Some Browser", "Google Chrome tips",
          "Title - Google Chrome Private", "Title - Google Chrome - (Incognito)",
          "Title - Google Chrome - Private", "Title - Google Chrome -", "Title - Google Chrome - A - B",
          "Title - Google Chrome [Private]", "Title Google Chrome", "Title - Google Chrome Beta (Incognito)",
          "Save File"}) {
        EXPECT_FALSE(isOrdinary(chrome, name)) << name;
    }
}

TEST(BrowserWindowNameTest, AMarkMayStandBeforeTheProduct) {
    EXPECT_TRUE(isOrdinary(edge, "Title - Personal - Microsoft\u200b Edge"));
    EXPECT_TRUE(isOrdinary(edge, "Title and 2 more pages - Microsoft Edge"));
    EXPECT_TRUE(isOrdinary(edge, "[InPrivate] how-to - Personal - Microsoft Edge"));
    EXPECT_FALSE(isOrdinary(edge, "Title - [InPrivate] - Microsoft\u200b Edge"));
    EXPECT_FALSE(isOrdinary(edge, "Title and 1 more page - [InPrivate] - Microsoft Edge"));
    EXPECT_FALSE(isOrdinary("com.vivaldi.Vivaldi", "Title - Private - Vivaldi"));
    EXPECT_FALSE(isOrdinary("com.operasoftware.Opera", "Title - private browsing - Opera"));
}

TEST(BrowserWindowNameTest, EveryBrowserHasItsProduct) {
    for (const auto& [identifier, product] :
         {std::pair(chrome, "Google Chrome"), std::pair(chrome, "Chromium"),
          std::pair("com.brave.Browser", "Brave"), std::pair(edge, "Microsoft Edge"),
          std::pair("company.thebrowser.Browser", "Arc"), std::pair("com.vivaldi.Vivaldi", "Vivaldi"),
          std::pair("com.operasoftware.Opera", "Opera"), std::pair("ai.perplexity.comet", "Comet")}) {
        EXPECT_TRUE(isOrdinary(identifier, QString("Title - ") + product)) << product;
        EXPECT_FALSE(isOrdinary(identifier, QString("Title - ") + product + " (Private)")) << product;
        EXPECT_FALSE(isOrdinary("com.apple.Safari", QString("Title - ") + product)) << product;
    }
    EXPECT_FALSE(isOrdinary("com.brave.Browser", "Title - Google Chrome"));
}

} // namespace
} // namespace kestrelfen
