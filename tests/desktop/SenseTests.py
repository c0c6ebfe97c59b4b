"""What the program makes of a person's day: calls, videos, locks, sleep, programs on two monitors."""

import signal
import time
import unittest
from pathlib import Path

from scaffold import DesktopTest, until
from scaffold.login_manager import LoginManager
from scaffold.sound import Sound

AT_WORK = {"idleMode": "off", "workIntervalSeconds": 3600.0, "preBreakWarningLeadSeconds": 0.0}
LISTENING = AT_WORK | {"meetingAppBundleIDs": ["org.example.Call"], "videoAppBundleIDs": ["org.example.Film"]}
SECONDS_UNTIL_CLEAR = 20.0
SECONDS_BETWEEN_LOOKS = 5.0


class SenseTests(DesktopTest):
    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.install("org.example.Call", "org.example.Film", "org.example.Music")
        cls.sound = Sound(cls.desktop)
        cls.login = LoginManager(cls.desktop)
        cls.addClassCleanup(cls.login.close)

    @classmethod
    def install(cls, *applications):
        folder = Path(cls.desktop.make_folder("share"))
        cls.desktop.environment["XDG_DATA_DIRS"] = str(folder)
        (folder / "applications").mkdir()
        for application in applications:
            (folder / "applications" / f"{application}.desktop").write_text(
                f"[Desktop Entry]\nType=Application\nName={application}\nExec=true\n", encoding="utf-8")

    def at_work(self, preferences=LISTENING):
        program = self.start(preferences)
        program.logs("work ")
        time.sleep(1.5)
        return program

    def sound_of(self, kind, application):
        process = getattr(self.sound, kind)(application)
        self.addCleanup(self.sound.stop, process)
        return process

    def test_video_pauses_and_its_end_resumes_twenty_seconds_later(self):
        program = self.at_work()
        player = self.sound_of("play", "org.example.Film")
        program.logs("paused (videoPlayback, ", seconds=SECONDS_BETWEEN_LOOKS + 5)
        self.sound.stop(player)
        program.logs("smart pause clear", seconds=SECONDS_BETWEEN_LOOKS + 5)
        cleared = time.monotonic()
        program.logs("resumed work (", seconds=SECONDS_UNTIL_CLEAR + 10)
        waited = time.monotonic() - cleared
        self.assertTrue(SECONDS_UNTIL_CLEAR - 2 < waited < SECONDS_UNTIL_CLEAR + 3, waited)

    def test_call_pauses_and_is_kept_in_the_history(self):
        program = self.at_work()
        self.sound_of("record", "org.example.Call")
        program.logs("paused (meeting, ", seconds=SECONDS_BETWEEN_LOOKS + 5)
        time.sleep(2.0)
        self.login.prepare_for_sleep(True)
        self.login.prepare_for_sleep(False)
        until(lambda: program.rows("SELECT kindRawValue FROM PauseRecord"), "the pause's row", 5.0)
        self.assertEqual(program.rows("SELECT DISTINCT kindRawValue FROM PauseRecord")[0], ("meeting",))

    def test_sound_of_a_program_that_is_not_listed_pauses_nothing(self):
        program = self.at_work()
        self.sound_of("play", "org.example.Music")
        time.sleep(SECONDS_BETWEEN_LOOKS + 2)
        self.assertEqual(program.count("paused"), 0)

    def test_sound_server_that_dies_and_comes_back_is_heard_again(self):
        program = self.at_work()
        self.sound.kill()
        time.sleep(1.0)
        self.sound.start()
        time.sleep(SECONDS_BETWEEN_LOOKS + 2)
        self.sound_of("play", "org.example.Film")
        program.logs("paused (videoPlayback, ", seconds=SECONDS_BETWEEN_LOOKS + 10)
        self.assertTrue(program.is_running())

    def test_lock_pauses_and_unlock_resumes(self):
        program = self.at_work()
        self.login.change("LockedHint", True)
        program.logs("paused (screenLocked, ")
        self.login.change("LockedHint", False)
        program.logs("system resume signal (screenLocked) clearing screenLocked pause")

    def test_sleep_pauses_and_waking_resumes(self):
        program = self.at_work()
        self.login.prepare_for_sleep(True)
        program.logs("paused (systemSleep, ")
        self.login.prepare_for_sleep(False)
        program.logs("system resume signal (systemSleep) clearing systemSleep pause")

    def test_switch_of_the_session_pauses_and_coming_back_resumes(self):
        program = self.at_work()
        self.login.change("Active", False)
        program.logs("paused (screenLocked, ")
        self.login.change("Active", True)
        program.logs("system resume signal (screenLocked) clearing screenLocked pause")

    def test_sleeping_displays_pause_and_waking_ones_resume(self):
        program = self.at_work()
        self.desktop.run("xset", "s", "activate")
        program.logs("paused (displaySleep, ")
        self.desktop.run("xset", "s", "reset")
        program.logs("system resume signal (displaySleep) clearing displaySleep pause")

    def test_login_manager_that_restarts_is_heard_again(self):
        program = self.at_work()
        self.login.stop()
        self.login.start()
        time.sleep(1.0)
        self.login.prepare_for_sleep(True)
        program.logs("paused (systemSleep, ")
        self.login.prepare_for_sleep(False)

    def test_shutdown_of_the_machine_ends_it_in_good_order(self):
        program = self.at_work(AT_WORK | {"idleMode": "custom", "idleThresholdSeconds": 600.0})
        self.hands.press("a")
        time.sleep(3.0)
        self.login.prepare_for_shutdown()
        self.assertEqual(program.exit_status(2.0), 0)
        self.assertEqual(len(program.rows("SELECT * FROM DayRecord")), 1)

    def test_rows_name_the_programs_and_their_displays(self):
        left = self.terminal("left", "-class", "LeftTerm", "-geometry", "40x10+200+200")
        right = self.terminal("right", "-class", "RightTerm", "-geometry", "40x10+2300+200")
        left.take_focus()
        program = self.at_work(AT_WORK | {"idleMode": "custom", "idleThresholdSeconds": 600.0})
        self.hands.press("a")
        time.sleep(4.0)
        right.take_focus()
        program.logs("flushed ", seconds=10.0)
        time.sleep(3.0)
        program.signal(signal.SIGTERM)
        self.assertEqual(program.exit_status(2.0), 0)
        rows = program.rows("SELECT bundleIdentifier, displayID, activeSeconds FROM AppUsageRecord ORDER BY id")
        self.assertEqual([(name.lower(), display) for name, display, _ in rows],
                         [("leftterm", 1), ("rightterm", 2)], rows)
        self.assertTrue(all(seconds > 1.5 for *_, seconds in rows), rows)

    def test_focus_application_pauses_while_it_is_in_front(self):
        terminal = self.terminal("focus", "-class", "DeepWork")
        program = self.at_work(AT_WORK | {"smartPauseFocusApps": True, "focusAppBundleIDs": ["DeepWork"]})
        terminal.take_focus()
        program.logs("paused (focusApp, ")


if __name__ == "__main__":
    unittest.main()
