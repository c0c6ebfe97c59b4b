"""The main window's tasks and its sheet of usage: what is done there is in the store or in the preferences."""

import unittest

from scaffold import until
from scaffold.main_window import BUTTON, ITEM, PILL, UNTIL_STORED, MainWindowTest, active_time, plural

MENU, ENTRY, CHECK = "button menu", "menu item", "check box"
OPEN, DONE = "Plan the spring", "Sort the pictures"
RIGHT_BUTTON = 3
RANGES = {"Today": 0, "7 days": 6, "30 days": 29}
TOTALS = {
    "Apps": "SELECT max(displayName), sum(AppUsageRecord.activeSeconds) AS total FROM AppUsageRecord JOIN DayRecord "
            "ON day = DayRecord.id WHERE startOfDay >= :since GROUP BY bundleIdentifier ORDER BY total DESC",
    "Websites": "SELECT domain, sum(WebsiteUsageRecord.activeSeconds) AS total FROM WebsiteUsageRecord JOIN DayRecord "
                "ON day = DayRecord.id WHERE startOfDay >= :since GROUP BY domain ORDER BY total DESC",
}


class MainWindowTaskTests(MainWindowTest):
    def open_tasks(self):
        self.open("Tasks")
        self.wait_for("4 of 16 done")

    def row(self, title):
        """The name that the row of that task has now."""
        return until(lambda: next((name for name in self.rows() if name.startswith(title)), None), title)

    def menu(self, title, entry):
        self.click(self.row(title), ITEM, RIGHT_BUTTON)
        self.click(entry, ENTRY)

    def is_completed(self, title):
        return self.one("SELECT completedAt IS NOT NULL FROM TaskRecord WHERE title = :title", title=title) == 1

    def count(self):
        return self.one("SELECT count(*) FROM TaskRecord")

    def test_tasks_are_told_in_the_stores_order(self):
        self.open_tasks()
        told = [name.rsplit(", ", 1)[0] for name in self.rows()]
        titles = [title for title, in self.program.rows("SELECT title FROM TaskRecord "
                                                   "ORDER BY completedAt IS NOT NULL, completedAt DESC, sortIndex")]
        self.assertGreater(len(told), 5)
        self.assertEqual(told, titles[:len(told)])

    def test_task_is_completed_and_opened_again(self):
        self.open_tasks()
        self.click(f"Mark Complete: {OPEN}", CHECK)
        until(lambda: self.is_completed(OPEN), "it is completed")
        self.wait_for("5 of 16 done")
        self.hands.press(*["Tab"] * 4, "End")
        self.menu(OPEN, "Mark as Open")
        until(lambda: not self.is_completed(OPEN), "it is open")
        self.wait_for("4 of 16 done")

    def test_task_is_made_the_active_one_by_its_menu_and_cleared(self):
        self.open_tasks()
        self.menu(OPEN, "Make Active")
        until(lambda: self.row(OPEN).startswith(f"{OPEN}, Active"), "it is active")
        until(lambda: self.program.preferences.get("activeTaskID"), "the choice is written")
        self.menu(OPEN, "Clear Active Task")
        until(lambda: "Active" not in self.row(OPEN), "no task is active")
        self.assertEqual(self.count(), 16)

    def test_task_goes_only_when_its_deletion_is_confirmed(self):
        self.open_tasks()
        for answer in ("Return", "Escape"):
            self.menu(OPEN, "Delete")
            self.wait_for("Delete task?")
            self.hands.press(answer)
            self.wait_for_no("Delete task?")
            self.assertEqual(self.count(), 16)
        self.menu(OPEN, "Delete")
        self.click("Delete", BUTTON)
        until(lambda: self.count() == 15, "it is deleted")
        self.wait_for("4 of 15 done")
        self.assertEqual(self.program.rows("SELECT * FROM TaskRecord WHERE title = :title", title=OPEN), [])

    def test_completed_tasks_are_cleared(self):
        self.open_tasks()
        self.click("Clear Completed…")
        self.wait_for("Delete 4 completed tasks")
        self.click("Cancel")
        self.wait_for_no("Delete 4 completed tasks")
        self.assertEqual(self.count(), 16)
        self.click("Clear Completed…")
        self.click("Delete")
        self.wait_for("0 of 12 done")
        self.assertEqual(self.program.rows("SELECT * FROM TaskRecord WHERE completedAt IS NOT NULL"), [])

    def open_detail(self, **preferences):
        self.open("Screen Time", **preferences)
        self.click("See All")
        self.wait_for("Usage Detail")

    def test_usage_detail_tells_the_totals_of_each_source_and_range(self):
        self.open_detail(**{"websiteStats.chrome": True})
        for source, noun in (("Apps", "app"), ("Websites", "site")):
            self.click(source, PILL)
            for label, days_ago in RANGES.items():
                self.click(label, PILL)
                until(lambda: self.tells_totals(TOTALS[source], days_ago, noun), f"{source}, {label}", UNTIL_STORED)

    def tells_totals(self, question, days_ago, noun):
        rows = self.program.rows(question, since=self.since(days_ago))
        total = sum(seconds for _, seconds in rows)
        if f"{active_time(total)} across {plural(len(rows), noun)}" not in self.told():
            return False
        told = [self.without_details(name) for name in self.rows()]
        wanted = [(name, active_time(seconds), f"{round(100 * seconds / total)}%") for name, seconds in rows]
        return len(told) > 4 and told == wanted[:len(told)]

    @staticmethod
    def without_details(name):
        """Name, time and share, without how many days it was."""
        *words, time, share = name.split(", ")
        words = words[:-1] if words[-1].endswith((" day", " days")) else words
        return ", ".join(words), time, share

    def chip(self, category):
        """How many apps its chip counts."""
        return until(lambda: next((int(name.removeprefix(category)) for name in self.told(PILL)
                                   if name.startswith(category + " ")), -1) + 1, category) - 1

    def test_app_is_filed_under_another_category_and_back(self):
        self.open_detail()
        count = self.chip("Media")
        self.click("Browsing", MENU)
        self.click("Media", ENTRY)
        until(lambda: self.program.preferences.get("appCategoryOverrides") == {"com.google.Chrome": "media"}, "a choice")
        self.wait_for(f"Media {count + 1}")
        self.assertEqual(self.chip("Browsing"), 0)
        self.click(f"Media {count + 1}", PILL)
        until(lambda: len(self.rows()) == count + 1, "media alone")
        self.assertTrue(self.rows()[0].startswith("Chrome, set by you, "), self.rows())
        self.click("Media", MENU)
        self.click("Reset to Suggested", ENTRY)
        until(lambda: not any("Chrome" in name for name in self.rows()), "it leaves the list")
        self.assertEqual(self.chip("Media"), count)
        self.assertEqual(self.program.preferences["appCategoryOverrides"], {})
        self.hands.press("Escape")
        self.wait_for_no("Usage Detail")


if __name__ == "__main__":
    unittest.main()
