"""The item in the tray, in both kinds of tray."""

import unittest

from scaffold import DesktopTest, until
from scaffold.panel import Panel
from scaffold.program import QUICK
from scaffold.session_bus import Service

LONG = QUICK | {"workIntervalSeconds": 600.0}
NO_TRAY = "No tray here: start Kestrelfen again to see its window."


class PanelTests(DesktopTest):
    """The older kind: the panel takes a window in."""

    def setUp(self):
        super().setUp()
        self.panel = Panel(self.desktop)
        self.addCleanup(self.panel.end)

    def wait_for_icon(self):
        """Once it has its final size and has been drawn."""
        return until(self.drawn_icon, "the icon", 20.0)

    def drawn_icon(self):
        icon = self.panel.icon()
        is_drawn = icon and icon.width == 24 and self.desktop.shoot(icon.frame).share_of(Panel.COLOR) < 0.99
        return icon if is_drawn else None

    def test_left_and_right_click_open_and_close_the_popover(self):
        self.start(LONG)
        icon = self.wait_for_icon()
        for button in (1, 3):
            with self.subTest(button=button):
                self.hands.click(icon.centre, button)
                popover = self.wait_for_popover()
                self.assertLess(abs(popover.centre[0] - icon.centre[0]), popover.width)
                self.assertLessEqual(popover.y + popover.height, self.panel.window.y)
                self.hands.click(icon.centre, button)
                self.wait_for_no_popover()

    def test_picture_tells_the_state(self):
        program = self.start(QUICK | {"workIntervalSeconds": 5.0, "preBreakWarningLeadSeconds": 2.0,
                                      "breakDurationSeconds": 2.0})
        frame = self.wait_for_icon().frame
        working = self.desktop.shoot(frame)
        self.wait_for_card()
        until(lambda: self.desktop.shoot(frame) != working, "another picture for the warning")
        program.logs("break complete")
        until(lambda: self.desktop.shoot(frame) == working, "the picture of working again", 3.0)

    def test_tooltip_shows_under_the_pointer(self):
        self.start(LONG)
        icon = self.wait_for_icon()
        self.hands.move_to(icon.centre)
        until(lambda: self.windows.named("Kestrelfen tooltip"), "the tooltip")
        self.hands.move_to((300, 300))
        until(lambda: not self.windows.named("Kestrelfen tooltip"), "no tooltip")

    def test_panel_that_comes_later_gets_the_item(self):
        self.panel.end()
        self.start(LONG)
        self.panel = Panel(self.desktop)
        self.addCleanup(self.panel.end)
        self.wait_for_icon()


