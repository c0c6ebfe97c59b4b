"""Every surface, as somebody meets it who cannot see it: what is told of it, and where the keyboard goes."""

import unittest

from scaffold import until
from scaffold.audit import (ALERT, BUTTON, CHOICE, DIALOG, ENTRY, LABEL, MENU, POPUP, STEPPER, SWITCH, TAB, headings,
                            stops)
from scaffold.audit_case import AuditTest
from scaffold.hearing import Event, Hearing
from scaffold.main_window import LONG, PILL
from scaffold.program import QUICK
from scaffold.settings import PANES
from scaffold.windows import BREAK, MAIN, POPOVER, SETTINGS, WARNING

#: A pane with headings of its own has them below its title.
PANE_TITLES = {"Notifications": "Notifications & Data", "About": "Kestrelfen"}
WARNED = QUICK | {"workIntervalSeconds": 60.0, "preBreakWarningLeadSeconds": 60.0}
LONG_BREAK = QUICK | {"workIntervalSeconds": 1.0, "preBreakWarningLeadSeconds": 0.1, "breakDurationSeconds": 1.0,
                      "longBreakDurationSeconds": 240.0, "longBreakEvery": 2}
SECONDS_OF_LISTENING = 3.5


class AuditTests(AuditTest):
    # The popover, and the overlays and the card, which never take the keyboard: the popover offers the same.

    def test_popover_in_every_state(self):
        self.begin()
        self.open_popover()
        self.audit(POPOVER, ["Next break in", "Today"])
        self.click("Pause")
        self.wait_for("Resume")
        self.audit(POPOVER, ["Paused", "Today"])
        skip = self.find(POPOVER, "Skip", BUTTON)
        self.assertEqual((skip.can_be_gone_to, skip.description), (False, "Not available"))
        self.click("Resume")
        self.click("Break Now")
        self.wait_for_overlays()
        self.program.second_start()
        self.wait_for_popover()
        self.wait_for("End Break")
        self.audit(POPOVER, ["Break ends in", "Today"])

    def test_short_overlay(self):
        self.begin(QUICK)
        self.wait_for_overlays()
        self.audit(BREAK, ["Look 20 feet away"], keyboard=False)

    def test_overlay_whose_skip_must_be_waited_for(self):
        self.begin(QUICK | {"enforcementLevel": "balanced"})
        self.wait_for_overlays()
        told = self.settled(BREAK)
        self.assert_sound(told)
        waiting = next(each for each in told if each.name.startswith("Skip in"))
        self.assertEqual(waiting.role, LABEL)
        self.assertTrue(self.find(BREAK, "Skip This Break", BUTTON).can_be_gone_to)

    def test_long_overlay(self):
        self.begin(LONG_BREAK)
        until(lambda: "Stand up and walk" in self.told(), "the long break", 40.0)
        self.audit(BREAK, ["Stand up and walk"], keyboard=False)

    def test_warning_card(self):
        self.begin(WARNED)
        self.wait_for_card()
        told = self.audit(WARNING, [], keyboard=False)
        self.assertEqual([each.role for each in told].count(ALERT), 1)

    # The main window

    def test_dashboard_its_menu_and_its_sheet(self):
        self.open("Screen Time", **{"websiteStats.chrome": True})
        self.wait_for("Eye Score")
        dashboard = self.settled(MAIN)
        headline = next(name for name in headings(dashboard) if name.startswith("Short break"))
        self.audit(MAIN, [headline, "Screen Time and Breaks Kept", "Eye Score"])
        self.click("By App", MENU)
        menu = self.settled(MAIN)
        self.assertEqual(menu[0].role, POPUP)
        self.assert_sound(menu)
        self.assertEqual([(each.name, each.is_on) for each in menu if each.role == ENTRY],
                         [("By App", True), ("By Website", False)])
        self.hands.press("Escape")
        self.click("See All")
        self.wait_for("Usage Detail")
        until(lambda: self.look(MAIN)[:1] and self.look(MAIN)[0].role == DIALOG, "the sheet")
        sheet = self.settled(MAIN)
        self.assert_sound(sheet)
        self.assertEqual(headings(sheet), ["Usage Detail"])
        self.go_to(next(each for each in stops(sheet) if each.name.startswith("All ")), "Tab", stops(sheet))
        self.hands.press("Right")
        until(lambda: any(each.is_on and each.name.startswith("Work ") for each in self.look(MAIN)), "another category")

    def test_history_and_tasks(self):
        self.open("Break History")
        self.wait_for("Started")
        self.audit(MAIN, [])
        self.click("Tasks", PILL)
        self.wait_for("4 of 16 done")
        self.assert_sound(self.settled(MAIN))
        self.click("Clear Completed…")
        question = self.audit(MAIN, ["Delete 4 completed tasks"])
        self.assertEqual((question[0].role, question[0].name), (DIALOG, "Delete 4 completed tasks"))

    def test_main_window_without_data(self):
        self.begin()
        self.open_popover()
        self.click("Screen Time")
        self.wait_for("Eye Score")
        self.assert_sound(self.settled(MAIN))
        self.click("See All")
        self.wait_for("Usage Detail")
        self.audit(MAIN, ["Usage Detail"])
        self.click("Done")
        for tab, text in (("Breaks", "Nothing recorded in this range."), ("Tasks", "No tasks yet")):
            self.click(tab, PILL)
            self.wait_for(text)
            self.audit(MAIN, ["No tasks yet"] if tab == "Tasks" else [])

    # The settings and the welcome

    def test_every_pane_of_the_settings(self):
        self.begin(LONG | {"idleMode": "custom"})
        self.open_popover()
        self.click("Settings")
        for pane in PANES:
            with self.subTest(pane=pane):
                self.click(pane, TAB)
                until(lambda: self.find(SETTINGS, pane, TAB).is_on, f"{pane} is chosen")
                told = self.settled(SETTINGS)
                self.assert_sound(told)
                self.assertEqual(headings(told)[:2], ["Settings", PANE_TITLES.get(pane, pane)])

    def test_sheets_of_the_settings(self):
        self.begin()
        self.open_popover()
        self.click("Settings")
        self.click("Smart Pause", TAB)
        self.click("Configure Deep Focus Apps")
        self.wait_for("Done")
        self.audit(SETTINGS, ["Deep Focus Apps", "Add a running app"])
        self.click("Done")
        self.click("Notifications", TAB)
        self.click("Delete All History…")
        self.wait_for("Cancel")
        question = self.audit(SETTINGS, ["Delete all screen-time and break history?"])
        self.assertEqual(question[0].role, DIALOG)

    def test_both_pages_of_the_welcome(self):
        self.begin({"hasCompletedOnboarding": False, "idleMode": "off"})
        self.wait_for("Set Up My Cadence")
        self.audit(MAIN, ["Welcome to Kestrelfen"])
        self.click("Set Up My Cadence")
        self.wait_for("Start the First Interval")
        self.audit(MAIN, ["Pick a Cadence"])

    # What changes

    def test_states_change_when_a_screen_reader_presses(self):
        self.begin()
        self.open_popover()
        self.click("Settings")
        for pane, name, role in (("Notifications", "Sound on break start", SWITCH), ("Notifications", "90 days", CHOICE),
                                 ("Enforcement", "Balanced", CHOICE), ("About", "Timing", TAB)):
            with self.subTest(name=name):
                self.find(SETTINGS, pane, TAB).act()
                before = self.find(SETTINGS, name, role)
                self.assertFalse(before.is_on)
                before.act()
                until(lambda: self.find(SETTINGS, name, role).is_on, f"{name} is on", 5.0)
        stepper = self.find(SETTINGS, "Short break", STEPPER)
        self.find(SETTINGS, "Increase Short break", BUTTON).act()
        until(lambda: self.find(SETTINGS, "Short break", STEPPER).description != stepper.description, "another value")

    def test_countdown_is_told_but_not_announced(self):
        """A screen reader reads the new name of what has the keyboard, of an alert or of a window by itself."""
        self.begin()
        self.open_popover()
        for window in (POPOVER, MAIN):
            if window == MAIN:
                self.click("Screen Time")
                self.wait_for("Eye Score")
            self.settled(window)
            with Hearing(self.desktop) as hearing:
                heard = hearing.listen(SECONDS_OF_LISTENING)
            renamed = [each for each in heard if each.what == "accessible-name"]
            self.assertGreaterEqual(len(renamed), 3, "the countdown goes on")
            self.assertEqual({each.role for each in renamed}, {LABEL})
            # The chart sums the week up, which grows with the screen time: nobody is interrupted by a description.
            self.assertLessEqual(set(heard) - set(renamed), {Event("accessible-description", "chart")})

    def test_warning_card_announces_itself_once(self):
        self.begin(WARNED)
        self.wait_for_card()
        self.settled(WARNING)
        with Hearing(self.desktop) as hearing:
            heard = hearing.listen(SECONDS_OF_LISTENING)
        self.assertEqual({each.role for each in heard}, {LABEL})


if __name__ == "__main__":
    unittest.main()
