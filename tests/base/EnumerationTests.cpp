#include "base/BreakOutcome.hpp"
#include "base/Enumeration.hpp"
#include "base/PauseKind.hpp"

#include <gtest/gtest.h>

#include <gmock/gmock.h>
#include <set>
#include <string>

namespace kestrelfen {

enum class Season { spring, summer, winter };

template <>
struct EnumerationTable<Season> {
    static constexpr std::array<EnumerationRow<Season>, 3> rows{{
        {Season::spring, "spring", "Spring", "Birds"},
        {Season::summer, "high summer", "Summer"},
        {Season::winter, "winter", "Winter", "Snow"},
    }};
};

enum class Shuffled { first, second };

template <>
struct EnumerationTable<Shuffled> {
    static constexpr std::array<EnumerationRow<Shuffled>, 2> rows{{
        {Shuffled::second, "second"},
        {Shuffled::first, "first"},
    }};
};

namespace {

using testing::ElementsAre;

template <typename Case>
void expectEveryCaseToReadBack() {
    std::set<std::string> names;
    for (const Case value : allCases<Case>()) {
        EXPECT_EQ(fromRawValue<Case>(rawValue(value)), value);
        names.emplace(rawValue(value));
    }
    EXPECT_EQ(names.size(), allCases<Case>().size());
    EXPECT_TRUE(rowsAreInCaseOrder<Case>());
}

TEST(Enumeration, aCaseHasItsOwnTexts) {
    EXPECT_EQ(rawValue(Season::summer), "high summer");
    EXPECT_EQ(label(Season::winter), "Winter");
    EXPECT_EQ(caption(Season::winter), "Snow");
    EXPECT_EQ(caption(Season::summer), "");
}

TEST(Enumeration, aRawValueNamesItsCase) {
    EXPECT_EQ(fromRawValue<Season>("high summer"), Season::summer);
    EXPECT_EQ(fromRawValue<Season>("spring"), Season::spring);
}

TEST(Enumeration, aTextThatIsNoRawValueNamesNoCase) {
    for (const char* const text : {"", "Spring", "summer", "spring ", "springs", "autumn"}) {
        EXPECT_EQ(fromRawValue<Season>(text), std::nullopt) << text;
    }
}

TEST(Enumeration, allCasesComeInTheirOrder) {
    EXPECT_THAT(allCases<Season>(), ElementsAre(Season::spring, Season::summer, Season::winter));
}

TEST(Enumeration, aTableOutOfOrderIsFoundOut) {
    EXPECT_TRUE(rowsAreInCaseOrder<Season>());
    EXPECT_FALSE(rowsAreInCaseOrder<Shuffled>());
}

TEST(Enumeration, everyStoredCaseReadsBack) {
    expectEveryCaseToReadBack<BreakOutcome>();
    expectEveryCaseToReadBack<PauseKind>();
}

TEST(Enumeration, storedNamesStay) {
    EXPECT_EQ(rawValue(BreakOutcome::completed), "completed");
    EXPECT_EQ(rawValue(BreakOutcome::skipped), "skipped");
    std::vector<std::string_view> kinds;
    for (const PauseKind kind : allCases<PauseKind>()) {
        kinds.push_back(rawValue(kind));
    }
    EXPECT_THAT(kinds, ElementsAre("manual", "systemSleep", "screenLocked", "displaySleep", "userIdle",
                                   "meeting", "videoPlayback", "screenSharing", "focusApp"));
}

} // namespace
} // namespace kestrelfen