class StatusNotifierTests(DesktopTest):
    """The newer kind: the tray asks on the session bus."""

    def setUp(self):
        super().setUp()
        self.start_tray()

    def start_tray(self):
        self.tray = Service(self.desktop, "tray_host.py")
        self.addCleanup(self.tray.end)
        until(lambda: {"event": "ready"} in self.tray.told, "the tray")

    def wait_until_registered(self):
        until(lambda: any(told.get("event") == "registered" for told in self.tray.told), "the item registered")

    def ask(self, **command):
        """The tray's answer to that."""
        before = len([told for told in self.tray.told if "event" not in told])
        self.tray.say(**command)
        answers = until(lambda: [told for told in self.tray.told if "event" not in told][before:], "an answer")
        self.assertNotIn("error", answers[0])
        return answers[0]["answer"]

    def start_registered(self, preferences):
        program = self.start(preferences)
        self.wait_until_registered()
        return program

    def tooltip(self):
        return self.ask(do="property", name="ToolTip")[3]

    def pictures(self):
        return self.ask(do="property", name="IconPixmap")

    def test_item_tells_of_itself(self):
        program = self.start_registered(LONG)
        properties = self.ask(do="properties")
        self.assertEqual((properties["Id"], properties["Category"], properties["Status"], properties["Title"]),
                         ("kestrelfen", "ApplicationStatus", "Active", "Kestrelfen"))
        self.assertEqual([picture[:2] for picture in properties["IconPixmap"]],
                         [[size, size] for size in (16, 18, 20, 22, 24, 32, 44, 48, 64)])
        # Until the first tick the engine's present lies a moment before the start of the interval.
        self.assertRegex(properties["XAyatanaLabel"], r"^(10:0[01]|09:\d\d)$")
        self.assertEqual(len(properties["XAyatanaLabelGuide"]), len(properties["XAyatanaLabel"]))
        self.assertEqual(program.count("tray"), 0)

    def test_activate_and_context_menu_open_and_close_the_popover(self):
        self.start_registered(LONG)
        for method in ("Activate", "ContextMenu"):
            with self.subTest(method):
                self.ask(do="call", method=method, arguments=[1800, 1070])
                popover = self.wait_for_popover()
                self.assertLessEqual(popover.x + popover.width, 1920)
                self.assertLessEqual(popover.y + popover.height, 1070)
                self.ask(do="call", method=method, arguments=[1800, 1070])
                self.wait_for_no_popover()

    def test_popover_opens_on_the_display_of_the_click(self):
        self.start_registered(LONG)
        self.ask(do="call", method="Activate", arguments=[3700, 12])
        popover = self.wait_for_popover()
        self.assertGreaterEqual(popover.x, 1920)
        self.assertLessEqual(popover.x + popover.width, 3840)
        self.assertLess(popover.y, 100)

    def test_tooltip_counts_down_by_the_second(self):
        self.start_registered(QUICK | {"workIntervalSeconds": 6.0, "breakDurationSeconds": 60.0})
        told = []
        until(lambda: told.append(self.tooltip()) or told[-1].startswith("Break ends in"), "the break")
        counted = list(dict.fromkeys(text for text in told if text.startswith("Next")))
        self.assertEqual(counted[-4:], [f"Next break in 00:0{left}" for left in (4, 3, 2, 1)])
        self.assertIn(told[-1], ("Break ends in 01:00", "Break ends in 00:59"))

    def test_label_counts_down_by_the_second(self):
        self.start_registered(QUICK | {"workIntervalSeconds": 6.0, "breakDurationSeconds": 60.0})
        told = []
        until(lambda: told.append(self.ask(do="property", name="XAyatanaLabel")) or told[-1] in ("01:00", "00:59"),
              "the break")
        counted = [text for text in dict.fromkeys(told) if text.startswith("00:0")]
        self.assertEqual(counted[-4:], [f"00:0{left}" for left in (4, 3, 2, 1)])

    def test_picture_tells_the_state(self):
        program = self.start_registered(QUICK | {"workIntervalSeconds": 4.0, "preBreakWarningLeadSeconds": 2.0,
                                                 "breakDurationSeconds": 3.0})
        pictures = {"working": self.pictures()}
        program.logs("pre-break warning")
        pictures["warning"] = until(lambda: self.another(pictures), "another picture")
        program.logs("break 3 s")
        pictures["break"] = until(lambda: self.another(pictures), "another picture")
        program.logs("break complete")
        until(lambda: self.pictures() == pictures["working"], "the picture of working again")
        self.ask(do="call", method="Activate", arguments=[1800, 12])
        self.click_button(program, "Pause")
        program.logs("paused (manual")
        until(lambda: self.another(pictures), "another picture")
        self.assertTrue(self.tooltip().startswith("Paused, 00:0"), self.tooltip())

    def another(self, pictures):
        now = self.pictures()
        return now if now not in pictures.values() else None

    def test_tray_that_goes_and_comes_gets_the_item_again(self):
        program = self.start_registered(LONG)
        self.tray.end()
        self.start_tray()
        self.wait_until_registered()
        self.assertEqual(program.count(NO_TRAY), 0)


class NoTrayTests(DesktopTest):
    def test_log_tells_once_and_a_second_start_opens_the_popover(self):
        program = self.start(LONG)
        program.logs(NO_TRAY)
        self.assertEqual(program.second_start(), (0, "Kestrelfen runs already; it was asked to show itself.\n"))
        self.wait_for_popover()
        self.hands.press("Escape")
        self.wait_for_no_popover()
        program.second_start()
        self.wait_for_popover()
        self.assertEqual(program.count(NO_TRAY), 1)
        self.assertEqual(program.count("work 10 min"), 1)


if __name__ == "__main__":
    unittest.main()
