"""How the program ends, and what is left of it."""

import signal
import unittest

from scaffold import DesktopTest, until
from scaffold.program import QUICK


class EndingTests(DesktopTest):
    def own_windows(self):
        return [window for window in self.windows.all() if "kestrelfen" in (window.name + window.classes).lower()]

    def test_signals_end_it_in_good_order_during_a_break(self):
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            with self.subTest(number.name):
                program = self.start()
                self.wait_for_overlays()
                program.signal(number)
                self.assertEqual(program.exit_status(2.0), 0)
                until(lambda: not self.own_windows(), "no window left", 1.0)

    def test_signal_ends_it_at_work_and_at_the_warning(self):
        program = self.start(QUICK | {"workIntervalSeconds": 60.0, "preBreakWarningLeadSeconds": 58.0})
        program.logs("work ")
        self.assertEqual(self.own_end(program), 0)
        program = self.start(QUICK | {"workIntervalSeconds": 60.0, "preBreakWarningLeadSeconds": 60.0})
        self.wait_for_card()
        self.assertEqual(self.own_end(program), 0)
        until(lambda: not self.own_windows(), "no window left", 1.0)

    def own_end(self, program):
        program.signal(signal.SIGTERM)
        return program.exit_status(2.0)

    def test_snooze_of_the_last_moment_is_kept(self):
        program = self.start(QUICK | {"doubleEscapeAction": "snooze"})
        self.wait_for_overlays()
        self.wait_until_escape_counts()
        self.hands.press("Escape", "Escape")
        program.logs("snoozed ")
        self.assertEqual(self.own_end(program), 0)
        self.assertEqual(program.preferences["snoozesPerDay.count"], 1)

    def test_murder_during_a_break_frees_the_desktop_at_once(self):
        terminal = self.terminal()
        program = self.start()
        self.wait_for_overlays()
        self.hands.press("Escape", "a")
        terminal.receives("a")
        self.assertEqual(terminal.typed, "a")
        program.signal(signal.SIGKILL)
        self.assertEqual(program.exit_status(2.0), -signal.SIGKILL)
        until(lambda: not self.own_windows(), "no window left", 1.0)
        self.hands.press("Escape", "b")
        terminal.receives("\x1bb")

    def test_it_starts_again_after_murder(self):
        program = self.start(QUICK | {"workIntervalSeconds": 60.0})
        program.logs("work ")
        program.signal(signal.SIGKILL)
        program.exit_status(2.0)
        again = self.start(QUICK | {"workIntervalSeconds": 60.0})
        again.logs("work ")


if __name__ == "__main__":
    unittest.main()
