"""The sheet over a list of applications, which looks again when the person comes back to its window."""

import unittest

from scaffold import until
from scaffold.keyboard import BUTTON
from scaffold.settings import LONG, SettingsTest

CONFIGURE = "Configure Deep Focus Apps"
NOTHING = "Everything running is already listed."
KEY = "focusAppBundleIDs"


class SettingsSheetTests(SettingsTest):
    def open_sheet(self):
        program = self.start_with_settings(LONG)
        self.show(program, "Smart Pause")
        self.click_button(program, CONFIGURE)
        self.wait_until_told(program, NOTHING)
        return program

    def offer(self):
        """The button that adds the one program that runs beside this."""
        return next((each for each in self.keyboard.controls() if each.name.startswith("Add ")), None)

    def come_back(self, program):
        """From the popover."""
        program.second_start()
        self.wait_for_popover()
        self.hands.press("Escape")
        self.wait_for_no_popover()
        self.hands.activate(self.window.id)

    def test_program_that_starts_is_offered_until_it_ends(self):
        program = self.open_sheet()
        terminal = self.terminal()
        self.hands.activate(self.window.id)
        until(self.offer, "the terminal is offered", 5.0)
        terminal.end()
        self.come_back(program)
        self.wait_until_told(program, NOTHING, 5.0)

    def test_program_that_is_added_stays_and_goes_by_its_identifier_when_it_ends(self):
        program = self.open_sheet()
        terminal = self.terminal()
        self.hands.activate(self.window.id)
        name = until(self.offer, "the terminal is offered", 5.0).name.removeprefix("Add ")
        self.keyboard.go_to(f"Add {name}", BUTTON)
        self.hands.press("space")
        until(lambda: len(program.preferences.get(KEY, [])) == 1, "it is in the list")
        self.keyboard.wait_for("Done", BUTTON)
        self.wait_until_told(program, f"Remove {name}")
        terminal.end()
        self.come_back(program)
        self.wait_until_told(program, f"Remove {program.preferences[KEY][0]}", 5.0)
        self.wait_until_told(program, NOTHING)
        self.hands.press("Escape")
        self.wait_until_told(program, "Pauses while one of your chosen apps is frontmost · 1 app")


if __name__ == "__main__":
    unittest.main()
