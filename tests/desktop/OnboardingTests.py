"""The first run: left half-way, ended, and by the keyboard alone."""

import unittest

from scaffold import DesktopTest, until, until_steady
from scaffold.keyboard import BUTTON, CHOICE, STEPPER, SWITCH, Keyboard
from scaffold.program import QUICK
from scaffold.windows import MAIN

FIRST_RUN = {"hasCompletedOnboarding": False, "idleMode": "off", "preBreakWarningLeadSeconds": 0.5}
SET_UP = "Set Up My Cadence"
DEFAULTS = "Use the Defaults — 20 / 20 / 5"
START = "Start the First Interval"
SKIPPING = "Allow skipping a break"
CYCLE = "Long break every"


class OnboardingTests(DesktopTest):
    def first_run(self, preferences=FIRST_RUN, **options):
        program = self.start(preferences, **options)
        self.window = until_steady(self.windows.main_window, "the welcome", 10.0)
        until(lambda: self.windows.active() == int(self.window.id, 16), "the welcome has the keyboard")
        self.keyboard = Keyboard(self.tree, program.pid, MAIN, self.hands)
        until(lambda: self.keyboard.control(SET_UP, BUTTON), "the first page")
        return program

    def set_up(self):
        self.keyboard.go_to(SET_UP, BUTTON)
        self.hands.press("Return")
        until(lambda: self.keyboard.control(START, BUTTON), "the second page")

    def stops(self):
        return [each.told for each in self.keyboard.read() if each.is_stop]

    def walk(self, key, count):
        told, stop = [], None
        for _ in range(count):
            stop = self.keyboard.press(key, stop)
            self.assertTrue(stop.is_within(self.window.frame), f"{stop} is out of sight")
            told.append(stop.told)
        return told

    def assert_tab_reads_the_page(self, expected):
        stops = self.stops()
        self.assertEqual(stops, expected)
        self.keyboard.go_to(*stops[-1])
        self.assertEqual(self.walk("Tab", len(stops)), stops)
        self.assertEqual(self.walk("shift+Tab", len(stops)), [*stops[-2::-1], stops[-1]])

    def test_tab_goes_through_both_pages_as_they_are_read(self):
        self.first_run()
        self.assert_tab_reads_the_page([(SET_UP, BUTTON), (DEFAULTS, BUTTON)])
        self.set_up()
        self.assert_tab_reads_the_page([("Standard", CHOICE), (CYCLE, STEPPER), (SKIPPING, SWITCH),
                                        ("Launch at login", SWITCH), ("Back", BUTTON), (START, BUTTON)])

    def test_keyboard_alone_comes_to_the_first_interval(self):
        program = self.first_run()
        self.set_up()
        self.keyboard.go_to("Standard", CHOICE)
        self.hands.press("Right")
        self.keyboard.wait_for("Strict", CHOICE)
        self.keyboard.go_to(CYCLE, STEPPER)
        self.hands.press("Up")
        self.wait_until_told(program, "5 min break on the 5th cycle")
        self.keyboard.go_to(SKIPPING, SWITCH)
        self.hands.press("space")
        until(lambda: program.preferences.get("showSkipButton") is False, "no skipping")
        self.assertNotIn("workIntervalSeconds", program.preferences)
        self.keyboard.go_to(START, BUTTON)
        self.hands.press("Return")
        program.logs("work 15 min")
        self.assertEqual(program.count("work "), 1)
        preferences = program.preferences
        self.assertEqual((preferences["workIntervalSeconds"], preferences["breakDurationSeconds"],
                          preferences["longBreakEvery"], preferences["hasCompletedOnboarding"]), (900.0, 30.0, 5, True))

    def test_defaults_by_the_keyboard_come_to_the_first_break(self):
        program = self.first_run(FIRST_RUN | {"longBreakEvery": 7, "enforcementLevel": "casual"})
        self.keyboard.go_to(DEFAULTS, BUTTON)
        self.hands.press("space")
        program.logs("work 20 min")
        self.assertEqual(program.preferences["longBreakEvery"], 7)
        until(lambda: self.keyboard.control("Break Now", BUTTON), "the window's first tab")
        self.keyboard.go_to("Break Now", BUTTON)
        self.hands.press("Return")
        self.wait_for_overlays()
        program.logs("break 20 s")
        self.assertEqual(program.count("work "), 1)

    def test_preset_that_is_started_is_that_of_the_first_break(self):
        program = self.first_run(FIRST_RUN | {"debugFastCycle": True})
        self.set_up()
        self.keyboard.go_to(START, BUTTON)
        self.hands.press("Return")
        program.logs("work 10 s")
        self.wait_for_overlays()
        self.assertEqual(program.count("break 5 s"), 1)

    def test_quitting_half_way_starts_again_and_keeps_what_was_stepped(self):
        program = self.first_run()
        self.set_up()
        self.keyboard.go_to("Standard", CHOICE)
        self.hands.press("Right")
        self.keyboard.go_to(CYCLE, STEPPER)
        self.hands.press("Down", "Down", "Down")
        until(lambda: program.preferences.get("longBreakEvery") == 2, "the cycle is stored")
        left = program.preferences
        program.end()
        again = self.first_run(left, home=program.home)
        self.assertFalse(self.keyboard.control(START, BUTTON))
        self.set_up()
        self.assertTrue(self.keyboard.control("Standard", CHOICE).is_on)
        self.wait_until_told(again, "5 min break on the second cycle")
        self.assertEqual(again.count("work "), 0)
        self.keyboard.go_to("Back", BUTTON)
        self.hands.press("Return")
        until(lambda: self.keyboard.control(SET_UP, BUTTON), "the first page")

    def test_finished_welcome_does_not_come_back(self):
        program = self.first_run()
        self.keyboard.go_to(DEFAULTS, BUTTON)
        self.hands.press("Return")
        program.logs("work 20 min")
        left = program.preferences
        program.end()
        again = self.start(left | QUICK | {"workIntervalSeconds": 600.0}, home=program.home)
        again.logs("work 10 min")
        self.assertEqual(again.count("work "), 1)
        self.assertNotIn(SET_UP, self.tree.told(again.pid))


if __name__ == "__main__":
    unittest.main()
