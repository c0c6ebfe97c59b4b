"""What is changed in the settings is met in the next breaks."""

import unittest

from scaffold import until
from scaffold.keyboard import CHOICE, SWITCH
from scaffold.program import QUICK
from scaffold.settings import SettingsTest

SKIP = "Skip This Break"
SNOOZE = "Snooze 1 minute"
COMING = QUICK | {"workIntervalSeconds": 600.0, "preBreakWarningLeadSeconds": 599.0}


class SettingsEffectTests(SettingsTest):
    def break_now(self, program):
        program.second_start()
        self.wait_for_popover()
        self.click_button(program, "Break Now")
        self.wait_for_overlays()

    def pick(self, program, title, label):
        """That pill in the row of that title: the one nearest below the row's top."""
        row = self.place_of(program, title, "label")
        pills = [each for each in self.keyboard.controls() if each.told == (label, CHOICE)]
        frame = min(pills, key=lambda each: abs(each.middle - row[1])).frame
        self.hands.click((frame[0] + frame[2] // 2, frame[1] + frame[3] // 2))

    def test_hardcore_takes_the_skip_from_the_next_break(self):
        program = self.start_with_settings()
        self.break_now(program)
        self.wait_until_told(program, SKIP)
        self.click_button(program, SKIP)
        self.wait_for_no_overlay()
        self.show(program, "Enforcement")
        self.click_control(program, "Hardcore", CHOICE)
        self.wait_until_told(program, "No way out")
        self.wait_for_preference(program, "enforcementLevel", "hardcore")
        self.break_now(program)
        self.wait_until_told(program, SNOOZE)
        self.assertNotIn(SKIP, self.tree.told(program.pid))

    def test_skip_button_that_is_switched_off_is_not_there(self):
        program = self.start_with_settings()
        self.show(program, "Enforcement")
        self.click_control(program, "Show the skip button on the break screen", SWITCH)
        self.wait_for_preference(program, "showSkipButton", False)
        self.break_now(program)
        self.wait_until_told(program, SNOOZE)
        self.assertNotIn(SKIP, self.tree.told(program.pid))

    def test_no_snoozes_a_day_takes_them_from_the_card_and_the_overlays(self):
        program = self.start_with_settings(COMING)
        self.wait_for_card()
        self.wait_until_told(program, SNOOZE)
        self.show(program, "Enforcement")
        self.pick(program, "Snoozes allowed per day", "None")
        self.wait_for_preference(program, "snoozesPerDay", 0)
        until(lambda: (told := self.tree.told(program.pid)) and SNOOZE not in told, "a card without snoozes", 5.0)
        self.break_now(program)
        self.wait_until_told(program, SKIP)
        self.assertNotIn(SNOOZE, self.tree.told(program.pid))

    def test_quota_of_a_break_is_used_up(self):
        program = self.start_with_settings()
        self.show(program, "Enforcement")
        self.pick(program, "Snoozes allowed per break", "None")
        self.wait_for_preference(program, "snoozesPerBreak", 0)
        self.break_now(program)
        self.wait_until_told(program, SKIP)
        self.assertNotIn(SNOOZE, self.tree.told(program.pid))

    def test_lengths_are_those_of_the_next_interval_and_its_break(self):
        program = self.start_with_settings()
        self.click_button(program, "Increase Work interval")
        self.wait_for_preference(program, "workIntervalSeconds", 660.0)
        self.click_button(program, "Increase Short break")
        self.wait_for_preference(program, "breakDurationSeconds", 25.0)
        self.assertEqual(program.count("work 11 min"), 0)
        self.break_now(program)
        program.logs("break 20 s")
        self.click_button(program, SKIP)
        program.logs("work 11 min")
        self.wait_for_no_overlay()
        self.break_now(program)
        program.logs("break 25 s")

    def test_long_break_comes_after_as_many_cycles_as_chosen(self):
        program = self.start_with_settings(self.long_in(3))
        self.click_button(program, "Decrease Long break every")
        self.wait_for_preference(program, "longBreakEvery", 2)
        self.break_now(program)
        self.wait_for_no_overlay()
        self.assertEqual(program.count("long break "), 0)
        self.break_now(program)
        program.logs("long break ")

    @staticmethod
    def long_in(cycles):
        return QUICK | {"workIntervalSeconds": 600.0, "breakDurationSeconds": 2.0, "longBreakDurationSeconds": 90.0,
                        "longBreakEvery": cycles}


if __name__ == "__main__":
    unittest.main()
