"""The popover, opened by a second start."""

import unittest

from scaffold import DesktopTest, until
from scaffold.program import QUICK

LONG = QUICK | {"workIntervalSeconds": 600.0}


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

    def test_break_while_it_is_open_covers_it(self):
        self.start_opened(QUICK)
        overlays = self.wait_for_overlays()
        popover = self.windows.popover()
        if popover:
            stacking = self.windows.stacking()
            self.assertLess(max(stacking.index(window.id) for window in overlays),
                            stacking.index(self.windows.top_of(popover.id)))

    def test_countdown_goes_on_while_it_is_open(self):
        program = self.start_opened()
        seen = set()
        until(lambda: seen.update(self.tree.countdowns(program.pid)) or len(seen) >= 3, "three labels", 5.0)


if __name__ == "__main__":
    unittest.main()
