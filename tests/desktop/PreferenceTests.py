"""Preferences edited by hand while the program runs."""

import unittest

from scaffold import DesktopTest, until
from scaffold.program import QUICK

SHORT = QUICK | {"workIntervalSeconds": 3.0, "breakDurationSeconds": 1.0, "warningHUDEnabled": False}


class PreferenceTests(DesktopTest):
    def test_edit_is_in_force_from_the_next_interval(self):
        program = self.start(SHORT)
        program.logs("work 3 s")
        program.write_preferences(SHORT | {"debugFastCycle": True})
        program.logs("work 10 s")
        self.assertEqual(program.count("work 3 s"), 1)
        self.assertEqual(program.count("break 1 s"), 1)

    def test_skip_button_goes_from_a_break_that_is_shown(self):
        program = self.start()
        self.wait_for_overlays()
        self.wait_until_told(program, "Skip This Break")
        program.write_preferences(QUICK | {"showSkipButton": False})
        until(lambda: (told := self.tree.told(program.pid)) and "Skip This Break" not in told, "no skip", 3.0)

    def test_appearance_changes_the_popover_within_a_second(self):
        long = QUICK | {"workIntervalSeconds": 600.0, "appearance": "light"}
        program = self.start(long)
        program.logs("work ")
        program.second_start()
        popover = self.wait_for_popover()
        until(lambda: self.desktop.shoot(popover.frame).brightness() > 200, "a light popover", 5.0)
        program.write_preferences(long | {"appearance": "dark"})
        until(lambda: self.desktop.shoot(popover.frame).brightness() < 80, "a dark popover", 1.5)
        program.write_preferences(long)
        until(lambda: self.desktop.shoot(popover.frame).brightness() > 200, "a light popover", 1.5)

    def test_damaged_file_is_set_aside_with_one_line_and_the_timer_goes_on(self):
        program = self.start(SHORT)
        program.logs("work 3 s")
        program.write_preferences('{"idleMode": "off", ')
        program.logs("is damaged")
        aside = program.preference_file.with_name("preferences.damaged-1.json")
        self.assertEqual(aside.read_text(encoding="utf-8"), '{"idleMode": "off", ')
        program.logs("break complete (today: 1)")
        self.assertEqual(program.count("kestrelfen: Preferences: "), 1, program.log)
        self.assertIn(str(aside), program.log)

    def test_file_that_is_damaged_at_the_start_is_set_aside(self):
        program = self.start("not JSON")
        program.logs("is damaged")
        self.assertTrue(program.preference_file.with_name("preferences.damaged-1.json").exists())

    def test_file_that_is_damaged_only_while_it_is_written_is_left_alone(self):
        program = self.start(SHORT)
        program.logs("work 3 s")
        program.write_preferences('{"debugFastCycle"')
        program.write_preferences(SHORT | {"debugFastCycle": True})
        program.logs("work 10 s")
        self.assertEqual(program.count("damaged"), 0)


if __name__ == "__main__":
    unittest.main()
