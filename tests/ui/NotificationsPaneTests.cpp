#include "PaneText.hpp"
#include "StoreViewTest.hpp"
#include "platform/ports/TextFileWriter.hpp"
#include "ui/SettingsWindowView/DeletionQuestion.hpp"
#include "ui/SettingsWindowView/HistoryDataActions.hpp"
#include "ui/SettingsWindowView/NotificationsPane.hpp"
#include "ui/SettingsWindowView/SettingsControls.hpp"

namespace kestrelfen {
namespace {

/// Writes nothing.
class NoTextFileWriter final : public TextFileWriter {
  public:
    std::optional<std::string> write(const std::string& /*path*/, std::string_view /*text*/) override {
        return error;
    }

    std::optional<std::string> error;
};

class NotificationsPaneTest : public StoreViewTest {
  protected:
    HistoryDataActions& data() {
        if (!data_) {
            data_ = std::make_unique<HistoryDataActions>(platform.ports(), store.get(), writer);
        }
        return *data_;
    }
    PaneContent content() { return NotificationsPane::content(engine(), platform.preferences, data()); }
    std::string row(std::size_t index) { return rowText(content().rows().at(index)); }

    void choose(std::string_view key, std::string_view word) {
        const SettingChoice& choice = *SettingChoice::find(key);
        SettingsControls(platform.preferences).choose(choice, *choice.option(word));
    }

    NoTextFileWriter writer;
    std::unique_ptr<HistoryDataActions> data_;
};

TEST_F(NotificationsPaneTest, TellsEachRow) {
    EXPECT_EQ(paneText(content()),
              "Notifications & Data\n"
              "What Kestrelfen is allowed to say, and how long it keeps what it recorded.\n"
              "# Preview\n"
              "previews\n"
              "  now / Break in 10 seconds — look 20 feet away. / prominent\n"
              "  18:00 / 0 breaks, 0 skipped, honest screen time for the day.\n"
              "rows\n"
              "  Warning HUD before a break / Dismissible without cancelling the break / on\n"
              "  Daily summary at 18:00 / Breaks taken, skipped, honest screen time / on\n"
              "  Sound on break start / Silent while Do Not Disturb is on / off\n"
              "  Keep history for / Pruning logs the row count it removed / "
              "plain 30 days 90 days [1 year] Forever\n"
              "buttons\n"
              "  <Export History as CSV…>\n"
              "  <Delete All History…>\n");
}

TEST_F(NotificationsPaneTest, PreviewsTellTheDayAndTheLeadRoundedUp) {
    prefer("preBreakWarningLeadSeconds", 12.1);
    start();
    beginBreak();
    engine().completeBreak(now());
    beginBreak();
    wait(6);
    engine().skipCurrentBreak();
    EXPECT_EQ(content().notes().at(0), "Break in 13 seconds — look 20 feet away.");
    EXPECT_EQ(content().notes().at(1), "1 breaks, 1 skipped, honest screen time for the day.");
}

TEST_F(NotificationsPaneTest, LeadThatCannotBeWrittenIsAFault) {
    prefer("preBreakWarningLeadSeconds", 1e300);
    start();
    EXPECT_DEATH(content(), "a number of seconds that cannot be written");
}

TEST_F(NotificationsPaneTest, PreviewsAreSpokenWhole) {
    const PaneBlock previews = content().blocks.at(0);
    EXPECT_EQ(NotificationPreview::title, "Kestrelfen");
    EXPECT_EQ(previews.previews.at(0).spoken(), "Kestrelfen, now: Break in 10 seconds — look 20 feet away.");
}

TEST_F(NotificationsPaneTest, SwitchesAndPillsWriteTheirKeys) {
    choose("warningHUDEnabled", "false");
    choose("dailySummaryEnabled", "false");
    choose("soundOnBreakStart", "true");
    EXPECT_EQ(row(0), "Warning HUD before a break / Dismissible without cancelling the break / off");
    EXPECT_EQ(row(1), "Daily summary at 18:00 / Breaks taken, skipped, honest screen time / off");
    EXPECT_EQ(row(2), "Sound on break start / Silent while Do Not Disturb is on / on");
    for (const auto& [word, days, label] :
         {std::tuple("30", 30, "[30 days]"), std::tuple("90", 90, "[90 days]"),
          std::tuple("0", 0, "[Forever]"), std::tuple("365", 365, "[1 year]")}) {
        choose("historyRetentionDays", word);
        EXPECT_EQ(*platform.preferences.object("historyRetentionDays"), PreferenceValue(std::int64_t{days}));
        EXPECT_NE(row(3).find(label), std::string::npos) << row(3);
    }
    prefer("historyRetentionDays", std::int64_t{31});
    EXPECT_EQ(row(3), "Keep history for / Pruning logs the row count it removed / "
                      "plain 30 days 90 days 1 year Forever");
}

TEST_F(NotificationsPaneTest, MessagesStandUnderTheButtons) {
    writer.error = "no space";
    data().exportCSV("/somewhere/a.csv");
    settleAll();
    EXPECT_EQ(content().notes().at(2), "Couldn't write the file: no space");
    writer.error.reset();
    data().exportCSV("/somewhere/a.csv");
    data().deleteAllHistory();
    settleAll();
    EXPECT_EQ(content().notes().at(2), "Exported to a.csv.");
    EXPECT_EQ(content().notes().at(3), "Deleted 0 days of history.");
    EXPECT_EQ(content().notes().size(), 4U);
}

TEST_F(NotificationsPaneTest, WithoutAStoreTheButtonsTakeNoClicks) {
    store.reset();
    const PaneBlock buttons = content().blocks.at(2);
    EXPECT_EQ(buttons.buttons, (std::vector<PaneBlock::Button>{{"Export History as CSV…", false},
                                                               {"Delete All History…", false}}));
    EXPECT_EQ(content().notes().size(), 2U);
}

TEST_F(NotificationsPaneTest, DeletionAsksFirst) {
    EXPECT_EQ(DeletionQuestion::title, "Delete all screen-time and break history?");
    EXPECT_EQ(DeletionQuestion::message,
              "Every day record, break, pause and app-usage row is removed. Tasks and "
              "settings are kept. This can't be undone.");
    EXPECT_EQ(DeletionQuestion::confirm, "Delete Everything");
    EXPECT_EQ(DeletionQuestion::cancel, "Cancel");
}

} // namespace
} // namespace kestrelfen
