"""Absence of input, as the display's server counts it."""

import unittest

from scaffold import DesktopTest
from scaffold.program import QUICK


class IdleTests(DesktopTest):
    def test_absence_pauses_and_input_resumes(self):
        self.hands.nudge()
        program = self.start(QUICK | {"workIntervalSeconds": 60.0, "idleMode": "custom", "idleThresholdSeconds": 3.0})
        program.logs("paused (userIdle, 0:5")
        self.assertEqual(program.count("resumed"), 0)
        self.hands.nudge()
        program.logs("resumed work (0:5", seconds=5.0)
        self.assertEqual(program.count("paused ("), 1)

    def test_typing_keeps_it_from_pausing(self):
        self.hands.nudge()
        program = self.start(QUICK | {"workIntervalSeconds": 8.0, "idleMode": "custom", "idleThresholdSeconds": 2.0})
        self.hands.type("typed to nobody", seconds=9.0)
        program.logs("break 20 s")
        self.assertEqual(program.count("paused"), 0)

    def test_absence_during_a_break_does_not_pause_it(self):
        self.hands.nudge()
        program = self.start(QUICK | {"idleMode": "custom", "idleThresholdSeconds": 3.0, "breakDurationSeconds": 5.0,
                                      "workIntervalSeconds": 1.0})
        program.logs("break complete (today: 1)")
        self.assertEqual(program.log.split("break complete")[0].count("paused"), 0)


if __name__ == "__main__":
    unittest.main()
