"""Every text that the program tells of is translated, as a language shows that nobody speaks."""

import re
import unittest
from pathlib import Path

from scaffold import pseudo, until
from scaffold.audit import BUTTON, CHOICE, MENU, TAB, surface
from scaffold.main_window import LONG, MainWindowTest
from scaffold.program import BINARY, QUICK
from scaffold.session_bus import Service
from scaffold.three_months import APPS, SITES, TITLES
from scaffold.windows import BREAK, MAIN, POPOVER, WARNING

SETTINGS = pseudo.say("Settings")
CATALOGUES = Path(__file__).resolve().parents[2] / "po"
PANES = ("Timing", "Enforcement", "Smart Pause", "Pausing", "Website Stats", "Notifications", "Appearance", "About")
LISTS = ("Meetings or Calls", "Video Playback", "Screen Recording or Sharing", "Deep Focus Apps")
WARNED = QUICK | {"workIntervalSeconds": 60.0, "preBreakWarningLeadSeconds": 60.0}
LONG_BREAK = QUICK | {"workIntervalSeconds": 1.0, "preBreakWarningLeadSeconds": 0.1, "breakDurationSeconds": 1.0,
                      "longBreakDurationSeconds": 240.0, "longBreakEvery": 2}
#: What remains of a told text may be this.
ALLOWED = re.compile("|".join((
    r"\[[^\[\]]*\]",  # What is translated, from the inside to the outside.
    r"\d+(:\d\d)*",  # Numbers, times and dates.
    r"Kestrelfen( break| warning| popover)?|app\.kestrelfen\.Kestrelfen|v[\d.]+",  # The program itself.
    r"Brave Browser|Brave|Google Chrome|Microsoft Edge|Safari|Arc|Vivaldi|Opera|Chromium|Edge|Chrome",  # Brands.
    r"\b(Mon|Tue|Wed|Thu|Fri|Sat|Sun|Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec)\b",  # The desktop's dates.
)))
#: Of a program whose name the system does not know.
IDENTIFIER = re.compile(r"\b[a-z]+(\.\w+){2,}")
#: What a person or another program wrote.
DATA = sorted([name for _, name, _ in APPS] + [*SITES, *TITLES, "Zoom"], key=len, reverse=True)
LETTER = re.compile(r"[^\W\d_]")


def untranslated(text):
    """The letters of a text that no translation holds, or nothing."""
    text = IDENTIFIER.sub("", text)
    for data in DATA:
        text = text.replace(data, "")
    before = None
    while before != text:
        before, text = text, ALLOWED.sub("", text)
    return text.strip() if LETTER.search(text) else ""


