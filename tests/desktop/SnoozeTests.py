"""The ways out of a break by the mouse."""

import unittest

from scaffold import DesktopTest, until
from scaffold.accessibility import LABEL
from scaffold.program import QUICK

WAITS = [f"Skip in {seconds}" for seconds in (5, 4, 3, 2, 1)]


class SnoozeTests(DesktopTest):
    def test_snooze_button_takes_the_overlays_away_and_is_counted(self):
        program = self.start()
        self.wait_for_overlays()
        self.click_button(program, "Snooze 1 minute")
        program.logs("snoozed 1 min (today: 1, this break: 1)")
        self.wait_for_no_overlay()
        until(lambda: program.preferences.get("snoozesPerDay.count") == 1, "the snooze in the preference file")

    def test_snooze_button_of_five_minutes_snoozes_five(self):
        program = self.start()
        self.wait_for_overlays()
        self.click_button(program, "Snooze 5 minutes")
        program.logs("snoozed 5 min (today: 1, this break: 1)")
        self.wait_for_no_overlay()

    def test_no_snooze_is_offered_once_the_day_s_are_used_up(self):
        program = self.start(QUICK | {"snoozesPerDay": 0})
        self.wait_for_overlays()
        self.wait_until_told(program, "Skip This Break")
        self.assertEqual([name for name in self.tree.told(program.pid) if "nooze" in name or "+" in name], [])

    def test_balanced_skip_must_be_waited_for_and_then_skips(self):
        program = self.start(QUICK | {"enforcementLevel": "balanced"})
        self.wait_for_overlays()
        told = []
        until(lambda: "Skip This Break" in self.note(program, told), "the skip")
        # A look may miss a second while the machine is busy.
        self.assertEqual(told, [name for name in WAITS if name in told] + ["Skip This Break"])
        self.assertGreater(len(told), 3)
        self.click_button(program, "Skip This Break")
        program.logs("break skipped (today: 1 skipped)")
        self.wait_for_no_overlay()

    def note(self, program, told):
        """Adds what the skip says now, if it says something new."""
        for name in self.tree.told(program.pid):
            if name.startswith("Skip") and name not in told:
                told.append(name)
        return told

    def test_click_on_a_skip_that_must_be_waited_for_does_nothing(self):
        program = self.start(QUICK | {"enforcementLevel": "balanced"})
        self.wait_for_overlays()
        self.hands.click(until(lambda: self.wait_label(program), "the wait label"))
        self.wait_until_told(program, "Skip in 1")
        self.assertEqual(program.count("break skipped"), 0)
        self.assertEqual(len(self.windows.overlays()), 2)

    def wait_label(self, program):
        """Where the skip says how long to wait, whichever second that is."""
        told = next((name for name in self.tree.told(program.pid, LABEL) if name in WAITS), None)
        return told and self.tree.control(program.pid, told, LABEL)

    def test_hardcore_offers_no_skip(self):
        program = self.start(QUICK | {"enforcementLevel": "hardcore"})
        self.wait_for_overlays()
        self.wait_until_told(program, "0:18")
        self.assertEqual([name for name in self.tree.told(program.pid) if "Skip" in name], [])


if __name__ == "__main__":
    unittest.main()
