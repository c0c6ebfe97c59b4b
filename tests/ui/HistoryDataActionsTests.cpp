#include "StoreViewTest.hpp"
#include "platform/ports/TextFileWriter.hpp"
#include "ui/SettingsWindowView/HistoryDataActions.hpp"

namespace kestrelfen {
namespace {

using Text = std::optional<std::string>;

/// Keeps what was to be written, or refuses it.
class FakeTextFileWriter final : public TextFileWriter {
  public:
    std::optional<std::string> write(const std::string& path, std::string_view text) override {
        written.push_back(path + ": " + std::string(text));
        return error;
    }

    std::optional<std::string> error;
    std::vector<std::string> written;
};

constexpr const char* header = "started_at,type,duration_seconds,task,displays\n";

class HistoryDataActionsTest : public StoreViewTest {
  protected:
    HistoryDataActions& actions() {
        if (!actions_) {
            actions_ = std::make_unique<HistoryDataActions>(platform.ports(), store.get(), writer);
        }
        return *actions_;
    }

    void exportTo(const std::string& path) {
        actions().exportCSV(path);
        settleAll();
    }

    void deleteAll() {
        actions().deleteAllHistory();
        settleAll();
    }

    void recordPauseOn(std::string_view moment) {
        store->recordPause({at(moment), 60, PauseKind::manual, platform.calendar.startOfDay(at(moment))}, {});
        settleAll();
    }

    FakeTextFileWriter writer;
    std::unique_ptr<HistoryDataActions> actions_;
};

TEST_F(HistoryDataActionsTest, SayNothingAtFirst) {
    EXPECT_EQ(actions().exportMessage(), std::nullopt);
    EXPECT_EQ(actions().deletedDays(), std::nullopt);
    EXPECT_EQ(actions().deletionMessage(), std::nullopt);
}

TEST_F(HistoryDataActionsTest, ExportProposesAName) {
    EXPECT_STREQ(HistoryDataActions::proposedFileName, "Kestrelfen-history.csv");
}

TEST_F(HistoryDataActionsTest, ExportWritesTheHistoryAndNamesTheFile) {
    recordPauseOn("2026-03-09 07:00:00");
    exportTo("/home/me/My history.csv");
    EXPECT_EQ(writer.written, std::vector<std::string>{std::string("/home/me/My history.csv: ") + header +
                                                       "2026-03-09T07:00:00Z,Paused · manual,60,,\n"});
    EXPECT_EQ(actions().exportMessage(), Text("Exported to My history.csv."));
    exportTo("history.csv");
    EXPECT_EQ(actions().exportMessage(), Text("Exported to history.csv."));
}

TEST_F(HistoryDataActionsTest, ExportReaches3650CalendarDaysBack) {
    EXPECT_EQ(HistoryDataActions::exportStart(platform.calendar, at("2026-03-09 23:59:59")),
              at("2016-03-11 00:00:00"));
    recordPauseOn("2016-03-10 23:59:59");
    exportTo("a");
    recordPauseOn("2016-03-11 00:00:00");
    exportTo("b");
    ASSERT_EQ(writer.written.size(), 2U);
    EXPECT_EQ(writer.written[0], std::string("a: ") + header);
    EXPECT_EQ(writer.written[1], std::string("b: ") + header + "2016-03-11T00:00:00Z,Paused · manual,60,,\n");
}

TEST_F(HistoryDataActionsTest, FailedExportSaysWhyAndALaterOneReplacesIt) {
    writer.error = "No space left on device";
    exportTo("a.csv");
    EXPECT_EQ(actions().exportMessage(), Text("Couldn't write the file: No space left on device"));
    writer.error.reset();
    exportTo("a.csv");
    EXPECT_EQ(actions().exportMessage(), Text("Exported to a.csv."));
}

TEST_F(HistoryDataActionsTest, HistoryThatCannotBeReadIsExportedAsEmpty) {
    recordPauseOn("2026-03-09 07:00:00");
    setFailing(true);
    exportTo("a.csv");
    EXPECT_EQ(writer.written, std::vector<std::string>{std::string("a.csv: ") + header});
    EXPECT_EQ(actions().exportMessage(), Text("Exported to a.csv."));
}

TEST_F(HistoryDataActionsTest, DeletionCountsTheDays) {
    recordPauseOn("2026-03-07 07:00:00");
    recordPauseOn("2026-03-08 07:00:00");
    deleteAll();
    EXPECT_EQ(actions().deletedDays(), 2);
    EXPECT_EQ(actions().deletionMessage(), Text("Deleted 2 days of history."));
    deleteAll();
    EXPECT_EQ(actions().deletionMessage(), Text("Deleted 0 days of history."));
    recordPauseOn("2026-03-08 07:00:00");
    deleteAll();
    EXPECT_EQ(actions().deletionMessage(), Text("Deleted 1 day of history."));
}

TEST_F(HistoryDataActionsTest, WithoutAStoreNothingIsExportedAndNoDayDeleted) {
    store.reset();
    EXPECT_FALSE(actions().areAvailable());
    exportTo("a.csv");
    EXPECT_EQ(writer.written.size(), 0U);
    EXPECT_EQ(actions().exportMessage(), std::nullopt);
    deleteAll();
    EXPECT_EQ(actions().deletedDays(), 0);
}

TEST_F(HistoryDataActionsTest, AnswersThatComeTooLateAreDropped) {
    EXPECT_TRUE(actions().areAvailable());
    actions().exportCSV("a.csv");
    actions().deleteAllHistory();
    actions_.reset();
    settleAll();
    EXPECT_EQ(writer.written.size(), 0U);
}

} // namespace
} // namespace kestrelfen
