"""The main window, the settings and the welcome of the first run."""

import unittest

from scaffold import DesktopTest, until, until_steady
from scaffold.program import QUICK

LONG = QUICK | {"workIntervalSeconds": 600.0}
FIRST_RUN = LONG | {"hasCompletedOnboarding": False}
TAB = "page tab"
CARD = "radio button"
FIELD = "text"
COMPOSER = "Add a task — return to save, escape to cancel"


class WindowTests(DesktopTest):
    def go(self, program, item):
        """Through the footer of the popover."""
        program.second_start()
        self.wait_for_popover()
        self.click_button(program, item)
        self.wait_for_no_popover()

    def wait_for_main_window(self):
        return until_steady(self.windows.main_window, "the main window", 10.0)

    def close_window(self, window):
        self.hands.click(window.centre)
        until(lambda: self.windows.active() == int(window.id, 16), "the window has the focus")
        self.hands.press("alt+F4")

    def test_first_run_is_welcomed_and_ends_with_the_timer_at_work(self):
        program = self.start(FIRST_RUN)
        self.wait_for_main_window()
        self.assertEqual(program.count("work "), 0)
        self.click_button(program, "Set Up My Cadence")
        self.click_control(program, "Strict", CARD)
        self.click_button(program, "Start the First Interval")
        program.logs("work 15 min")
        until(lambda: program.preferences.get("hasCompletedOnboarding"), "the welcome is over")
        self.assertEqual(program.preferences["breakDurationSeconds"], 30.0)
        self.wait_until_told(program, "Break Now")

    def test_closing_the_welcome_leaves_the_program_waiting(self):
        program = self.start(FIRST_RUN)
        self.close_window(self.wait_for_main_window())
        until(lambda: not self.windows.main_windows(), "no main window")
        self.assertTrue(program.is_running())
        self.go(program, "Screen Time")
        self.wait_until_told(program, "Set Up My Cadence")
        self.assertEqual(program.count("work "), 0)

    def test_footer_shows_the_tabs_in_one_window(self):
        program = self.start(LONG)
        program.logs("work ")
        self.go(program, "Break History")
        self.wait_for_main_window()
        self.wait_until_told(program, "Started")
        self.go(program, "Tasks")
        until(lambda: "Started" not in self.tree.told(program.pid), "another tab")
        self.assertEqual(len(self.windows.main_windows()), 1)
        until(lambda: self.windows.active() == int(self.windows.main_windows()[0].id, 16), "it has the focus")

    def test_task_is_written_and_made_the_active_one(self):
        program = self.start(LONG)
        program.logs("work ")
        self.go(program, "Tasks")
        self.wait_for_main_window()
        self.click_control(program, COMPOSER, FIELD)
        self.hands.type("Write it")
        self.hands.press("Return")
        self.wait_until_told(program, "Write it")
        until(lambda: program.rows("SELECT title FROM TaskRecord") == [("Write it",)], "the task is stored")

    def test_settings_write_what_is_chosen(self):
        program = self.start(LONG)
        program.logs("work ")
        self.go(program, "Settings")
        until_steady(self.windows.settings, "the settings", 10.0)
        self.click_button(program, "Increase Short break")
        until(lambda: program.preferences["breakDurationSeconds"] == 25.0, "a longer break")

    def test_appearance_is_chosen_and_shown_at_once(self):
        program = self.start(LONG | {"appearance": "light"})
        program.logs("work ")
        self.go(program, "Settings")
        window = until_steady(self.windows.settings, "the settings", 10.0)
        self.click_control(program, "Appearance", TAB)
        self.click_control(program, "Dark", CARD)
        until(lambda: program.preferences["appearance"] == "dark", "the choice is written")
        until(lambda: self.desktop.shoot(window.frame).brightness() < 80, "dark settings", 5.0)

    def test_edit_from_outside_shows_in_the_open_pane(self):
        program = self.start(LONG)
        program.logs("work ")
        self.go(program, "Settings")
        self.wait_until_told(program, "Work interval")
        program.write_preferences(LONG | {"workIntervalSeconds": 1500.0})
        self.wait_until_told(program, "25 min", 2.0)

    def test_windows_that_were_closed_open_again(self):
        program = self.start(LONG)
        program.logs("work ")
        for _ in range(2):
            self.go(program, "Screen Time")
            self.close_window(self.wait_for_main_window())
            until(lambda: not self.windows.main_windows(), "no main window")
        self.assertTrue(program.is_running())


if __name__ == "__main__":
    unittest.main()
