"""Values that no control would write, and steppers that are held."""

import time
import unittest

from scaffold import until
from scaffold.keyboard import STEPPER
from scaffold.settings import LONG, SettingsTest

REDDER = 40
FEW_PIXELS = 20
LIGHT = LONG | {"appearance": "light"}
LONG_BREAK_CAPTION = "must exceed the short break"
LEAD_CAPTION = "Shown before the overlay appears"
LEAD_WARNING = "Must be shorter than the work interval"


class SettingsValueTests(SettingsTest):
    def frame_of(self, program, name):
        """Of the text, once it stands there."""
        def found():
            return next((node.frame for node in self.tree.nodes(program.pid) if node.told == (name, "label")), None)
        return until(found, name)

    def is_amber(self, program, name):
        """The text: where it is thin it is mixed with its ground, which is never so much redder than blue."""
        pixels = self.desktop.shoot(self.frame_of(program, name)).pixels
        return sum(red - blue > REDDER for red, blue in zip(pixels[0::3], pixels[2::3])) > FEW_PIXELS

    def test_value_beyond_the_range_is_shown_and_steps_back_into_it(self):
        program = self.start_with_settings(LIGHT | {"workIntervalSeconds": 10000.0, "breakDurationSeconds": 1.0,
                                                    "longBreakEvery": 40})
        self.wait_until_told(program, "166 min 40 s")
        self.wait_until_told(program, "40 cycles")
        self.click_button(program, "Increase Work interval")
        self.click_button(program, "Decrease Work interval")
        self.wait_for_preference(program, "workIntervalSeconds", 7200.0)
        self.wait_until_told(program, "120 min")
        self.click_button(program, "Decrease Short break")
        self.click_button(program, "Increase Short break")
        self.wait_for_preference(program, "breakDurationSeconds", 6.0)
        self.click_button(program, "Decrease Long break every")
        self.wait_for_preference(program, "longBreakEvery", 12)

    def test_long_break_that_is_too_short_is_amber_until_it_is_longer(self):
        program = self.start_with_settings(LIGHT | {"longBreakDurationSeconds": 15.0})
        self.assertTrue(self.is_amber(program, LONG_BREAK_CAPTION))
        self.assertTrue(self.is_amber(program, "15 s"))
        self.assertFalse(self.is_amber(program, LEAD_CAPTION))
        self.assertFalse(self.is_amber(program, "20 s"))
        self.click_button(program, "Increase Long break")
        self.wait_for_preference(program, "longBreakDurationSeconds", 80.0)
        self.wait_until_told(program, "1 min 20 s")
        until(lambda: not self.is_amber(program, LONG_BREAK_CAPTION), "an ordinary caption", 3.0)

    def test_lead_that_is_too_long_is_amber_and_says_so(self):
        program = self.start_with_settings(LIGHT | {"preBreakWarningLeadSeconds": 700.0})
        self.assertTrue(self.is_amber(program, LEAD_WARNING))
        self.assertTrue(self.is_amber(program, "11 min 40 s"))
        self.assertFalse(self.is_amber(program, LONG_BREAK_CAPTION))
        self.assertNotIn(LEAD_CAPTION, self.tree.told(program.pid))
        self.click_button(program, "Decrease Warning HUD lead time")
        self.wait_for_preference(program, "preBreakWarningLeadSeconds", 300.0)
        until(lambda: not self.is_amber(program, LEAD_CAPTION), "an ordinary caption", 3.0)

    def test_rules_between_the_values_are_kept_when_one_is_changed(self):
        program = self.start_with_settings(LIGHT | {"workIntervalSeconds": 120.0, "preBreakWarningLeadSeconds": 100.0,
                                                    "breakDurationSeconds": 290.0, "longBreakDurationSeconds": 300.0})
        self.click_button(program, "Increase Short break")
        self.wait_for_preference(program, "longBreakDurationSeconds", 355.0)
        self.click_button(program, "Decrease Work interval")
        self.wait_for_preference(program, "preBreakWarningLeadSeconds", 59.0)
        self.wait_until_told(program, "59 s")

    def test_plus_that_is_held_goes_on_and_ends_at_the_end(self):
        program = self.start_with_settings(LIGHT | {"longBreakEvery": 2})
        self.hands.move_to(self.place_of(program, "Increase Long break every"))
        self.hands.hold()
        try:
            until(lambda: program.preferences["longBreakEvery"] == 3, "the first step is at once", 1.0)
            self.wait_for_preference(program, "longBreakEvery", 12)
        finally:
            self.hands.let_go()
        self.wait_until_told(program, "12 cycles")

    def test_plus_that_is_left_or_let_go_stops(self):
        program = self.start_with_settings(LIGHT | {"workIntervalSeconds": 60.0, "preBreakWarningLeadSeconds": 0.0})
        self.hands.move_to(self.place_of(program, "Increase Work interval"))
        self.hands.hold()
        until(lambda: program.preferences["workIntervalSeconds"] >= 240.0, "it repeats", 5.0)
        self.hands.let_go()
        time.sleep(0.3)
        stopped = program.preferences["workIntervalSeconds"]
        time.sleep(0.6)
        self.assertEqual(program.preferences["workIntervalSeconds"], stopped)

    def test_arrow_that_is_held_goes_on(self):
        program = self.start_with_settings(LIGHT | {"workIntervalSeconds": 60.0, "preBreakWarningLeadSeconds": 0.0})
        self.keyboard.go_to("Work interval", STEPPER)
        self.hands.hold_key("Up")
        try:
            until(lambda: program.preferences["workIntervalSeconds"] >= 360.0, "it repeats", 5.0)
        finally:
            self.hands.let_go_key("Up")


if __name__ == "__main__":
    unittest.main()
