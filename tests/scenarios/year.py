"""Runs a working year through the simulator and reconciles what the store then holds with what was lived, to the row.

    year.py SIMULATOR            250 sessions of eight hours
    year.py SIMULATOR --print    the scenario alone

Four changes of daylight saving lie in it, three journeys across zones, 40 relaunches and 12 kills.
"""

import datetime
import os
import random
import sqlite3
import subprocess
import sys
import tempfile
import time
from zoneinfo import ZoneInfo

SESSIONS, HOURS = 250, 8
RELAUNCHES, KILLS = 40, 12
INTERVAL, SHORT, LONG, EVERY = 1200, 20, 300, 4
HOME = "Europe/Berlin"
#: From the day on, before work begins there.
JOURNEYS = {datetime.date(2026, 3, 2): "America/New_York", datetime.date(2026, 3, 16): HOME,
            datetime.date(2026, 6, 8): "Asia/Tokyo", datetime.date(2026, 6, 22): HOME,
            datetime.date(2026, 10, 26): "America/New_York", datetime.date(2026, 11, 9): HOME}
#: Saturday evenings from 20:00 on, over the change of the clocks.
CHANGES = (datetime.date(2026, 3, 7), datetime.date(2026, 3, 28), datetime.date(2026, 10, 24),
           datetime.date(2026, 10, 31))
APPS = ("org.editor", "org.mail", "org.terminal", "org.browser")
TICK = 1.0
#: A meeting is noticed and left at a sample.
MEETING_SLACK = 30.0
#: What is pending when the program is killed is lost.
FLUSH_RHYTHM = 31.0
#: What is measured is the program, not a disk.
MEMORY = "/dev/shm"


class Ledger:
    """What was lived."""

    def __init__(self):
        self.completed = self.skipped = self.longs = 0
        self.pauses = {"manual": 0, "meeting": 0, "screenLocked": 0, "systemSleep": 0}
        self.paused = 0.0
        self.worked = 0.0
        #: Seconds that may be missing from what was worked: the first tick after each interruption.
        self.unsure = 0.0


