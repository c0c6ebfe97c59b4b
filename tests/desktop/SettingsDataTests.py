"""The history as a whole, from the settings: taken out of the program, and taken away."""

import unittest
from datetime import datetime, timezone
from pathlib import Path

from scaffold import until
from scaffold.keyboard import BUTTON
from scaffold.portal import GRANTED, REFUSED, Portal
from scaffold.settings import LONG, SettingsTest

EXPORT = "Export History as CSV…"
DELETE = "Delete All History…"
QUESTION = "Delete all screen-time and break history?"
SHORT = LONG | {"workIntervalSeconds": 1.0, "breakDurationSeconds": 1.0, "preBreakWarningLeadSeconds": 0.2,
                "longBreakEvery": 12}
HISTORY = ("DayRecord", "BreakRecord", "PauseRecord", "AppUsageRecord")


class SettingsDataTests(SettingsTest):
    def counts(self, program):
        return {table: program.rows(f"SELECT count(*) FROM {table}")[0][0] for table in HISTORY}

    def kept(self, program):
        """Days and breaks; the use of programs goes on all the time."""
        counts = self.counts(program)
        return counts["DayRecord"], counts["BreakRecord"]

    def at_rest_with_history(self):
        """After two breaks, with the pane open, and no break to come."""
        first = self.start(SHORT)
        first.logs("break complete (today: 2)")
        first.end()
        program = self.start_with_settings(LONG, home=first.home)
        self.show(program, "Notifications")
        return program

    def portal(self):
        portal = Portal(self.desktop)
        self.addCleanup(portal.end)
        return portal

    def home_files(self):
        return sorted(Path(self.desktop.environment["HOME"]).glob("*.csv"))

    def stored_as_csv(self, program):
        """The completed breaks in the store, the newest first, as the file should have them."""
        rows = program.rows("SELECT startedAt, actualSeconds, displayCount FROM BreakRecord "
                                  "ORDER BY startedAt DESC")
        self.assertEqual(len(rows), 2)
        lines = ["started_at,type,duration_seconds,task,displays"]
        for microseconds, seconds, displays in rows:
            started = datetime.fromtimestamp(microseconds // 1_000_000, timezone.utc).strftime("%Y-%m-%dT%H:%M:%SZ")
            lines.append(f"{started},Completed,{seconds:.0f},,{displays}")
        return "".join(line + "\n" for line in lines)

    def test_export_goes_where_the_dialog_says(self):
        portal = self.portal()
        chosen = Path(self.desktop.folder) / "My history.csv"
        portal.answer_save(GRANTED, chosen)
        program = self.at_rest_with_history()
        self.click_button(program, EXPORT)
        self.wait_until_told(program, "Exported to My history.csv.")
        asked = [(str(options["current_name"]), [str(rule[1]) for _, rules in options["filters"] for rule in rules])
                 for _, _, options in portal.save_calls()]
        self.assertEqual(asked, [("Kestrelfen-history.csv", ["text/csv"])])
        self.assertEqual(chosen.read_text(encoding="utf-8"), self.stored_as_csv(program))
        self.assertEqual(self.home_files(), [])

    def test_cancelled_dialog_writes_and_says_nothing(self):
        portal = self.portal()
        portal.answer_save(REFUSED)
        program = self.at_rest_with_history()
        self.click_button(program, EXPORT)
        until(portal.save_calls, "the dialog")
        self.hands.nudge()
        told = self.tree.told(program.pid)
        self.assertFalse([name for name in told if "xported" in name or "Couldn't" in name])
        self.assertEqual(self.home_files(), [])

    def test_export_that_fails_says_so_until_one_succeeds(self):
        portal = self.portal()
        portal.answer_save(GRANTED, Path(self.desktop.folder) / "nowhere" / "a.csv")
        program = self.at_rest_with_history()
        self.click_button(program, EXPORT)
        until(lambda: any(name.startswith("Couldn't write the file: ") for name in self.tree.told(program.pid)),
              "the trouble")
        portal.answer_save(GRANTED, Path(self.desktop.folder) / "a.csv")
        self.click_button(program, EXPORT)
        self.wait_until_told(program, "Exported to a.csv.")
        self.assertFalse([name for name in self.tree.told(program.pid) if "Couldn't" in name])

    def test_without_a_dialog_it_goes_home_and_never_over_another(self):
        program = self.at_rest_with_history()
        self.addCleanup(lambda: [path.unlink() for path in self.home_files()])
        self.click_button(program, EXPORT)
        self.wait_until_told(program, "Exported to Kestrelfen-history.csv.")
        self.click_button(program, EXPORT)
        self.wait_until_told(program, "Exported to Kestrelfen-history 2.csv.")
        self.assertEqual([path.name for path in self.home_files()],
                         ["Kestrelfen-history 2.csv", "Kestrelfen-history.csv"])
        self.assertEqual(self.home_files()[1].read_text(encoding="utf-8"), self.stored_as_csv(program))

    def test_all_history_goes_only_when_it_is_confirmed(self):
        program = self.at_rest_with_history()
        self.assertEqual(self.kept(program), (1, 2))
        self.click_button(program, DELETE)
        self.wait_until_told(program, QUESTION)
        self.click_button(program, "Cancel")
        until(lambda: QUESTION not in (told := self.tree.told(program.pid)) and told, "no question")
        self.assertEqual(self.kept(program), (1, 2))
        self.click_button(program, DELETE)
        self.wait_until_told(program, QUESTION)
        self.click_button(program, "Delete Everything")
        self.wait_until_told(program, "Deleted 1 day of history.")
        self.assertEqual(self.counts(program), dict.fromkeys(HISTORY, 0))
        self.assertTrue(self.keyboard.control(DELETE, BUTTON))


if __name__ == "__main__":
    unittest.main()
