"""Displays that go and come during a break."""

import time
import unittest

from scaffold import DesktopTest, until
from scaffold.desktop import LEFT, RIGHT
from scaffold.program import QUICK


def seconds_of(label):
    minutes, seconds = label.split(":")
    return int(minutes) * 60 + int(seconds)


class DisplayTests(DesktopTest):
    def break_ends_at(self, program):
        """By the countdown, on this process's clock."""
        label = until(lambda: self.countdown(program), "the countdown")
        return time.monotonic() + seconds_of(label)

    def test_overlays_follow_the_displays_and_the_time_goes_on(self):
        program = self.start()
        self.wait_for_overlays()
        end = self.break_ends_at(program)
        self.addCleanup(self.desktop.plug_right)
        self.desktop.unplug_right()
        (window,) = self.wait_for_overlays(LEFT)
        self.assertTrue(self.windows.is_unmanaged(window))
        self.wait_until_told(program, "Skip This Break")
        self.assertAlmostEqual(self.break_ends_at(program), end, delta=1.5)
        self.desktop.plug_right()
        self.wait_for_overlays(LEFT, RIGHT)
        self.assertAlmostEqual(self.break_ends_at(program), end, delta=1.5)
        self.click_button(program, "Skip This Break")
        program.logs("break skipped (today: 1 skipped)")
        self.wait_for_no_overlay()

    def test_display_that_went_before_the_break_has_no_overlay(self):
        self.addCleanup(self.desktop.plug_right)
        self.desktop.unplug_right()
        self.start()
        self.wait_for_overlays(LEFT)

    def test_escape_still_ends_the_break_after_a_display_went(self):
        terminal = self.terminal()
        program = self.start(QUICK | {"doubleEscapeAction": "skip"})
        self.wait_for_overlays()
        self.addCleanup(self.desktop.plug_right)
        self.desktop.unplug_right()
        self.wait_for_overlays(LEFT)
        self.wait_until_escape_counts()
        self.hands.press("Escape", "Escape")
        program.logs("break skipped")
        self.wait_for_no_overlay()
        self.assertNotIn("\x1b", terminal.typed)


if __name__ == "__main__":
    unittest.main()
