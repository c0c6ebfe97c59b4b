"""The popover, opened by a second start."""

import base64
import sqlite3
import unittest

from scaffold import DesktopTest, until
from scaffold.accessibility import BUTTON
from scaffold.program import QUICK

LONG = QUICK | {"workIntervalSeconds": 600.0}
FOOTER = ["Screen Time", "App Usage Detail", "Tasks", "Break History", "Settings", "Quit Kestrelfen"]


def data(text):
    """A preference of that kind, as the file has it."""
    return {"$data": base64.b64encode(text.encode()).decode()}


class PopoverTests(DesktopTest):
    def start_opened(self, preferences=None):
        program = self.start(preferences or LONG)
        program.logs("work ")
        self.open(program)
        return program

    def open(self, program):
        self.assertEqual(program.second_start(), (0, "Kestrelfen runs already; it was asked to show itself.\n"))
        popover = self.wait_for_popover()
        until(lambda: self.windows.active() == int(popover.id, 16), "the popover has the focus")
        return popover

    def test_pause_and_resume(self):
        program = self.start_opened()
        self.click_button(program, "Pause")
        program.logs("paused (manual, ")
        self.click_button(program, "Resume")
        program.logs("resumed work (")
        self.wait_until_told(program, "Pause")

    def test_break_now_begins_the_break(self):
        program = self.start_opened()
        self.click_button(program, "Break Now")
        program.logs("break 20 s → ends ")
        self.wait_for_overlays()

    def test_skip_begins_the_interval_anew(self):
        program = self.start_opened()
        self.click_button(program, "Skip")
        program.logs("next break skipped (today: 1)")
        program.logs("work 10 min", times=2)

    def test_quit_ends_the_program(self):
        program = self.start_opened()
        self.click_button(program, "Quit Kestrelfen")
        self.assertEqual(program.exit_status(2.0), 0)
        self.wait_for_no_popover()

    def test_escape_closes_it_and_it_opens_again(self):
        program = self.start_opened()
        self.hands.press("Escape")
        self.wait_for_no_popover()
        self.open(program)

    def test_click_on_another_window_closes_it_and_gives_that_the_keyboard(self):
        terminal = self.terminal()
        program = self.start_opened()
        self.hands.click((300, 560))
        self.wait_for_no_popover()
        until(terminal.has_focus, "the terminal has the focus")
        self.assertTrue(program.is_running())

    def test_focus_goes_back_after_escape(self):
        terminal = self.terminal()
        self.start_opened()
        self.hands.press("Escape")
        self.wait_for_no_popover()
        until(terminal.has_focus, "the terminal has the focus")

    def test_second_start_while_it_is_open_keeps_it(self):
        program = self.start_opened()
        first = self.windows.popover()
        self.open(program)
        self.assertEqual(self.windows.popover(), first)

    def test_break_while_it_is_open_closes_it(self):
        self.start_opened(QUICK)
        self.wait_for_overlays()
        self.wait_for_no_popover()

    def test_in_a_break_it_lies_above_the_overlays(self):
        program = self.start(QUICK)
        overlays = self.wait_for_overlays()
        program.second_start()
        popover = self.wait_for_popover()
        stacking = self.windows.stacking()
        self.assertLess(stacking.index(self.windows.top_of(popover.id)),
                        min(stacking.index(window.id) for window in overlays))
        self.hands.click((100, 1000))
        self.wait_for_no_popover()
        self.assertEqual(len(self.windows.overlays()), 2)

    def test_click_on_the_empty_desktop_closes_it(self):
        self.start_opened()
        self.hands.click((300, 560))
        self.wait_for_no_popover()

    def test_footer_tells_where_each_symbol_leads(self):
        program = self.start_opened()
        until(lambda: [name for name in self.tree.told(program.pid, BUTTON) if name in FOOTER] == FOOTER, "the footer")

    def test_keyboard_reaches_the_buttons(self):
        program = self.start_opened()
        self.hands.press("Tab", "Return")
        program.logs("paused (manual, ")
        self.wait_until_told(program, "Resume")
        self.hands.press("space")
        program.logs("resumed work (")
        self.wait_until_told(program, "Pause")
        self.hands.press("Right", "Right", "Return")
        program.logs("break 20 s → ends ")

    def test_keyboard_reaches_the_footer(self):
        program = self.start_opened()
        self.hands.press("shift+Tab", "Return")
        self.assertEqual(program.exit_status(2.0), 0)

    def test_active_task_is_told(self):
        first = self.start(LONG)
        first.logs("work ")
        first.end()
        connection = sqlite3.connect(first.store_file)
        with connection:
            inserted = connection.execute("INSERT INTO TaskRecord (title, completedBreaks) VALUES ('Write it', 3)")
        connection.close()
        program = self.start(LONG | {"activeTaskID": data(str(inserted.lastrowid))}, home=first.home)
        program.logs("work ")
        self.open(program)
        for text in ("Write it", "Active task · credited each interval", "×3"):
            self.wait_until_told(program, text)

    def test_day_is_told(self):
        program = self.start_opened()
        for text in ("Breaks completed", "0 / 0", "Screen time", "Skipped"):
            self.wait_until_told(program, text)

    def test_countdown_goes_on_while_it_is_open(self):
        program = self.start_opened()
        seen = set()
        until(lambda: seen.update(self.tree.countdowns(program.pid)) or len(seen) >= 3, "three labels", 5.0)


if __name__ == "__main__":
    unittest.main()
