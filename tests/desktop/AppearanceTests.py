"""Light and dark as the desktop has them, at once and everywhere."""

import unittest

from scaffold import until
from scaffold.keyboard import CHOICE
from scaffold.portal import PREFERS_DARK, PREFERS_LIGHT, Portal
from scaffold.settings import LONG, SettingsTest

FOLLOWING = LONG | {"appearance": "system"}
DARK_BELOW, LIGHT_ABOVE = 80, 170


class AppearanceTests(SettingsTest):
    def setUp(self):
        super().setUp()
        self.portal = Portal(self.desktop)
        self.addCleanup(self.portal.end)

    def brightness(self, frame):
        return self.desktop.shoot(frame).brightness()

    def wait_until_light(self, frame):
        until(lambda: self.brightness(frame) > LIGHT_ABOVE, f"light, not {self.brightness(frame):.0f}", 3.0)

    def wait_until_dark(self, frame):
        until(lambda: self.brightness(frame) < DARK_BELOW, f"dark, not {self.brightness(frame):.0f}", 3.0)

    def follow(self, frame):
        """There and back again."""
        self.wait_until_light(frame)
        self.portal.color_scheme(PREFERS_DARK)
        self.wait_until_dark(frame)
        self.portal.color_scheme(PREFERS_LIGHT)
        self.wait_until_light(frame)

    def test_settings_follow_the_desktop(self):
        self.start_with_settings(FOLLOWING)
        self.follow(self.window.frame)

    def test_popover_follows_the_desktop(self):
        program = self.start(FOLLOWING)
        program.logs("work ")
        program.second_start()
        self.follow(self.wait_for_popover().frame)

    def test_overlays_follow_the_desktop(self):
        program = self.start(FOLLOWING | {"breakDurationSeconds": 120.0})
        program.logs("work ")
        program.second_start()
        self.wait_for_popover()
        self.click_button(program, "Break Now")
        for overlay in self.wait_for_overlays():
            self.follow(overlay.frame)

    def test_desktop_that_is_dark_already_is_met_at_the_start(self):
        self.portal.color_scheme(PREFERS_DARK)
        self.start_with_settings(FOLLOWING)
        self.wait_until_dark(self.window.frame)

    def test_choice_holds_against_the_desktop_until_it_is_given_up(self):
        program = self.start_with_settings(FOLLOWING)
        self.show(program, "Appearance")
        self.portal.color_scheme(PREFERS_DARK)
        self.wait_until_dark(self.window.frame)
        self.click_control(program, "Light", CHOICE)
        self.wait_until_light(self.window.frame)
        self.portal.color_scheme(PREFERS_LIGHT)
        self.portal.color_scheme(PREFERS_DARK)
        self.click_control(program, "Dark", CHOICE)
        self.wait_until_dark(self.window.frame)
        self.portal.color_scheme(PREFERS_LIGHT)
        self.wait_for_preference(program, "appearance", "dark")
        self.wait_until_dark(self.window.frame)
        self.click_control(program, "System", CHOICE)
        self.wait_until_light(self.window.frame)


if __name__ == "__main__":
    unittest.main()
