"""What the program does where a service of the desktop is there, and where it is not."""

import unittest

from scaffold import DesktopTest, until
from scaffold.program import QUICK
from scaffold.session_bus import Service

NO_BUS = "no session bus, so another instance would not be noticed"


class ServiceTests(DesktopTest):
    def notifications(self, daemon):
        return [told for told in daemon.told if told]

    def start_daemon(self):
        daemon = Service(self.desktop, "notification_recorder.py")
        self.addCleanup(daemon.end)
        until(lambda: daemon.told, "the notification daemon")
        return daemon

    def test_without_a_display_it_says_so_and_fails(self):
        program = self.start(environment={"DISPLAY": None, "WAYLAND_DISPLAY": None})
        self.assertEqual(program.exit_status(5.0), 1)
        self.assertRegex(program.log, r"^kestrelfen: there is no X11 display to show anything on .*\n$")
        self.assertEqual(program.output, "")

    def test_display_that_cannot_be_reached_is_none(self):
        program = self.start(environment={"DISPLAY": ":987654"})
        self.assertEqual(program.exit_status(5.0), 1)
        self.assertIn("no X11 display", program.log)

    def test_without_a_session_bus_it_runs_and_says_so_once(self):
        program = self.start(QUICK | {"breakDurationSeconds": 2.0}, environment={
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={self.desktop.folder}/absent",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": None})
        self.wait_for_overlays()
        program.logs("break complete (today: 1)")
        self.assertEqual(program.count(NO_BUS), 1, program.log)

    def test_notification_of_a_break(self):
        daemon = self.start_daemon()
        self.start(QUICK | {"breakDurationSeconds": 20.0})
        (told,) = until(lambda: self.notifications(daemon), "a notification")
        self.assertEqual((told["application"], told["title"], told["body"]),
                         ("Kestrelfen", "Look away — 20 seconds",
                          "Focus on something about 20 feet away for 20 s."))
        self.assertEqual(told["actions"], [])
        self.assertTrue(told["hints"]["suppress-sound"])

    def test_notification_of_a_break_with_sound(self):
        daemon = self.start_daemon()
        self.start(QUICK | {"soundOnBreakStart": True})
        (told,) = until(lambda: self.notifications(daemon), "a notification")
        self.assertEqual(told["hints"]["sound-name"], "message-new-instant")
        self.assertNotIn("suppress-sound", told["hints"])

    def test_no_notification_while_the_popover_has_the_keyboard(self):
        daemon = self.start_daemon()
        program = self.start(QUICK | {"workIntervalSeconds": 6.0, "breakDurationSeconds": 2.0})
        program.logs("work ")
        program.second_start()
        popover = self.wait_for_popover()
        until(lambda: self.windows.active() == int(popover.id, 16), "the popover has the focus")
        program.logs("break 2 s")
        self.assertEqual(self.windows.active(), int(popover.id, 16))
        program.logs("break complete")
        self.assertEqual(self.notifications(daemon), [])

    def test_without_a_notification_daemon_all_goes_on(self):
        program = self.start(QUICK | {"breakDurationSeconds": 1.0})
        program.logs("break complete (today: 2)")
        self.assertEqual(program.count("otif"), 0, program.log)


if __name__ == "__main__":
    unittest.main()
