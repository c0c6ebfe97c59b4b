"""The settings by the keyboard alone."""

import unittest
from pathlib import Path

from scaffold import until
from scaffold.keyboard import BUTTON, CHOICE, STEPPER, SWITCH, TAB
from scaffold.settings import LONG, PANES, SettingsTest

CONFIGURE = "Configure Deep Focus Apps"


class SettingsKeyboardTests(SettingsTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.install_browser()

    @classmethod
    def install_browser(cls):
        """For a row in its pane."""
        folder = Path(cls.desktop.make_folder("share"))
        cls.desktop.environment["XDG_DATA_DIRS"] = str(folder)
        (folder / "applications").mkdir()
        (folder / "applications" / "google-chrome.desktop").write_text(
            "[Desktop Entry]\nType=Application\nName=Chrome\nExec=true\n", encoding="utf-8")

    def go_to_pane(self, wanted):
        """Down the rail."""
        self.keyboard.go_to("Timing", TAB)
        for pane in PANES[1:PANES.index(wanted) + 1]:
            self.hands.press("Down")
            self.keyboard.wait_for(pane, TAB)
        self.wait_until_shown(wanted)

    def stops_of_pane(self):
        """Those to the right of the rail, as they are read."""
        return [each.told for each in self.keyboard.read() if each.role != TAB and each.is_stop]

    def walk(self, key):
        """Where a key goes from the rail until it is there again; all of it in sight."""
        stops, stop = [], None
        while (stop := self.keyboard.press(key, stop)).role != TAB:
            self.assertTrue(stop.is_within(self.window.frame), f"{stop} is out of sight")
            stops.append(stop.told)
            self.assertLess(len(stops), 60, "a circle beside the rail")
        return stops

    def test_tab_goes_through_every_pane_as_it_is_read_and_back(self):
        self.start_with_settings(LONG | {"idleMode": "custom"})
        for pane in PANES:
            with self.subTest(pane=pane):
                if pane == PANES[0]:
                    self.keyboard.go_to(pane, TAB)
                else:
                    self.hands.press("Down")
                    self.keyboard.wait_for(pane, TAB)
                    self.wait_until_shown(pane)
                stops = self.stops_of_pane()
                self.assertEqual(not stops, pane == "About")
                if not stops:
                    continue
                self.assertEqual(self.walk("Tab"), stops)
                self.assertEqual(self.walk("shift+Tab"), stops[::-1])

    def test_arrows_step_and_stop_at_the_ends(self):
        program = self.start_with_settings(LONG | {"breakDurationSeconds": 290.0, "longBreakDurationSeconds": 900.0})
        self.keyboard.go_to("Short break", STEPPER)
        self.hands.press("Up")
        self.wait_for_preference(program, "breakDurationSeconds", 295.0)
        self.hands.press("Right", "Right", "Right")
        self.wait_for_preference(program, "breakDurationSeconds", 300.0)
        self.hands.press("Down", "Left")
        self.wait_for_preference(program, "breakDurationSeconds", 290.0)
        self.keyboard.wait_for("Short break", STEPPER)

    def test_space_and_return_turn_a_switch(self):
        program = self.start_with_settings(LONG | {"resumeAutomatically": True})
        self.go_to_pane("Pausing")
        self.assertTrue(self.keyboard.go_to("Resume automatically", SWITCH).is_on)
        self.hands.press("space")
        self.wait_for_preference(program, "resumeAutomatically", False)
        self.hands.press("Return")
        self.wait_for_preference(program, "resumeAutomatically", True)
        self.assertTrue(self.keyboard.wait_for("Resume automatically", SWITCH).is_on)

    def test_arrows_choose_among_pills_and_cards_and_end_at_the_last(self):
        program = self.start_with_settings(LONG | {"snoozeDurationSeconds": 60.0})
        self.go_to_pane("Enforcement")
        self.keyboard.go_to("Casual", CHOICE)
        self.hands.press("Right")
        self.wait_for_preference(program, "enforcementLevel", "balanced")
        self.keyboard.wait_for("Balanced", CHOICE)
        self.keyboard.go_to("1 min", CHOICE)
        self.hands.press("Right", "Down")
        self.wait_for_preference(program, "snoozeDurationSeconds", 300.0)
        self.hands.press("Right")
        self.keyboard.wait_for("5 min", CHOICE)
        self.hands.press("Left")
        self.wait_for_preference(program, "snoozeDurationSeconds", 180.0)

    def test_row_that_a_choice_brings_can_be_reached_next(self):
        program = self.start_with_settings(LONG | {"idleMode": "automatic"})
        self.go_to_pane("Pausing")
        self.keyboard.go_to("Automatic", CHOICE)
        self.hands.press("Right")
        self.wait_for_preference(program, "idleThresholdSeconds", 30.0)
        self.keyboard.wait_for("Custom", CHOICE)
        until(lambda: self.keyboard.control("Idle after", STEPPER), "the row")
        self.assertEqual(self.keyboard.press("Tab").told, ("Idle after", STEPPER))
        self.hands.press("Up")
        self.wait_for_preference(program, "idleThresholdSeconds", 45.0)

    def test_list_of_apps_is_opened_used_and_closed(self):
        program = self.start_with_settings(LONG | {"focusAppBundleIDs": ["one", "two"]})
        self.go_to_pane("Smart Pause")
        self.keyboard.go_to(CONFIGURE, BUTTON)
        self.hands.press("space")
        self.keyboard.wait_for("Done", BUTTON)
        stops = [each.told for each in self.keyboard.read()]
        self.assertEqual(stops, [(name, BUTTON) for name in ("Remove one", "Remove two", "Restore Defaults", "Done")])
        self.assertEqual([self.keyboard.press("Tab").told for _ in stops], stops)
        self.assertEqual([self.keyboard.press("shift+Tab").told for _ in stops], [*stops[-2::-1], stops[-1]])
        self.keyboard.go_to("Remove one", BUTTON)
        self.hands.press("space")
        self.wait_for_preference(program, "focusAppBundleIDs", ["two"])
        until(lambda: self.keyboard.focused(), "the keyboard is somewhere in the sheet", 3.0)
        self.keyboard.go_to("Restore Defaults", BUTTON)
        self.hands.press("Return")
        self.wait_for_preference(program, "focusAppBundleIDs", [])
        self.keyboard.go_to("Done", BUTTON)
        self.hands.press("Return")
        self.keyboard.wait_for(CONFIGURE, BUTTON)
        self.hands.press("space")
        self.keyboard.wait_for("Done", BUTTON)
        self.hands.press("Escape")
        self.keyboard.wait_for(CONFIGURE, BUTTON)

    def test_deletion_is_asked_for_and_cancelled_and_the_keyboard_comes_back(self):
        self.start_with_settings()
        self.go_to_pane("Notifications")
        for key in ("Return", "Escape"):
            self.keyboard.go_to("Delete All History…", BUTTON)
            self.hands.press("space")
            self.keyboard.wait_for("Cancel", BUTTON)
            self.hands.press(key)
            self.keyboard.wait_for("Delete All History…", BUTTON)


if __name__ == "__main__":
    unittest.main()