class Year:
    """Writes the scenario and keeps the ledger."""

    def __init__(self):
        self.random = random.Random(2026)
        self.ledger = Ledger()
        self.now = None
        self.asleep_since = None
        self.cadence = 0
        self.days = self._days()
        self.relaunches = set(self.random.sample(range(1, SESSIONS), RELAUNCHES))
        self.kills = set(self.random.sample(sorted(set(range(1, SESSIONS)) - self.relaunches), KILLS))
        self.lines = ["pref hasCompletedOnboarding bool true", "pref enforcementLevel string casual",
                      "pref snoozesPerDay int -1", "pref snoozesPerBreak int -1", "pref resumeAutomatically bool true",
                      "pref historyRetentionDays int 0", "pref dailySummaryEnabled bool false", f"zone {HOME}",
                      "app start us.zoom.xos Zoom 9 1"]
        self.lines += [f"app start {bundle} Name {pid} 1" for pid, bundle in enumerate(APPS, 1)]

    def _days(self):
        day, days = datetime.date(2026, 1, 5), list(CHANGES)
        while len(days) < SESSIONS:
            if day.weekday() < 5:
                days.append(day)
            day += datetime.timedelta(days=1)
        return sorted(days)

    def say(self, *lines):
        self.lines += lines

    def run(self, seconds):
        self.say(f"run {seconds}")
        self.now += datetime.timedelta(seconds=seconds)

    def go_to(self, moment):
        assert self.now is None or moment > self.now, (self.now, moment)
        self.now = moment
        self.say(f"clock {moment:%Y-%m-%dT%H:%M:%SZ}")

    def write(self):
        zone = HOME
        for number, day in enumerate(self.days):
            for arrival, place in JOURNEYS.items():
                zone = place if day >= arrival else zone
            hour = 20 if day in CHANGES else self.random.choice((8, 9, 9, 10)) if number % 25 else 17
            start = datetime.datetime(day.year, day.month, day.day, hour, self.random.randrange(60),
                                      tzinfo=ZoneInfo(zone)).astimezone(datetime.timezone.utc)
            self.begin(number, zone, start)
            self.work_until(start + datetime.timedelta(hours=HOURS))
            self.end(number)
        if self.asleep_since:
            self.go_to(self.now + datetime.timedelta(hours=1))
            self.wake()
        self.say("quit")
        return "\n".join(self.lines) + "\n"

    def begin(self, number, zone, start):
        self.go_to(start)
        self.say(f"zone {zone}", "input active")
        if self.asleep_since:
            self.wake()
        else:
            self.say("launch")
            self.cadence = 0
        self.say("do begin-break", "press overlay skip")
        self.skip()

    def wake(self):
        self.say("signal didWake")
        self.ledger.pauses["systemSleep"] += 1
        self.ledger.paused += (self.now - self.asleep_since).total_seconds()
        self.asleep_since = None

    def end(self, number):
        """The machine sleeps over the night, unless the program is to end."""
        if number + 1 in self.relaunches:
            self.say("quit")
        elif number + 1 in self.kills:
            self.say("kill")
            self.ledger.unsure += FLUSH_RHYTHM
        else:
            self.say("signal willSleep")
            self.asleep_since = self.now
            self.ledger.unsure += TICK

    def work_until(self, end):
        """Each turn begins with a whole interval of work and ends after its break."""
        while self.now + datetime.timedelta(seconds=INTERVAL + 2 * LONG + 900) < end:
            left = INTERVAL
            fate = self.random.random()
            if fate < 0.3:
                left -= self.interrupt(self.random.choice(("manual", "lock", "meeting")))
            if left is not None and left > 0:
                self.work(left)
            self.take_break()

    def work(self, seconds):
        while seconds:
            piece = min(seconds, self.random.randrange(60, 600))
            self.say(f"front {self.random.randrange(1, len(APPS) + 1)}")
            self.run(piece)
            self.ledger.worked += piece
            seconds -= piece

    def interrupt(self, kind):
        """Seconds of the interval that are over when the work goes on."""
        before = self.random.randrange(30, 600)
        away = self.random.randrange(30, 900)
        self.work(before)
        self.ledger.unsure += 3 * TICK
        if kind == "meeting":
            self.meet(away)
            self.say("do begin-break", "press overlay skip")
            self.skip()
            return 0
        self.say("do pause" if kind == "manual" else "signal screenIsLocked")
        self.run(away)
        self.say("do resume" if kind == "manual" else "signal screenIsUnlocked")
        self.ledger.pauses["manual" if kind == "manual" else "screenLocked"] += 1
        # Who paused by hand may go on working.
        self.ledger.worked += away if kind == "manual" else 0
        self.ledger.paused += away
        return before

    def meet(self, seconds):
        """Its seconds count as screen time, and pause the timer."""
        self.say("audio in us.zoom.xos")
        self.run(seconds)
        self.say("audio in")
        self.run(40)
        self.ledger.pauses["meeting"] += 1
        self.ledger.paused += seconds + 20
        self.ledger.worked += seconds + 40
        self.ledger.unsure += MEETING_SLACK

    def take_break(self):
        is_long = self.cadence == EVERY - 1
        length = LONG if is_long else SHORT
        self.ledger.unsure += 2 * TICK
        fate = self.random.random()
        if fate < 0.1:
            self.say("press overlay snooze 5")
            self.work(300)
        if fate > 0.9:
            self.say("press overlay skip")
            self.skip()
            return
        self.run(length)
        self.ledger.completed += 1
        self.ledger.longs += is_long
        self.cadence = (self.cadence + 1) % EVERY

    def skip(self):
        self.ledger.skipped += 1
        self.ledger.unsure += 2 * TICK
        self.cadence = (self.cadence + 1) % EVERY


