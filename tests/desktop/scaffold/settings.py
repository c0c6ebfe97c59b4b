"""The base of the tests of the settings window."""

from scaffold.case import DesktopTest
from scaffold.keyboard import TAB, Keyboard
from scaffold.program import QUICK
from scaffold.waiting import until, until_steady
from scaffold.windows import SETTINGS

LONG = QUICK | {"workIntervalSeconds": 600.0, "preBreakWarningLeadSeconds": 10.0}
PANES = ("Timing", "Enforcement", "Smart Pause", "Pausing", "Website Stats", "Notifications", "Appearance", "About")


class SettingsTest(DesktopTest):
    def start_with_settings(self, preferences=LONG, **options):
        """The program, at work, with the settings open."""
        program = self.start(preferences, **options)
        program.logs("work ")
        self.open_settings(program)
        return program

    def open_settings(self, program):
        program.second_start()
        self.wait_for_popover()
        self.click_button(program, "Settings")
        self.wait_for_no_popover()
        self.window = until_steady(self.windows.settings, "the settings", 10.0)
        until(lambda: self.windows.active() == int(self.window.id, 16), "the settings have the keyboard")
        self.keyboard = Keyboard(self.tree, program.pid, SETTINGS, self.hands)

    def show(self, program, pane):
        self.click_control(program, pane, TAB)
        self.wait_until_shown(pane)

    def wait_until_shown(self, pane):
        until(lambda: any(each.told == (pane, TAB) and each.is_stop for each in self.keyboard.controls()), pane, 5.0)

    def wait_for_preference(self, program, key, value):
        until(lambda: program.preferences.get(key) == value,
              f"{key} is {value!r}, not {program.preferences.get(key)!r}", 5.0)