class TranslationTests(MainWindowTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        template = (CATALOGUES / "kestrelfen.pot").read_text(encoding="utf-8")
        german = (CATALOGUES / "de.po").read_text(encoding="utf-8")
        cls.binary = pseudo.install(Path(cls.desktop.folder) / "translated", BINARY,
                                    {pseudo.LANGUAGE: pseudo.catalogue(template), "de": german})

    def start(self, preferences=QUICK, environment=None, **options):
        chosen = pseudo.ENVIRONMENT | (environment or {})
        return super().start(preferences, environment=chosen, binary=self.binary, **options)

    def begin(self, preferences=LONG, **options):
        self.program = self.start(preferences, **options)

    def open(self, tab, **preferences):
        return super().open(pseudo.say(tab), **preferences)

    def press(self, original, role=BUTTON):
        self.click(pseudo.say(original), role)

    def open_popover(self):
        self.program.logs("work ")
        self.program.second_start()
        self.wait_for_popover()

    def assert_translated(self, window, least=3):
        """Of every object that the window shows, name and description."""
        told = until(lambda: surface(self.tree, self.program.pid, window), f"{window!r} is told of")
        texts = {text for each in told for text in (each.name, each.description) if text}
        self.assertGreaterEqual(sum("[" in text for text in texts), least, texts)
        self.assertEqual(sorted(text for text in texts if untranslated(text)), [])

    def wait_for_pseudo(self, original):
        self.wait_for(pseudo.say(original))

    # The popover, the overlays and the card

    def test_popover_in_every_state(self):
        self.begin()
        self.open_popover()
        self.wait_for_pseudo("Next break in")
        self.assert_translated(POPOVER)
        self.press("Pause")
        self.wait_for_pseudo("Resume")
        self.assert_translated(POPOVER)
        self.press("Resume")
        self.press("Break Now")
        self.wait_for_overlays()
        self.program.second_start()
        self.wait_for_popover()
        self.wait_for_pseudo("Break ends in")
        self.assert_translated(POPOVER)

    def test_short_overlay(self):
        self.begin(QUICK | {"enforcementLevel": "balanced"})
        self.wait_for_overlays()
        self.wait_for_pseudo("Look 20 feet away")
        self.assert_translated(BREAK)

    def test_long_overlay(self):
        self.begin(LONG_BREAK)
        self.wait_for(pseudo.say("Stand up and walk"), 40.0)
        self.assert_translated(BREAK)

    def test_warning_card(self):
        self.begin(WARNED)
        self.wait_for_card()
        self.assert_translated(WARNING)

    def test_notification(self):
        daemon = Service(self.desktop, "notification_recorder.py")
        self.addCleanup(daemon.end)
        until(lambda: daemon.told, "the notification daemon")
        self.begin(QUICK)
        (told,) = until(lambda: [each for each in daemon.told if each], "a notification")
        self.assertEqual((untranslated(told["title"]), untranslated(told["body"])), ("", ""))
        self.assertIn("[", told["title"])

    # The main window

    def test_dashboard_its_menu_and_its_sheet(self):
        self.open("Screen Time", **{"websiteStats.chrome": True})
        self.wait_for_pseudo("Eye Score")
        self.assert_translated(MAIN)
        self.press("By App", MENU)
        self.assert_translated(MAIN, 2)
        self.hands.press("Escape")
        self.press("See All")
        self.wait_for_pseudo("Usage Detail")
        self.assert_translated(MAIN)

    def test_history_tasks_and_their_question(self):
        self.open("Break History")
        self.wait_for_pseudo("Started")
        self.assert_translated(MAIN)
        self.press("Tasks", CHOICE)
        self.wait_for_pseudo("Clear Completed…")
        self.assert_translated(MAIN)
        self.press("Clear Completed…")
        self.wait_for_pseudo("This can't be undone.")
        self.assert_translated(MAIN)

    def test_main_window_without_data(self):
        self.begin()
        self.open_popover()
        self.press("Screen Time")
        self.wait_for_pseudo("Eye Score")
        self.assert_translated(MAIN)
        self.press("See All")
        self.wait_for_pseudo("Usage Detail")
        self.assert_translated(MAIN)
        self.press("Done")
        for tab, text in (("Breaks", "Nothing recorded in this range."), ("Tasks", "No tasks yet")):
            self.press(tab, CHOICE)
            self.wait_for_pseudo(text)
            self.assert_translated(MAIN)

    # The settings and the welcome

    def open_settings(self, **preferences):
        self.begin(LONG | preferences)
        self.open_popover()
        self.press("Settings")

    def test_every_pane_of_the_settings(self):
        self.open_settings(idleMode="custom")
        for pane in PANES:
            with self.subTest(pane=pane):
                self.press(pane, TAB)
                self.assert_translated(SETTINGS)

    def test_sheets_and_the_question_of_the_settings(self):
        self.open_settings()
        self.press("Smart Pause", TAB)
        for name in LISTS:
            self.click(pseudo.say("Configure %1").replace("%1", pseudo.say(name)))
            self.wait_for_pseudo("Add a running app")
            self.assert_translated(SETTINGS)
            self.press("Done")
        self.press("Notifications", TAB)
        self.press("Delete All History…")
        self.wait_for_pseudo("Delete Everything")
        self.assert_translated(SETTINGS)

    def test_both_pages_of_the_welcome(self):
        self.begin({"hasCompletedOnboarding": False, "idleMode": "off"})
        self.wait_for_pseudo("Set Up My Cadence")
        self.assert_translated(MAIN)
        self.press("Set Up My Cadence")
        self.wait_for_pseudo("Start the First Interval")
        self.assert_translated(MAIN)

    # A language that somebody speaks

    def test_break_is_german_and_the_log_is_not(self):
        self.begin(environment={"LANGUAGE": "de"})
        self.program.logs("work ")
        self.program.second_start()
        self.wait_for_popover()
        self.click("Jetzt Pause")
        self.wait_for_overlays()
        for text in ("Schau in die Ferne", "Pause überspringen"):
            self.wait_for(text)
        self.program.logs("break 20 s")
        self.assertNotIn("Pause", self.program.log)


if __name__ == "__main__":
    unittest.main()