class Books:
    """What the store holds."""

    def __init__(self, file):
        self._connection = sqlite3.connect(f"file:{file}?mode=ro", uri=True)

    def rows(self, query):
        return self._connection.execute(query).fetchall()

    def number(self, query):
        return self.rows(query)[0][0]


def differences(books, ledger):
    """Each claim that does not hold."""
    def claim(what, found, expected, slack=0.0):
        if abs(found - expected) > slack:
            yield f"{what}: {found}, expected {expected}" + (f" within {slack}" if slack else "")

    count = "SELECT count(*) FROM BreakRecord WHERE "
    yield from claim("completed breaks", books.number(count + "outcomeRawValue = 'completed'"), ledger.completed)
    yield from claim("skipped breaks", books.number(count + "outcomeRawValue = 'skipped'"), ledger.skipped)
    yield from claim("long breaks completed",
                     books.number(count + "outcomeRawValue = 'completed' AND isLong"), ledger.longs)
    for kind, times in ledger.pauses.items():
        yield from claim(f"pauses for {kind}",
                         books.number(f"SELECT count(*) FROM PauseRecord WHERE kindRawValue = '{kind}'"), times)
    yield from claim("paused seconds", books.number("SELECT total(seconds) FROM PauseRecord"), ledger.paused,
                     MEETING_SLACK * ledger.pauses["meeting"])
    active = books.number("SELECT total(activeSeconds) FROM DayRecord")
    yield from claim("screen time", active, ledger.worked - ledger.unsure / 2, ledger.unsure / 2)
    yield from claim("screen time of the applications", books.number("SELECT total(activeSeconds) FROM AppUsageRecord"),
                     active, 0.01)
    yield from claim("days that begin at the same moment",
                     books.number("SELECT count(*) - count(DISTINCT startOfDay) FROM DayRecord"), 0)
    yield from days_that_differ(books)


def days_that_differ(books):
    """Every day's sums are those of its rows."""
    of_day = "FROM {} WHERE day = DayRecord.id"
    breaks, pauses, apps = (of_day.format(table) for table in ("BreakRecord", "PauseRecord", "AppUsageRecord"))
    yield from (f"day {row}" for row in books.rows(
        "SELECT * FROM (SELECT startOfDay, breaksCompleted, breaksSkipped, pausedSeconds, activeSeconds,"
        f" (SELECT count(*) {breaks} AND outcomeRawValue = 'completed') AS completed,"
        f" (SELECT count(*) {breaks} AND outcomeRawValue = 'skipped') AS skipped,"
        f" (SELECT total(seconds) {pauses}) AS paused, (SELECT total(activeSeconds) {apps}) AS active FROM DayRecord)"
        " WHERE breaksCompleted != completed OR breaksSkipped != skipped OR abs(pausedSeconds - paused) > 0.001"
        " OR abs(activeSeconds - active) > 0.001 OR activeSeconds > 90000"))


def main(simulator, *options):
    year = Year()
    scenario = year.write()
    if options:
        print(scenario, end="")
        return 0
    with tempfile.TemporaryDirectory(dir=MEMORY if os.access(MEMORY, os.W_OK) else None) as folder:
        file = os.path.join(folder, "Kestrelfen.sqlite")
        begin = time.monotonic()
        run = subprocess.run([simulator, "--store", file], input=scenario, capture_output=True, encoding="utf-8")
        seconds = time.monotonic() - begin
        found = [line for line in (run.stderr + run.stdout).splitlines() if line]
        if run.returncode:
            found.append(f"exit status {run.returncode}")
        found += differences(Books(file), year.ledger)
        days = Books(file).number("SELECT count(*) FROM DayRecord")
    ledger = year.ledger
    print(f"{days} days, {ledger.completed} breaks completed ({ledger.longs} long), {ledger.skipped} skipped, "
          f"{sum(ledger.pauses.values())} pauses, {ledger.worked / 3600:.0f} hours of work, in {seconds:.1f} s")
    print("\n".join(found[:20]), file=sys.stderr)
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
