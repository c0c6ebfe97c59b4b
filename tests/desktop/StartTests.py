"""The first seconds of a run, in which a start lets go of what only a start needs."""

import unittest

from scaffold import DesktopTest
from scaffold.program import QUICK

AT_ONCE = QUICK | {"workIntervalSeconds": 1.0, "preBreakWarningLeadSeconds": 0.0}


class StartTests(DesktopTest):
    def test_break_goes_on_while_the_start_settles(self):
        program = self.start(AT_ONCE)
        self.wait_for_overlays()
        self.wait_until_told(program, "0:12")
        self.assertTrue(program.is_running(), program.log)
        self.assertEqual(len(self.windows.overlays()), 2)
        self.click_button(program, "Snooze 1 minute")
        program.logs("snoozed 1 min")

    def test_popover_that_opens_while_the_start_settles_goes_on(self):
        program = self.start(QUICK | {"workIntervalSeconds": 600.0})
        program.logs("work ")
        program.second_start()
        self.wait_for_popover()
        self.wait_until_told(program, "9:53")
        self.click_button(program, "Pause")
        self.wait_until_told(program, "Resume")


if __name__ == "__main__":
    unittest.main()
