"""What the program keeps of what happened, whatever becomes of it."""

import signal
import sqlite3
import tempfile
import time
import unittest
from pathlib import Path

from scaffold import DesktopTest, until
from scaffold.program import QUICK

SHORT = QUICK | {"breakDurationSeconds": 1.0, "longBreakEvery": 12}
AT_WORK = QUICK | {"workIntervalSeconds": 600.0}
SECONDS_TO_END = 2.0


class HistoryTests(DesktopTest):
    def home(self):
        return Path(tempfile.mkdtemp(prefix="run-", dir=self.desktop.folder))

    def home_with_store(self, content):
        home = self.home()
        store = home / "data" / "kestrelfen" / "Kestrelfen.sqlite"
        store.parent.mkdir(parents=True)
        store.write_bytes(content)
        return home, store

    def end(self, program, number=signal.SIGTERM):
        program.signal(number)
        return program.exit_status(SECONDS_TO_END)

    def test_breaks_are_kept(self):
        program = self.start(SHORT)
        program.logs("break complete (today: 2)")
        self.assertEqual(self.end(program), 0)
        self.assertEqual(program.rows("SELECT outcomeRawValue, displayCount, isLong, plannedSeconds FROM BreakRecord"),
                         [("completed", 2, 0, 1.0)] * 2)
        self.assertEqual(program.rows("SELECT breaksCompleted, breaksSkipped FROM DayRecord"), [(2, 0)])

    def test_next_run_takes_up_the_days_counts(self):
        program = self.start(SHORT)
        program.logs("break complete (today: 1)")
        self.assertEqual(self.end(program), 0)
        again = self.start(SHORT, home=program.home)
        again.logs(": 1 completed, 0 skipped")
        again.logs("break complete (today: 2)")

    def test_break_that_is_over_survives_murder(self):
        program = self.start(SHORT)
        program.logs("break complete (today: 1)")
        until(lambda: program.store_file.exists() and program.rows("SELECT * FROM BreakRecord"), "the row", 2.0)
        self.assertEqual(self.end(program, signal.SIGKILL), -signal.SIGKILL)
        again = self.start(AT_WORK, home=program.home)
        again.logs(": 1 completed, 0 skipped")

    def test_break_under_way_at_the_end_is_not_kept(self):
        program = self.start()
        self.wait_for_overlays()
        self.assertEqual(self.end(program), 0)
        self.assertEqual(program.rows("SELECT * FROM BreakRecord"), [])

    def test_screen_time_of_the_last_seconds_is_kept(self):
        program = self.start(AT_WORK | {"idleMode": "custom", "idleThresholdSeconds": 600.0})
        program.logs("work ")
        time.sleep(4.0)
        self.assertEqual(self.end(program, signal.SIGINT), 0)
        [(seconds,)] = program.rows("SELECT activeSeconds FROM DayRecord")
        self.assertTrue(1.5 < seconds < 6.0, seconds)
        program.logs("ScreenTime: flushed ")

    def test_popovers_quit_writes_too(self):
        program = self.start(AT_WORK | {"idleMode": "custom", "idleThresholdSeconds": 600.0})
        program.logs("work ")
        time.sleep(3.0)
        program.second_start()
        self.wait_for_popover()
        self.click_button(program, "Quit Kestrelfen")
        self.assertEqual(program.exit_status(SECONDS_TO_END), 0)
        self.assertEqual(len(program.rows("SELECT * FROM DayRecord")), 1)

    def test_file_that_is_no_store_is_left_alone_and_the_timer_runs(self):
        content = b"Dear diary, today I looked out of the window.\n" * 200
        home, store = self.home_with_store(content)
        program = self.start(SHORT, home=home)
        program.logs("break complete (today: 2)")
        self.assertEqual(program.count("store unavailable: "), 1)
        self.assertEqual(self.end(program), 0)
        self.assertEqual(store.read_bytes(), content)
        self.assertEqual([entry.name for entry in store.parent.iterdir()], [store.name])

    def test_store_of_a_newer_version_is_left_alone(self):
        first = self.start(SHORT)
        first.logs("break complete (today: 1)")
        self.assertEqual(self.end(first), 0)
        connection = sqlite3.connect(first.store_file)
        connection.execute("PRAGMA user_version = 50000")
        connection.close()
        content = first.store_file.read_bytes()
        program = self.start(SHORT, home=first.home)
        program.logs("break complete (today: 1)")
        program.logs("store unavailable: the store has the unknown version 5.0.0")
        self.assertEqual(self.end(program), 0)
        self.assertEqual(first.store_file.read_bytes(), content)

    def test_store_that_another_program_holds_is_left_alone(self):
        first = self.start(SHORT)
        first.logs("break complete (today: 1)")
        self.assertEqual(self.end(first), 0)
        holder = sqlite3.connect(first.store_file, isolation_level=None)
        self.addCleanup(holder.close)
        holder.execute("PRAGMA locking_mode = EXCLUSIVE")
        holder.execute("BEGIN EXCLUSIVE")
        program = self.start(SHORT, home=first.home)
        program.logs("break complete (today: 1)")
        self.assertEqual(program.count("store unavailable: "), 1)

    def test_store_that_breaks_in_mid_run_leaves_the_timer_alone(self):
        program = self.start(SHORT)
        program.logs("break complete (today: 1)")
        until(lambda: program.rows("SELECT * FROM BreakRecord"), "the row", 2.0)
        holder = sqlite3.connect(program.store_file, isolation_level=None)
        holder.execute("BEGIN IMMEDIATE")
        program.logs("recordBreak failed: ")
        program.logs("break complete (today: 3)")
        holder.execute("ROLLBACK")
        holder.close()
        program.logs("break complete (today: 5)")
        self.assertEqual(self.end(program), 0)
        [(kept,)] = program.rows("SELECT count(*) FROM BreakRecord")
        self.assertIn(kept, (3, 4))

    def test_folder_is_for_its_owner_only(self):
        program = self.start(SHORT)
        program.logs("break complete (today: 1)")
        self.assertEqual(program.store_file.stat().st_mode & 0o777, 0o600)
        self.assertEqual(program.store_file.parent.stat().st_mode & 0o777, 0o700)


if __name__ == "__main__":
    unittest.main()
