"""The main window's dashboard and its table of breaks: what they tell is what the store holds."""

import datetime
import unittest

from scaffold import until
from scaffold.main_window import (ITEM, LABEL, MICROSECONDS, PILL, SHOWN_AT_MOST, UNTIL_STORED, MainWindowTest,
                                  active_time, plural)

COMPOSER = "Add a task — return to save, escape to cancel"
WHEEL_UP, WHEEL_DOWN = 4, 5
RANGES = {"Today": 0, "7 days": 6, "30 days": 29}
#: More do not fit into the window.
ROWS_IN_SIGHT = 20


class MainWindowTests(MainWindowTest):
    def test_tabs_are_walked_by_pointer_and_keyboard(self):
        self.open("Screen Time")
        self.wait_for("Eye Score")
        self.click("Breaks", PILL)
        self.wait_for("Started")
        self.click("Tasks", PILL)
        self.wait_for(COMPOSER)
        self.hands.press("Left")
        self.wait_for("Started")
        self.hands.press("Left")
        self.wait_for("Eye Score")
        self.assertEqual(self.program.count("failed"), 0)

    def test_dashboard_tells_todays_figures(self):
        self.open("Screen Time")
        self.wait_for("Eye Score")
        for column, label in (("activeSeconds", "screen time"), ("pausedSeconds", "paused away")):
            question = f"SELECT {column} FROM DayRecord ORDER BY startOfDay DESC LIMIT 1"
            until(lambda: f"{active_time(self.one(question))} {label}" in self.told(LABEL), label, UNTIL_STORED)

    def test_dashboard_tells_the_longest_stretch(self):
        self.open("Screen Time")
        breaks = self.program.rows("SELECT startedAt, actualSeconds FROM BreakRecord WHERE outcomeRawValue = 'completed' "
                             "AND startedAt >= :since ORDER BY startedAt", since=self.since(0))
        ends = [start / MICROSECONDS + seconds for start, seconds in breaks]
        gaps = [start / MICROSECONDS - end for (start, _), end in zip(breaks[1:], ends)]
        now = datetime.datetime.now().timestamp()
        expected = {active_time(max([*gaps, now - ends[-1] + late])) for late in (0, 60)}
        until(lambda: expected & {name.removesuffix(" longest today") for name in self.told(LABEL)}, "the stretch")

    def test_dashboard_tells_the_days_of_the_week(self):
        self.open("Screen Time")
        self.wait_for("Eye Score")
        days = {start: rest for start, *rest in self.program.rows(
            "SELECT startOfDay, activeSeconds, breaksCompleted, breaksSkipped FROM DayRecord")}
        for ago in range(1, 7):
            self.assertIn(self.day_sentence(self.since(ago), *days.get(self.since(ago), (0, 0, 0))), self.told(LABEL))

    def day_sentence(self, start, seconds, completed, skipped):
        day = datetime.datetime.fromtimestamp(start / MICROSECONDS, self.east)
        kept = f" · {round(100 * completed / (completed + skipped))}% kept" if completed + skipped else ""
        return f"{day:%a} {day.day} {day:%b} · {active_time(seconds)} · {plural(completed, 'break')}{kept}"

    def test_dashboard_tells_the_four_apps_and_sites_that_took_most(self):
        self.open("Screen Time")
        self.wait_for("Eye Score")
        apps = ("SELECT displayName, activeSeconds FROM AppUsageRecord JOIN DayRecord ON day = DayRecord.id "
                "WHERE startOfDay = :today ORDER BY AppUsageRecord.activeSeconds DESC LIMIT 4")
        self.wait_for_usage(apps.replace("activeSeconds FROM", "AppUsageRecord.activeSeconds FROM"))
        self.click("By App", "button menu")
        self.click("By Website", "menu item")
        self.wait_for_usage("SELECT domain, WebsiteUsageRecord.activeSeconds FROM WebsiteUsageRecord JOIN DayRecord "
                            "ON day = DayRecord.id WHERE startOfDay = :today "
                            "ORDER BY WebsiteUsageRecord.activeSeconds DESC LIMIT 4")

    def wait_for_usage(self, question):
        def is_told():
            rows = self.program.rows(question, today=self.since(0))
            wanted = [f"{name}, {active_time(seconds)}" for name, seconds in rows]
            return len(wanted) == 4 and [name for name in self.told(LABEL) if name in wanted] == wanted
        until(is_told, "the usage", UNTIL_STORED)

    def test_history_has_the_rows_of_each_range(self):
        self.open("Break History")
        for label, days_ago in RANGES.items():
            self.click(label, PILL)
            expected = self.history(days_ago)
            self.wait_for(f"{plural(len(expected), 'row')} · retention 1 year")
            until(lambda: self.is_head_of(expected), f"the rows of {label}")
        self.assertEqual(len(expected), SHOWN_AT_MOST)

    def is_head_of(self, expected):
        told = self.rows()
        return len(told) >= min(5, len(expected)) and told == expected[:len(told)]

    def test_long_list_scrolls_and_holds_only_what_is_in_sight(self):
        window = self.open("Break History")
        self.click("30 days", PILL)
        expected = self.history(RANGES["30 days"])
        until(lambda: self.is_head_of(expected), "the newest rows")
        self.hands.move_to(window.centre)
        for _ in range(5):
            self.hands.click(window.centre, WHEEL_DOWN)
        moved = until(lambda: self.place_in(expected), "rows further down")
        for _ in range(10):
            self.hands.click(window.centre, WHEEL_UP)
        until(lambda: self.is_head_of(expected), "back at the newest")
        self.hands.press("Tab", "Next")
        until(lambda: self.place_in(expected), "a page further down")
        self.hands.press("End")
        until(lambda: self.rows()[-1:] == expected[-1:], "the oldest row")
        self.assertLess(self.rows_made(), ROWS_IN_SIGHT)
        self.hands.press("Home")
        until(lambda: self.is_head_of(expected), "the newest again")
        self.assertGreater(moved, 0)
        self.assertLess(self.rows_made(), ROWS_IN_SIGHT)

    def place_in(self, expected):
        """How far down the list what is in sight begins, if it is a stretch of it; 0 at its head."""
        told = self.rows()
        places = range(len(expected) - len(told) + 1) if told else ()
        return next((place for place in places if expected[place:place + len(told)] == told), 0)

    def rows_made(self):
        """Whether they are in sight or not."""
        root = self.tree.program(self.program.pid)
        return sum(node.role == ITEM for node in root.walk())


if __name__ == "__main__":
    unittest.main()
