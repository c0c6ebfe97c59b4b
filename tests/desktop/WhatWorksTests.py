"""What the settings tell of what works on this desktop, and what happens instead."""

import unittest

import dbus

from scaffold import until
from scaffold.login_manager import LoginManager
from scaffold.panel import Panel
from scaffold.session_bus import Service
from scaffold.settings import SettingsTest
from scaffold.sound import Sound

SENTENCE = ("A 20-20-20 eye-break timer that reads the wall clock, pauses itself when you step away, and keeps its own "
            "receipts locally.")
WORKS, MISSING = "Works", "Unavailable"
NAMES = ("Tray icon", "Notifications", "Break overlays", "Escape during a break", "Idle time", "Sleep and waking",
         "Screen lock and user switch", "Display sleep", "Locking the screen", "Program in front", "Calls and video",
         "Website names")
#: What a desktop of a display, a window manager, a session bus and accessibility lacks.
FALLBACKS = {
    "Tray icon": "No tray here. Start the program again to open its window.",
    "Notifications": "Nothing here shows them. The warning card and the overlays still come.",
    "Sleep and waking": "Not told here. A break that came due during sleep starts on waking.",
    "Screen lock and user switch": "Neither is noticed here. Being idle pauses instead.",
    "Locking the screen": "Nothing here locks it. Breaks start unlocked.",
    "Calls and video": "No sound server. Calls and video pause while their app is in front.",
}


class WhatWorksTest(SettingsTest):
    def open_about(self):
        program = self.start_with_settings()
        self.show(program, "About")
        until(lambda: "What works here" in self.texts(program), "the list")
        return program

    def texts(self, program):
        """All that stands in the windows, in view or not; nothing while the tree changes under the eyes."""
        try:
            root = self.tree.program(program.pid)
            return [node.name for node in root.walk()] if root else []
        except dbus.DBusException:
            return []

    def rows(self, program):
        """The state of each row, and the fallbacks told, from the top to the bottom."""
        texts = self.texts(program)
        told = [text.rsplit(": ", 1) for text in texts]
        states = {parts[0]: parts[1] for parts in told if len(parts) == 2 and parts[0] in NAMES}
        return states, [text for text in texts if text in FALLBACKS.values()]

    def wait_until_missing(self, program, *names):
        """Exactly these; all others work."""
        states = {name: MISSING if name in names else WORKS for name in NAMES}
        fallbacks = [FALLBACKS[name] for name in NAMES if name in names]
        until(lambda: self.rows(program) == (states, fallbacks), f"missing, and nothing else: {names}", 12.0)

    def start_tray(self):
        tray = Service(self.desktop, "tray_host.py")
        self.addCleanup(tray.end)
        return tray

    def start_notifications(self):
        daemon = Service(self.desktop, "notification_recorder.py")
        self.addCleanup(daemon.end)
        return daemon


class FullDesktopTests(WhatWorksTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.sound = Sound(cls.desktop)
        cls.login = LoginManager(cls.desktop)
        cls.addClassCleanup(cls.login.close)

    def test_everything_works_with_either_kind_of_tray(self):
        self.start_notifications()
        panel = Panel(self.desktop)
        program = self.open_about()
        self.wait_until_missing(program)
        panel.end()
        self.wait_until_missing(program, "Tray icon")
        self.start_tray()
        self.wait_until_missing(program)

    def test_service_that_goes_and_comes_is_told_while_the_pane_is_open(self):
        self.start_tray()
        daemon = self.start_notifications()
        program = self.open_about()
        self.wait_until_missing(program)
        daemon.end()
        self.wait_until_missing(program, "Notifications")
        self.sound.kill()
        self.wait_until_missing(program, "Notifications", "Calls and video")
        self.sound.start()
        self.start_notifications()
        self.wait_until_missing(program)
        self.addCleanup(self.login.start)
        self.login.stop()
        self.wait_until_missing(program, "Sleep and waking", "Screen lock and user switch", "Locking the screen")

    def test_pane_says_what_it_always_said_above_the_list(self):
        program = self.open_about()
        texts = self.texts(program)
        self.assertIn(SENTENCE, texts)
        self.assertLess(texts.index(SENTENCE), texts.index("What works here"))


class BareDesktopTests(WhatWorksTest):
    """A display, a window manager, accessibility, and a session bus with nothing else on it."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        folder = cls.desktop.folder
        cls.desktop.environment |= {"DBUS_SYSTEM_BUS_ADDRESS": f"unix:path={folder}/absent",
                                    "PULSE_SERVER": f"unix:{folder}/absent"}

    def test_each_that_is_missing_says_so_with_its_fallback(self):
        program = self.open_about()
        self.wait_until_missing(program, *FALLBACKS)

    def test_tray_and_notifications_that_come_late_are_told(self):
        program = self.open_about()
        self.wait_until_missing(program, *FALLBACKS)
        tray = self.start_tray()
        self.wait_until_missing(program, *[name for name in FALLBACKS if name != "Tray icon"])
        self.start_notifications()
        self.wait_until_missing(program, *[name for name in FALLBACKS
                                           if name not in ("Tray icon", "Notifications")])
        tray.end()
        self.wait_until_missing(program, *[name for name in FALLBACKS if name != "Notifications"])


if __name__ == "__main__":
    unittest.main()
