"""Escape during a break: whom it reaches and what two of it do."""

import unittest

from scaffold import DesktopTest, until
from scaffold.program import QUICK


class EscapeTests(DesktopTest):
    def setUp(self):
        super().setUp()
        self.recorder = self.terminal()

    def start_with(self, action):
        program = self.start(QUICK | {"doubleEscapeAction": action, "breakDurationSeconds": 6.0,
                                      "snoozeDurationSeconds": 120.0})
        self.hands.press("Escape", "a")
        self.recorder.receives("\x1ba")
        self.wait_for_overlays()
        self.wait_until_escape_counts()
        return program

    def assert_escape_reaches_the_terminal_again(self):
        self.wait_for_no_overlay()
        self.hands.press("Escape", "z")
        self.recorder.receives("z")
        self.assertEqual(self.recorder.typed, "\x1bab\x1bz")

    def test_two_skip_the_break(self):
        program = self.start_with("skip")
        self.hands.press("Escape", "b", "Escape")
        program.logs("break skipped (today: 1 skipped)")
        self.assert_escape_reaches_the_terminal_again()

    def test_two_snooze_the_break_for_the_configured_time(self):
        program = self.start_with("snooze")
        self.hands.press("Escape", "b", "Escape")
        program.logs("snoozed 2 min (today: 1, this break: 1)")
        self.assert_escape_reaches_the_terminal_again()

    def test_two_do_nothing_where_that_is_chosen(self):
        program = self.start_with("nothing")
        self.hands.press("Escape", "Escape", "Escape", "b")
        self.recorder.receives("b")
        program.logs("break complete (today: 1)")
        self.assert_escape_reaches_the_terminal_again()

    def test_one_does_nothing_and_another_after_a_second_is_one_again(self):
        program = self.start_with("skip")
        until(lambda: self.countdown(program), "the countdown")
        self.hands.press("Escape", "b")
        self.recorder.receives("b")
        passed = set()
        until(lambda: passed.update(self.tree.countdowns(program.pid)) or len(passed) >= 3, "two more seconds")
        self.hands.press("Escape")
        program.logs("break complete (today: 1)")
        self.assert_escape_reaches_the_terminal_again()


if __name__ == "__main__":
    unittest.main()
